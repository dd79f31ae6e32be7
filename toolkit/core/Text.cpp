#include "toolkit/core/Text.h"

#include "toolkit/core/QtText.h"
#include "toolkit/core/TextEncoding.h"

#include <algorithm>
#include <locale>
#include <sstream>

namespace {

constexpr std::size_t none = StringView::npos;

bool SameCharacter(char32_t left, char32_t right) { return left == right || FoldCase(left) == FoldCase(right); }

/// One text to search for, many times over. No text is slow to search (Knuth, Morris and Pratt), not even a million
/// blanks for a thousand.
class Search {
public:
    explicit Search(StringView searched)
        : searched_(searched)
        , borders_(searched.size())
    {
        for (std::size_t i = 1; i < searched.size(); ++i)
            borders_[i] = Advance(borders_[i - 1], searched[i]);
    }

    /// Offset of the first occurrence at or behind `start`, or `none`.
    [[nodiscard]] std::size_t Find(StringView text, std::size_t start) const
    {
        if (searched_.empty()) return none;
        std::size_t matched = 0;
        for (std::size_t i = start; i < text.size(); ++i) {
            matched = Advance(matched, text[i]);
            if (matched == searched_.size()) return i + 1 - matched;
        }
        return none;
    }

private:
    /// How many characters at the start of the searched text match, when `matched` did and `next` comes behind them.
    [[nodiscard]] std::size_t Advance(std::size_t matched, char32_t next) const
    {
        while (matched > 0 && !SameCharacter(searched_[matched], next))
            matched = borders_[matched - 1];
        return SameCharacter(searched_[matched], next) ? matched + 1 : 0;
    }

    StringView searched_;
    /// For each character of the searched text, how long a true beginning of it ends there.
    std::vector<std::size_t> borders_;
};

std::size_t ToOffset(Int64 number) { return number < 0 ? 0 : static_cast<std::size_t>(number); }

} // namespace

char32_t FoldCaseBeyondAscii(char32_t character)
{
    return character > QChar::LastValidCodePoint ? character : QChar::toCaseFolded(character);
}

String FoldCase(StringView text)
{
    String folded(text);
    for (char32_t& character : folded)
        character = FoldCase(character);
    return folded;
}

bool SameText(StringView left, StringView right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(), SameCharacter);
}

Int64 IndexOf(StringView text, StringView searched, Int64 start)
{
    const std::size_t found = Search(searched).Find(text, ToOffset(start));
    return found == none ? -1 : static_cast<Int64>(found);
}

bool BeginsWith(StringView text, StringView prefix) { return SameText(text.substr(0, prefix.size()), prefix); }

std::vector<StringView> Split(StringView text, StringView separator)
{
    const Search search(separator);
    std::vector<StringView> fields;
    std::size_t start = 0;
    for (std::size_t end = search.Find(text, 0); end != none; end = search.Find(text, start)) {
        fields.push_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    fields.push_back(text.substr(start));
    return fields;
}

StringView NthField(StringView text, StringView separator, Int64 number)
{
    const std::vector<StringView> fields = Split(text, separator);
    return number >= 1 && number <= std::ssize(fields) ? fields[ToOffset(number - 1)] : StringView();
}

Int64 CountFields(StringView text, StringView separator) { return std::ssize(Split(text, separator)); }

String Join(std::span<const StringView> pieces, StringView separator)
{
    String text;
    for (const StringView piece : pieces)
        text.append(piece).append(separator);
    text.resize(text.size() - (pieces.empty() ? 0 : separator.size()));
    return text;
}

String ReplaceAll(StringView text, StringView searched, StringView replacement)
{
    return Join(Split(text, searched), replacement);
}

String ReplaceLineEndings(StringView text, StringView lineEnd)
{
    String result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool firstOfPair = text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n';
        if (firstOfPair) continue;
        if (text[i] == U'\r' || text[i] == U'\n')
            result += lineEnd;
        else
            result += text[i];
    }
    return result;
}

StringView Left(StringView text, Int64 length) { return text.substr(0, ToOffset(length)); }

StringView Middle(StringView text, Int64 start, Int64 length)
{
    return text.substr(std::min(ToOffset(start), text.size()), ToOffset(length));
}

String ToText(Int64 number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

double Val(StringView text)
{
    std::istringstream stream(Encodings::UTF8.Encode(text));
    stream.imbue(std::locale::classic());
    double number = 0;
    stream >> number;
    return number;
}

String CanonicalForm(StringView text)
{
    constexpr char32_t firstCombining = 0x300; // nothing below it changes
    if (std::ranges::all_of(text, [](char32_t character) { return character < firstCombining; })) return String(text);
    return FromQt(ToQt(text).normalized(QString::NormalizationForm_C));
}

QString ToQt(StringView text)
{
    QString result;
    result.reserve(std::ssize(text));
    for (const char32_t character : text) {
        const bool isCharacter = character <= QChar::LastValidCodePoint && !QChar::isSurrogate(character);
        result.append(QChar::fromUcs4(isCharacter ? character : char32_t{QChar::ReplacementCharacter}));
    }
    return result;
}

String FromQt(const QString& text) { return text.toStdU32String(); }
