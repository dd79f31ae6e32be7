#include "toolkit/core/TextEncoding.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

TEST(TextEncoding, GivesTheSameTextBack)
{
    const struct {
        const char* name;
        std::string_view bytes;
        StringView text;
    } rows[] = {
        {"nothing", "", U""},
        {"a byte-order mark at the start", "\xEF\xBB\xBFI\n", U"\uFEFFI\n"},
        {"two byte-order marks", "\xEF\xBB\xBF\xEF\xBB\xBF", U"\uFEFF\uFEFF"},
        {"a mark of the other byte order", "\xEF\xBF\xBEx", U"\uFFFEx"},
        {"a NUL", "a\0b"sv, {U"a\0b", 3}},
        {"line ends of all kinds", "a\rb\r\nc\n", U"a\rb\r\nc\n"},
        {"composed and decomposed letters", "\xC3\xA9 e\xCC\x81", U"é e\u0301"},
        {"beyond 16 bits", "\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF", U"😀\U0010FFFF"},
        {"noncharacters", "\xEF\xB7\x90\xEF\xBF\xBF", U"\uFDD0\uFFFF"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(Encodings::UTF8.IsValidData(row.bytes));
        EXPECT_EQ(Encodings::UTF8.Decode(row.bytes), row.text);
        EXPECT_EQ(Encodings::UTF8.Encode(row.text), row.bytes);
    }
}

TEST(TextEncoding, KnowsWhatIsNoText)
{
    const struct {
        const char* name;
        std::string_view bytes;
        StringView text;
    } rows[] = {
        {"a byte of another encoding", "a\xE9z", U"a\uFFFDz"},
        {"a character that is cut off", "a\xF0\x9F\x98", U"a"},
        {"a continuation on its own", "\x80", U"\uFFFD"},
        {"an overlong slash", "\xC0\xAF", U"\uFFFD"},
        {"half of a surrogate pair", "\xED\xA0\x80", U"\uFFFD"},
        {"beyond the last character", "\xF4\x90\x80\x80", U"\uFFFD"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_FALSE(Encodings::UTF8.IsValidData(row.bytes));
        const String text = Encodings::UTF8.Decode(row.bytes);
        EXPECT_EQ(text.substr(0, row.text.size()), row.text);
        EXPECT_NE(text.find(U'\uFFFD'), String::npos);
    }
}

TEST(TextEncoding, KeepsCharactersWholeInLongTexts)
{
    String text;
    for (int i = 0; i < 70'000; ++i)
        text += U"a\uFEFFé😀";
    for (std::size_t shift = 0; shift < 4; ++shift) {
        const Bytes bytes = Encodings::UTF8.Encode(text.substr(shift));
        EXPECT_EQ(bytes.size(), 700'000 - (shift > 0 ? 1 : 0) - (shift > 1 ? 3 : 0) - (shift > 2 ? 2 : 0));
        EXPECT_TRUE(Encodings::UTF8.Decode(bytes) == text.substr(shift)) << shift;
    }
    const Bytes strays(1'000'000, '\x80');
    EXPECT_TRUE(Encodings::UTF8.Decode(strays) == String(strays.size(), U'\uFFFD'));
}

} // namespace
