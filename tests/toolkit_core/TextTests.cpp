#include "toolkit/core/TextEncoding.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

std::vector<String> Texts(const std::vector<StringView>& views) { return {views.begin(), views.end()}; }

TEST(Text, IsTheSameWhateverItsCase)
{
    const std::tuple<const char*, StringView, StringView, bool> rows[] = {
        {"ASCII letters", U"SCENERY_PACK", U"scenery_pack", true},
        {"a letter with an accent", U"ÉCRINS", U"écrins", true},
        {"a decomposed letter is another text", U"e\u0301", U"é", false},
        {"Greek sigma at the end of a word", U"ΟΔΟΣ", U"οδος", true},
        {"the Kelvin sign is a k", U"\u212A", U"k", true},
        {"a long s is an s", U"ſ", U"S", true},
        {"a ligature is no pair of letters", U"ﬁ", U"fi", false},
        {"a Turkish dotted I is no i", U"İ", U"i", false},
        {"letters beyond 16 bits", U"𐐀", U"𐐨", true},
        {"a beginning is not the whole", U"Alpes", U"Alpes ", false},
    };
    for (const auto& [name, left, right, same] : rows) {
        EXPECT_EQ(SameText(left, right), same) << name;
        EXPECT_EQ(FoldCase(left) == FoldCase(right), same) << name;
    }
    EXPECT_EQ(FoldCase(char32_t{0xFFFFFFFF}), char32_t{0xFFFFFFFF}) << "what is no character stays";
}

TEST(Text, IsFoundInAnother)
{
    const String forty(40, U'é');
    const std::tuple<const char*, String, String, Int64, Int64> rows[] = {
        {"from the start on", U"Alpes/Alpes/", U"ALPES", 1, 6},
        {"a start below 0 is 0", U"Alpes", U"alpes", -3, 0},
        {"at the very end", U"xyz", U"Z", 2, 2},
        {"a start behind the end", U"xyz", U"z", 3, -1},
        {"an empty text is nowhere", U"xyz", U"", 0, -1},
        {"longer than the text", U"xyz", U"xyzz", 0, -1},
        {"after a beginning that led nowhere", U"aaab", U"AAB", 0, 1},
        {"characters beyond 16 bits count once", U"😀😀É", U"é", 0, 2},
        {"a long text whatever its case", U"x" + String(40, U'É') + U"x", forty, 1, 1},
        {"a long text that isn't there", String(39, U'É') + U"x" + forty.substr(1), forty, 0, -1},
    };
    for (const auto& [name, text, searched, start, found] : rows)
        EXPECT_EQ(IndexOf(text, searched, start), found) << name;
}

TEST(Text, IsSearchedInTimeEvenWhenItRepeatsItself)
{
    const String text(1'000'000, U'A');
    EXPECT_EQ(IndexOf(text, String(100'000, U'a') + U'b'), -1);
    EXPECT_EQ(CountFields(text, U"a"), 1'000'001);
}

TEST(Text, IsCutIntoFields)
{
    const std::tuple<const char*, StringView, StringView, std::vector<String>> rows[] = {
        {"an empty text is one empty field", U"", U",", {U""}},
        {"without a separator it is one field", U"a b", U",", {U"a b"}},
        {"an empty separator separates nothing", U"ab", U"", {U"ab"}},
        {"separators at the ends and in a row", U",a,,b,", U",", {U"", U"a", U"", U"b", U""}},
        {"the separator ignores case", U"aXbxc", U"x", {U"a", U"b", U"c"}},
        {"a separator of two characters doesn't overlap", U"1---2", U"--", {U"1", U"-2"}},
        {"a NUL is a character like others", {U"a\0b\nc", 5}, U"\n", {String(U"a\0b", 3), U"c"}},
    };
    for (const auto& [name, text, separator, fields] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Texts(Split(text, separator)), fields);
        EXPECT_EQ(CountFields(text, separator), static_cast<Int64>(fields.size()));
        for (std::size_t i = 0; i < fields.size(); ++i)
            EXPECT_EQ(NthField(text, separator, static_cast<Int64>(i) + 1), fields[i]);
        EXPECT_EQ(NthField(text, separator, static_cast<Int64>(fields.size()) + 1), U"");
        EXPECT_EQ(NthField(text, separator, 0), U"");
        EXPECT_TRUE(SameText(Join(Split(text, separator), separator), text));
    }
}

TEST(Text, ChangesItsParts)
{
    EXPECT_EQ(ReplaceAll(U"&a&&b", U"&", U"&&"), U"&&a&&&&b");
    EXPECT_EQ(Join({}, U"--"), U"");
    EXPECT_EQ(ReplaceLineEndings(U"1\r\n2\r3\n\n4\r\r\n\n\r", U"\n"), U"1\n2\n3\n\n4\n\n\n\n");
    EXPECT_EQ(Left(U"abc", 2), U"ab");
    EXPECT_EQ(Left(U"abc", -1), U"");
    EXPECT_EQ(Middle(U"abc", 1, 1), U"b");
    EXPECT_EQ(Middle(U"abc", 4), U"");
    EXPECT_TRUE(BeginsWith(U"Éa", U"é"));
    EXPECT_FALSE(BeginsWith(U"a", U"ab"));
}

TEST(Text, BeginsWithANumber)
{
    constexpr double greatest = std::numeric_limits<double>::max();
    // clang-format off
    const std::pair<String, double> rows[] = {
        {U"", 0}, {U"abc", 0}, {U"12,5", 12}, {U"12.5x", 12.5}, {U" \t-30 ", -30}, {U"+7", 7}, {U"-", 0},
        {U"1e2", 100}, {U"5-3", 5}, {U"inf", 0}, {U"nan", 0}, {U"0x10", 0}, {U"٣", 0},
        {U"1e999", greatest}, {U"-" + String(5000, U'9'), -greatest},
        {U"1e-999", 0}, {U"0." + String(5000, U'0') + U"1", 0}, {ToText(INT64_MIN), -9223372036854775808.0},
    };
    // clang-format on
    for (const auto& [text, number] : rows)
        EXPECT_EQ(Val(text), number) << std::string(text.begin(), text.end());
}

TEST(Text, HasOneCanonicalForm)
{
    EXPECT_EQ(CanonicalForm(U"e\u0301té ﬁ😀"), U"été ﬁ😀");
    EXPECT_EQ(CanonicalForm(U"\uFEFFe\u0301"), U"\uFEFFé") << "a byte-order mark isn't lost";
    EXPECT_EQ(CanonicalForm(String(U"\0e\u0301", 3)), String(U"\0é", 2));
    EXPECT_EQ(CanonicalForm(String{0x301, 0xD800, 0x110000}), U"\u0301\uFFFD\uFFFD");
}

TEST(TextEncoding, GivesTheSameTextBack)
{
    const std::tuple<const char*, std::string_view, StringView> rows[] = {
        {"a byte-order mark at the start", "\xEF\xBB\xBFI\n", U"\uFEFFI\n"},
        {"a mark of the other byte order", "\xEF\xBF\xBEx", U"\uFFFEx"},
        {"a NUL", "a\0b"sv, {U"a\0b", 3}},
        {"composed and decomposed letters", "\xC3\xA9 e\xCC\x81", U"é e\u0301"},
        {"beyond 16 bits", "\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF", U"😀\U0010FFFF"},
        {"noncharacters", "\xEF\xB7\x90\xEF\xBF\xBF", U"\uFDD0\uFFFF"},
    };
    for (const auto& [name, bytes, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(Encodings::UTF8.IsValidData(bytes));
        EXPECT_EQ(Encodings::UTF8.Decode(bytes), text);
        EXPECT_EQ(Encodings::UTF8.Encode(text), bytes);
    }
    // Another encoding, a character cut off, a lone continuation, an overlong slash, half a pair, beyond the last.
    for (const std::string_view bytes :
         {"a\xE9z", "a\xF0\x9F\x98", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_FALSE(Encodings::UTF8.IsValidData(bytes));
        EXPECT_NE(Encodings::UTF8.Decode(bytes).find(U'\uFFFD'), String::npos);
    }
}

} // namespace
