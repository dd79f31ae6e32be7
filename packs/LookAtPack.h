/// What the packs show of themselves on disk.
#pragma once

#include "engine/Proposal.h"

#include <atomic>
#include <map>

/// How many packs of how many have been begun. Any thread may read it, and stop the looking, which then ends with the
/// packs that are being looked at.
struct Progress {
    std::atomic<std::size_t> begun = 0, all = 0;
    std::atomic<bool> stopped = false;
};

/// The packs to propose a model from, each looked at in the order of its line; all are back when this returns.
std::vector<Pack> LookAtPacks(StringView text, const FolderItem& dossier, Progress& progress);

/// Looks at packs where their lines say that they lie: in the "Custom Scenery" folder, beside it or elsewhere on the
/// disk. Links are followed, and the case of names doesn't count.
class PackFolders {
public:
    explicit PackFolders(const FolderItem& dossier);

    /// Reads the head of one tile at the most, the first by name: never more than 256 KiB, packed or not. What can't be
    /// read is a doubt with the system's reason.
    PackFacts LookAt(StringView line);

private:
    using Item = std::filesystem::directory_entry;
    /// The items of a folder by their names, as these are compared.
    using Items = std::map<String, Item>;

    static Items ItemsOf(const std::filesystem::path& folder);
    Item Find(const Item& folder, StringView name);
    Item FolderOf(StringView path);
    void LookInside(PackFacts& facts, const Item& folder);

    const std::filesystem::path dossier_;
    /// Where an item was searched under another spelling.
    std::map<std::filesystem::path, Items> listed_;
};
