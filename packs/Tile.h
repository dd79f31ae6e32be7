/// What a DSF tile tells about the pack that it lies in.
#pragma once

#include <string_view>

enum class TileKind {
    Overlay,
    Base,
    /// It isn't as it should be, or not all of its head is there.
    Damaged,
};

/// The kind of the tile that begins with these bytes, which must hold the whole of its head.
TileKind TileKindOf(std::string_view beginning);
