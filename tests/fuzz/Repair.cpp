#include "support/TextHelpers.h"
#include "tests/fuzz/Input.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

/// Grows a window byte by byte while it is valid text; what it held before a bad byte is kept, the bad byte is not.
Bytes KeptByAGrowingWindow(const Bytes& text)
{
    Bytes kept;
    std::size_t start = 0, length = 1;
    const auto isValid = [&] { return Encodings::UTF8.IsValidData(std::string_view(text).substr(start, length)); };
    while (start + length < text.size()) {
        if (isValid()) {
            ++length;
            continue;
        }
        if (length != 1) kept += text.substr(start, length - 1);
        start += length;
        length = 1;
    }
    if (isValid()) return kept + text.substr(start, length);
    return length != 1 ? kept + text.substr(start, length - 1) : kept;
}

} // namespace

void Fuzz(Input& input)
{
    const Bytes text = input.ConsumeRemainingBytesAsString();
    const Bytes repaired = Fncts::NettoiBadEncod(text, Encodings::UTF8);
    EXPECT_TRUE(Encodings::UTF8.IsValidData(repaired));
    EXPECT_EQ(repaired, KeptByAGrowingWindow(text));
    if (std::ranges::all_of(text, [](char byte) { return (byte & 0x80) == 0; })) EXPECT_EQ(repaired, text);

    const String decoded = Encodings::UTF8.Decode(text);
    const Bytes encoded = Encodings::UTF8.Encode(decoded);
    EXPECT_EQ(Encodings::UTF8.Decode(encoded), decoded);
    EXPECT_EQ(encoded == text, Encodings::UTF8.IsValidData(text));
}
