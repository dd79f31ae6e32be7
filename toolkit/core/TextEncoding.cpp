#include "toolkit/core/TextEncoding.h"

#include "toolkit/core/QtText.h"

#include <QStringDecoder>
#include <QUrl>

namespace {

QByteArrayView QtView(std::string_view data) { return {data.data(), std::ssize(data)}; }

} // namespace

bool TextEncoding::IsValidData(std::string_view data) const { return QtView(data).isValidUtf8(); }

String TextEncoding::Decode(std::string_view data) const
{
    // Unlike `QString::fromUtf8` it keeps a byte-order mark.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
    const QString text = decoder(QtView(data));
    return FromQt(text);
}

Bytes TextEncoding::Encode(StringView text) const { return ToQt(text).toUtf8().toStdString(); }

String EncodeURLComponent(StringView text) { return FromQt(QString::fromLatin1(QUrl::toPercentEncoding(ToQt(text)))); }
