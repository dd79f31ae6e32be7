/// Bytes of a file or of the network, and the texts that they stand for.
#pragma once

#include "toolkit/core/Text.h"

/// What a file or a server gave, not yet known to be valid text.
using Bytes = std::string;

/// A text encoding. The program knows UTF-8 alone, but says at each place which encoding it means.
class TextEncoding {
public:
    /// Whether the bytes are a text of this encoding from the first to the last.
    [[nodiscard]] bool IsValidData(std::string_view data) const;

    /// The text of valid bytes, a byte-order mark kept as a character. Invalid sequences become U+FFFD.
    [[nodiscard]] String Decode(std::string_view data) const;

    /// The bytes of a text; `Decode` gives the same text back.
    [[nodiscard]] Bytes Encode(StringView text) const;
};

namespace Encodings {
inline constexpr TextEncoding UTF8{};
}

/// The text as a part of an address: its UTF-8 bytes, all but letters, digits and "-._~" as "%" and two hexadecimal
/// digits.
String EncodeURLComponent(StringView text);
