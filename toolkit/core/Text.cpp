#include "toolkit/core/Text.h"

#include "toolkit/core/QtText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::size_t none = StringView::npos;

bool SameCharacter(char32_t left, char32_t right) { return left == right || FoldCase(left) == FoldCase(right); }

/// One text to search for, many times over.
class Search {
public:
    explicit Search(StringView searched)
        : searched_(searched)
        , first_(searched.empty() ? U'\0' : FoldCase(searched.front()))
    {
        if (searched.size() > longestPlain) FillBorders();
    }

    /// Offset of the first occurrence at or behind `start`, or `none`.
    [[nodiscard]] std::size_t Find(StringView text, std::size_t start) const
    {
        if (searched_.empty() || start >= text.size() || text.size() - start < searched_.size()) return none;
        return borders_.empty() ? FindShort(text, start) : FindLong(text, start);
    }

    [[nodiscard]] std::size_t Length() const { return searched_.size(); }

private:
    // A longer text would make the plain search slow on texts like a million blanks.
    static constexpr std::size_t longestPlain = 32;

    /// How many characters at the start of the searched text match, when `matched` did and `next` comes behind them.
    [[nodiscard]] std::size_t Advance(std::size_t matched, char32_t next) const
    {
        while (matched > 0 && !SameCharacter(searched_[matched], next))
            matched = borders_[matched - 1];
        return SameCharacter(searched_[matched], next) ? matched + 1 : 0;
    }

    /// The table of Knuth, Morris and Pratt: the longest true beginning that ends at each character.
    void FillBorders()
    {
        borders_.assign(searched_.size(), 0);
        for (std::size_t i = 1; i < searched_.size(); ++i)
            borders_[i] = Advance(borders_[i - 1], searched_[i]);
    }

    [[nodiscard]] std::size_t FindLong(StringView text, std::size_t start) const
    {
        std::size_t matched = 0;
        for (std::size_t i = start; i < text.size(); ++i) {
            matched = Advance(matched, text[i]);
            if (matched == searched_.size()) return i + 1 - matched;
        }
        return none;
    }

    [[nodiscard]] std::size_t FindShort(StringView text, std::size_t start) const
    {
        const std::size_t last = text.size() - searched_.size();
        for (std::size_t offset = start; offset <= last; ++offset) {
            if (FoldCase(text[offset]) == first_ && SameText(text.substr(offset, searched_.size()), searched_)) {
                return offset;
            }
        }
        return none;
    }

    StringView searched_;
    char32_t first_;
    std::vector<std::size_t> borders_;
};

std::size_t ToOffset(Int64 number) { return number < 0 ? 0 : static_cast<std::size_t>(number); }

/// The characters that a number may begin with, as bytes; the sign "+" is left out.
std::string NumericStart(StringView text)
{
    const std::size_t begin = text.find_first_not_of(U" \t\r\n");
    if (begin == none) return {};
    text.remove_prefix(begin);
    if (text.starts_with(U'+')) text.remove_prefix(1);
    text = text.substr(0, text.find_first_not_of(U"0123456789.eE+-"));
    return {text.begin(), text.end()};
}

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
        start = end + search.Length();
    }
    fields.push_back(text.substr(start));
    return fields;
}

StringView NthField(StringView text, StringView separator, Int64 number)
{
    const Search search(separator);
    std::size_t start = 0;
    for (Int64 field = 1; number >= 1; ++field) {
        const std::size_t end = search.Find(text, start);
        if (field == number) return text.substr(start, end == none ? none : end - start);
        if (end == none) break;
        start = end + search.Length();
    }
    return {};
}

Int64 CountFields(StringView text, StringView separator)
{
    const Search search(separator);
    Int64 count = 1;
    for (std::size_t end = search.Find(text, 0); end != none; end = search.Find(text, end + search.Length()))
        ++count;
    return count;
}

String Join(std::span<const StringView> pieces, StringView separator)
{
    String text;
    std::size_t length = 0;
    for (const StringView piece : pieces)
        length += piece.size() + separator.size();
    text.reserve(length);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0) text += separator;
        text += pieces[i];
    }
    return text;
}

String ReplaceAll(StringView text, StringView searched, StringView replacement)
{
    const Search search(searched);
    String result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t end = search.Find(text, 0); end != none; end = search.Find(text, start)) {
        result.append(text.substr(start, end - start)).append(replacement);
        start = end + search.Length();
    }
    return result.append(text.substr(start));
}

String ReplaceLineEndings(StringView text, StringView lineEnd)
{
    String result;
    result.reserve(text.size());
    const auto isLineEnd = [](char32_t character) { return character == U'\n' || character == U'\r'; };
    auto start = text.begin();
    auto end = std::find_if(start, text.end(), isLineEnd);
    while (end != text.end()) {
        result.append(start, end).append(lineEnd);
        const bool isPair = *end == U'\r' && end + 1 != text.end() && end[1] == U'\n';
        start = end + (isPair ? 2 : 1);
        end = std::find_if(start, text.end(), isLineEnd);
    }
    return result.append(start, text.end());
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
    const std::string start = NumericStart(text);
    double number = 0;
    const std::errc outcome = std::from_chars(start.data(), start.data() + start.size(), number).ec;
    if (outcome != std::errc::result_out_of_range) return number;
    const std::size_t exponent = start.find_first_of("eE");
    const bool tiny =
        exponent == none ? start.find_first_of("123456789") > start.find('.') : start[exponent + 1] == '-';
    return tiny ? 0 : std::copysign(std::numeric_limits<double>::max(), start.front() == '-' ? -1.0 : 1.0);
}

String CanonicalForm(StringView text)
{
    // Nothing below the first combining character changes.
    constexpr char32_t firstCombining = 0x300;
    if (std::all_of(text.begin(), text.end(), [](char32_t character) { return character < firstCombining; })) {
        return String(text);
    }
    return FromQt(ToQt(text).normalized(QString::NormalizationForm_C));
}

QString ToQt(StringView text)
{
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char32_t character : text) {
        if (character < 0xD800) {
            result.append(QChar(static_cast<char16_t>(character)));
        } else if (character > QChar::LastValidCodePoint || QChar::isSurrogate(character)) {
            result.append(QChar(QChar::ReplacementCharacter));
        } else {
            result.append(QChar::fromUcs4(character));
        }
    }
    return result;
}

String FromQt(const QString& text) { return text.toStdU32String(); }
