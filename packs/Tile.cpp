#include "packs/Tile.h"

#include <cstdint>
#include <optional>

namespace {

// A name is stored backwards.
constexpr std::string_view cookieAndVersion("XPLNEDSF\1\0\0\0", 12), head = "DAEH", properties = "PORP";
constexpr std::size_t nameSize = 4, atomHeader = 8;

/// Little-endian; the bytes must be there.
std::size_t NumberAt(std::string_view bytes, std::size_t offset)
{
    std::size_t number = 0;
    for (std::size_t i = sizeof(std::uint32_t); i > 0; --i)
        number = number << 8 | static_cast<unsigned char>(bytes[offset + i - 1]);
    return number;
}

/// The content of the first atom of that name, if it and all before it are whole.
std::optional<std::string_view> FindAtom(std::string_view atoms, std::string_view name)
{
    while (atoms.size() >= atomHeader) {
        const std::size_t length = NumberAt(atoms, nameSize);
        if (length < atomHeader || length > atoms.size()) break;
        if (atoms.starts_with(name)) return atoms.substr(atomHeader, length - atomHeader);
        atoms.remove_prefix(length);
    }
    return {};
}

/// Takes a text with a NUL behind it off the beginning.
std::optional<std::string_view> TakeText(std::string_view& bytes)
{
    const std::size_t end = bytes.find('\0');
    if (end == bytes.npos) return {};
    const std::string_view text = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return text;
}

} // namespace

TileKind TileKindOf(std::string_view beginning)
{
    if (!beginning.starts_with(cookieAndVersion)) return TileKind::Damaged;
    const auto heads = FindAtom(beginning.substr(cookieAndVersion.size()), head);
    auto pairs = heads ? FindAtom(*heads, properties) : std::nullopt;
    while (pairs && !pairs->empty()) {
        const auto name = TakeText(*pairs), value = TakeText(*pairs);
        if (!name || !value) return TileKind::Damaged;
        if (*name == "sim/overlay" && *value == "1") return TileKind::Overlay;
    }
    return pairs ? TileKind::Base : TileKind::Damaged;
}
