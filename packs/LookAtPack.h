/// What the packs show of themselves on disk.
#pragma once

#include "engine/Proposal.h"

#include <atomic>

/// How many packs of how many have been begun. Any thread may read it, and stop the looking, which then ends with the
/// packs that are being looked at.
struct Progress {
    std::atomic<std::size_t> begun = 0, all = 0;
    std::atomic<bool> stopped = false;
};

/// What a model for the text in the folder `dossier` is proposed from, all looked at where their lines say that they
/// lie: in that folder, beside it or elsewhere on the disk. Links are followed, and the case of names doesn't count.
///
/// Of each pack the head of one tile at the most is read, the first by name: never more than 256 KiB, packed or not.
/// What can't be read is a doubt with the system's reason.
std::vector<Pack> LookAtPacks(StringView text, const FolderItem& dossier, Progress& progress);
