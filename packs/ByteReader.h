/// Bytes that are taken off the front.
#pragma once

#include <cstdint>
#include <string_view>

/// Raised instead of taking more bytes than there are.
struct Damage {};

struct ByteReader {
    std::string_view bytes;

    std::string_view Take(std::uint64_t count)
    {
        if (count > bytes.size()) throw Damage();
        const std::string_view taken = bytes.substr(0, count);
        bytes.remove_prefix(count);
        return taken;
    }

    /// Takes an unsigned number of so many bytes, at most eight, the lowest first.
    std::uint64_t TakeNumber(std::size_t size)
    {
        std::uint64_t number = 0;
        for (int bits = 0; const char byte : Take(size)) {
            number |= std::uint64_t{static_cast<unsigned char>(byte)} << bits;
            bits += 8;
        }
        return number;
    }

    /// Takes a text with a NUL behind it.
    std::string_view TakeText()
    {
        const std::string_view text = Take(bytes.find('\0'));
        Take(1);
        return text;
    }
};
