#include "toolkit/core/TextEncoding.h"

#include "toolkit/core/QtText.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QUrl>
#include <algorithm>

namespace {

// Texts pass through UTF-16 in pieces, so that a large one never lies in memory a third time.
constexpr std::size_t pieceSize = 1 << 14;

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The length of the piece to decode first: a sequence of up to four bytes isn't torn apart.
std::size_t PieceLength(std::string_view data)
{
    if (data.size() <= pieceSize) return data.size();
    for (std::size_t length = pieceSize; length > pieceSize - 4; --length) {
        if (!IsContinuation(data[length])) return length;
    }
    return pieceSize;
}

QByteArrayView QtView(std::string_view data) { return {data.data(), static_cast<qsizetype>(data.size())}; }

} // namespace

bool TextEncoding::IsValidData(std::string_view data) const { return QtView(data).isValidUtf8(); }

String TextEncoding::Decode(std::string_view data) const
{
    String text;
    text.reserve(data.size() - static_cast<std::size_t>(std::count_if(data.begin(), data.end(), IsContinuation)));
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
    while (!data.empty()) {
        const std::size_t length = PieceLength(data);
        const QString piece = decoder.decode(QtView(data.substr(0, length)));
        text += FromQt(piece);
        data.remove_prefix(length);
    }
    return text;
}

Bytes TextEncoding::Encode(StringView text) const
{
    Bytes bytes;
    bytes.reserve(text.size());
    for (; !text.empty(); text.remove_prefix(std::min(pieceSize, text.size()))) {
        const QByteArray piece = ToQt(text.substr(0, pieceSize)).toUtf8();
        bytes.append(piece.constData(), static_cast<std::size_t>(piece.size()));
    }
    return bytes;
}

String EncodeURLComponent(StringView text) { return FromQt(QString::fromLatin1(QUrl::toPercentEncoding(ToQt(text)))); }
