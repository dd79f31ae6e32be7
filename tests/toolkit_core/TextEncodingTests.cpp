#include "toolkit/core/TextEncoding.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

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
}

TEST(TextEncoding, KnowsWhatIsNoText)
{
    // Another encoding, a character cut off, a lone continuation, an overlong slash, half a pair, beyond the last.
    for (const std::string_view bytes :
         {"a\xE9z", "a\xF0\x9F\x98", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_FALSE(Encodings::UTF8.IsValidData(bytes));
        EXPECT_NE(Encodings::UTF8.Decode(bytes).find(U'\uFFFD'), String::npos);
    }
    EXPECT_EQ(Encodings::UTF8.Decode("a\xE9z"), U"a\uFFFDz");
}

} // namespace
