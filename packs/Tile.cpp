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
        if (name == wanted) return {content};
    }
}

} // namespace

PackFacts::Tile TileKindOf(std::string_view beginning)
try {
    constexpr std::string_view cookieAndVersion("XPLNEDSF\1\0\0\0", 12);
    ByteReader tile{beginning};
    if (tile.Take(cookieAndVersion.size()) != cookieAndVersion) return PackFacts::Tile::None;
    // A name is stored backwards.
    ByteReader properties = FindAtom(FindAtom(tile, "DAEH"), "PORP");
    while (!properties.bytes.empty()) {
        const std::string_view name = properties.TakeText(), value = properties.TakeText();
        if (name == "sim/overlay" && value == "1") return PackFacts::Tile::Overlay;
    }
    return PackFacts::Tile::Base;
} catch (const Damage&) {
    return PackFacts::Tile::None;
}
