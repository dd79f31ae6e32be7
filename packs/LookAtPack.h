/// What the packs show of themselves on disk.
#pragma once

#include "engine/Proposal.h"

/// Looks at the pack of a line where it lies: in `dossier`, the "Custom Scenery" folder, beside it or elsewhere on the
/// disk. Links are followed, and the case of names doesn't count.
///
/// Reads the head of one tile at the most, the first by name: never more than 256 KiB, packed or not.
PackFacts LookAtPack(StringView line, const FolderItem& dossier);
