/// What the packs show of themselves on disk.
#pragma once

#include "engine/Proposal.h"

#include <map>

/// Looks at packs where their lines say that they lie: in the "Custom Scenery" folder, beside it or elsewhere on the
/// disk. Links are followed, and the case of names doesn't count.
class PackFolders {
public:
    explicit PackFolders(const FolderItem& dossier);

    /// Reads the head of one tile at the most, the first by name: never more than 256 KiB, packed or not. What can't be
    /// read is a doubt with the system's reason.
    PackFacts LookAt(StringView line);

private:
    /// The items of a folder by their names, as these are compared.
    using Items = std::map<String, std::filesystem::directory_entry>;

    static Items ItemsOf(const std::filesystem::path& folder);
    std::optional<std::filesystem::directory_entry> Find(const std::filesystem::path& folder, StringView name);
    std::optional<std::filesystem::path> FolderOf(StringView path);
    void LookInside(PackFacts& facts, const std::filesystem::path& folder);

    const std::filesystem::path dossier_;
    /// Where an item was searched under another spelling.
    std::map<std::filesystem::path, Items> listed_;
};
