#include "packs/Tile.h"

#include "packs/ByteReader.h"

namespace {

/// The content of the first atom of that name.
ByteReader FindAtom(ByteReader atoms, std::string_view wanted)
{
    constexpr std::size_t nameSize = 4, lengthSize = 4;
    for (;;) {
        const std::string_view name = atoms.Take(nameSize);
        const std::string_view content = atoms.Take(atoms.TakeNumber(lengthSize) - nameSize - lengthSize);
        if (name == wanted) return ByteReader(content);
    }
}

} // namespace

TileKind TileKindOf(std::string_view beginning)
try {
    constexpr std::string_view cookieAndVersion("XPLNEDSF\1\0\0\0", 12);
    ByteReader tile(beginning);
    if (tile.Take(cookieAndVersion.size()) != cookieAndVersion) return TileKind::Damaged;
    // A name is stored backwards.
    ByteReader properties = FindAtom(FindAtom(tile, "DAEH"), "PORP");
    while (!properties.IsEmpty()) {
        const std::string_view name = properties.TakeText(), value = properties.TakeText();
        if (name == "sim/overlay" && value == "1") return TileKind::Overlay;
    }
    return TileKind::Base;
} catch (const Damage&) {
    return TileKind::Damaged;
}
