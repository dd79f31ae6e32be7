/// Texts as sequences of characters (code points), and the operations on them.
///
/// Every comparison and search of this file ignores case; `==` on two texts doesn't, and is never meant for what a user
/// typed or a file holds. Offsets and lengths count characters and start at 0.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using String = std::u32string;
using StringView = std::u32string_view;
using Int16 = std::int16_t;
using Int64 = std::int64_t;

namespace EndOfLine {
inline constexpr StringView UNIX = U"\n";
/// The line end of the platform: LF on Linux and on macOS.
inline constexpr StringView Native = UNIX;
} // namespace EndOfLine

/// The simple case folding of one character: 'É' and 'é' fold to the same. A text keeps its length under it.
inline char32_t FoldCase(char32_t character);

/// The text with each character folded. Two texts are the same text when their foldings are equal.
String FoldCase(StringView text);

/// Whether the two texts differ in nothing but case.
bool SameText(StringView left, StringView right);

/// Offset of the first `searched` at or behind `start`, or -1. A start below 0 counts as 0; an empty text is not found.
Int64 IndexOf(StringView text, StringView searched, Int64 start = 0);

bool BeginsWith(StringView text, StringView prefix);

/// The fields between the separators. A text without one is a single field; an empty text gives one empty field.
/// The views live as long as the text behind `text`.
std::vector<StringView> Split(StringView text, StringView separator);

/// Field number `number`, counted from 1, or "" when there are fewer.
StringView NthField(StringView text, StringView separator, Int64 number);

Int64 CountFields(StringView text, StringView separator);

/// The pieces with `separator` between them.
String Join(std::span<const StringView> pieces, StringView separator);

/// The text with every `searched`, from left to right and without overlap, replaced. An empty `searched` is not found.
String ReplaceAll(StringView text, StringView searched, StringView replacement);

/// The text with every line end (CR LF, CR or LF) replaced by `lineEnd`.
String ReplaceLineEndings(StringView text, StringView lineEnd);

/// The first `length` characters, or all of a shorter text.
StringView Left(StringView text, Int64 length);

/// The characters from offset `start` on, `length` of them at the most. A start behind the end gives "".
StringView Middle(StringView text, Int64 start, Int64 length = INT64_MAX);

/// Decimal digits with a minus sign when negative, no grouping.
String ToText(Int64 number);

/// The number at the start of a text (blanks before it are passed over), or 0 when there is none: "12,5" gives 12.
/// Always finite; one beyond the range of a double becomes the greatest of its sign.
double Val(StringView text);

/// The canonical form (NFC) that all names are compared in: a decomposed "é" becomes the single character.
String CanonicalForm(StringView text);

/// The folding of a character behind ASCII. Call `FoldCase`.
char32_t FoldCaseBeyondAscii(char32_t character);

inline char32_t FoldCase(char32_t character)
{
    if (character >= 0x80) return FoldCaseBeyondAscii(character);
    return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}
