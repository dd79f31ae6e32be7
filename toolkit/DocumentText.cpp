#include "toolkit/DocumentText.h"

#include "toolkit/core/QtText.h"

#include <QLineEdit>
#include <algorithm>
#include <iterator>

namespace {

/// What stands for a CR: before a LF a character that is drawn as nothing, elsewhere one that breaks the line.
constexpr char16_t endingReturn = 0x206F, loneReturn = QChar::LineSeparator;
/// The last two are what Qt marks the bounds of frames with.
constexpr char32_t carried[] = {endingReturn, loneReturn, QChar::ParagraphSeparator, 0xFDD0, 0xFDD1};
constexpr char16_t firstCarrier = 0xD800;

} // namespace

QChar ReturnUnit(bool beforeLineEnd) { return beforeLineEnd ? endingReturn : loneReturn; }

bool IsReturn(QChar unit) { return unit == endingReturn || unit == loneReturn; }

QString ToDocument(StringView text)
{
    QString units = ToQt(text);
    for (qsizetype i = 0; i < units.size(); ++i) {
        QChar& unit = units[i];
        if (unit == u'\r')
            unit = ReturnUnit(i + 1 < units.size() && units[i + 1] == u'\n');
        else if (const auto* at = std::ranges::find(carried, unit.unicode()); at != std::end(carried))
            unit = QChar(static_cast<char16_t>(firstCarrier + (at - carried)));
    }
    return units;
}

String FromDocument(QStringView units)
{
    String text;
    text.reserve(static_cast<std::size_t>(units.size()));
    for (qsizetype i = 0; i < units.size(); ++i) {
        const char16_t unit = units[i].unicode();
        if (unit == QChar::ParagraphSeparator) {
            text += U'\n';
        } else if (IsReturn(QChar(unit))) {
            text += U'\r';
        } else if (!QChar::isSurrogate(unit)) {
            text += unit;
        } else if (i + 1 < units.size() && units[i + 1].isLowSurrogate()) {
            text += QChar::surrogateToUcs4(unit, units[++i].unicode());
        } else {
            const auto carrier = static_cast<std::size_t>(unit - firstCarrier);
            text += carrier < std::size(carried) ? carried[carrier] : char32_t{QChar::ReplacementCharacter};
        }
    }
    return text;
}

QTextOption::WrapMode WrapModeFor(StringView text)
{
    constexpr std::size_t longestLineOfWords = 20'000;
    for (std::size_t start = 0; start + longestLineOfWords < text.size();) {
        const std::size_t end = std::min(text.find(U'\n', start), text.size());
        if (end - start > longestLineOfWords) return QTextOption::WrapAnywhere;
        start = end + 1;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

QString OneLine(QString text)
{
    const auto separates = [](QChar unit) {
        return unit == u'\t' || unit == u'\n' || unit == u'\r' || unit == QChar::LineSeparator ||
               unit == QChar::ParagraphSeparator;
    };
    std::replace_if(text.begin(), text.end(), separates, QChar(u' '));
    return text;
}

void KeepOneLine(QLineEdit& field)
{
    QObject::connect(&field, &QLineEdit::textEdited, &field, [&field](const QString& text) {
        // Setting a text ends what can be undone.
        if (OneLine(text) == text) return;
        const int caret = field.cursorPosition();
        field.setText(OneLine(text));
        field.setCursorPosition(caret);
    });
}
