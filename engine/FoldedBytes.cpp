#include "engine/FoldedBytes.h"

namespace {

constexpr char32_t lastAscii = 0x7F;
/// Comes before a character beyond ASCII, and is above every byte of ASCII.
constexpr char beyondAscii = '\xFF';

/// Folds a text into as many bytes, which are right only if all its characters are ASCII: whether they are.
///
/// There is no branch in the loop, so the compiler makes it take many characters at a time.
bool FoldAscii(StringView text, std::string& bytes)
{
    bytes.resize(text.size());
    char32_t all = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t character = text[i];
        const bool isCapital = character - U'A' <= U'Z' - U'A';
        bytes[i] = static_cast<char>(character + (isCapital ? U'a' - U'A' : 0));
        all |= character;
    }
    return all <= lastAscii;
}

} // namespace

void FoldIntoBytes(StringView text, std::string& bytes)
{
    if (FoldAscii(text, bytes)) return;
    bytes.clear();
    for (char32_t character : text) {
        character = FoldCase(character);
        if (character > lastAscii) {
            bytes += beyondAscii;
            for (const int shift : {24, 16, 8})
                bytes += static_cast<char>(character >> shift);
        }
        bytes += static_cast<char>(character);
    }
}
