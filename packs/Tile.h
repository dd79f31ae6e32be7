/// What a DSF tile tells about the pack that it lies in.
#pragma once

#include "engine/Proposal.h"

/// The kind of the tile that begins with these bytes, which must hold the whole of its head; `None` for what isn't as
/// it should be.
PackFacts::Tile TileKindOf(std::string_view beginning);
