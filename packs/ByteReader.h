/// Bytes that are taken off the front.
#pragma once

#include <cstdint>
#include <string_view>

/// Raised instead of taking more bytes than there are.
struct Damage {};

class ByteReader {
public:
    explicit ByteReader(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    [[nodiscard]] bool IsEmpty() const { return bytes_.empty(); }

    std::string_view Take(std::uint64_t count)
    {
        if (count > bytes_.size()) throw Damage();
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(count);
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
        const std::string_view text = Take(bytes_.find('\0'));
        Take(1);
        return text;
    }

private:
    std::string_view bytes_;
};
