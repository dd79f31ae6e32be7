#include "packs/LookAtPack.h"

#include "localisation/Localisation.h"
#include "packs/Tile.h"
#include "packs/Unpacking.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"
#include "toolkit/core/TextEncoding.h"

#include <fcntl.h>
#include <future>
#include <map>

namespace fs = std::filesystem;

namespace {

using Item = fs::directory_entry;
/// The items of a folder by their names, as these are compared.
using Items = std::map<String, Item>;

String FormOf(StringView name) { return FoldCase(CanonicalForm(name)); }

String Unreadable(const fs::path& path, StringView reason)
{
    return Localisation::Filled(Localisation::Txt_RaisonIllisible(),
                                {Encodings::UTF8.Decode(path.filename().native()), reason});
}

Items ItemsOf(const fs::path& folder)
{
    Items items;
    for (const Item& item : fs::directory_iterator(folder))
        items.emplace(FormOf(Encodings::UTF8.Decode(item.path().filename().native())), item);
    return items;
}

PackFacts LookAtTile(const fs::path& tile)
try {
    // What opens only when somebody writes to it must not stop the program.
    const Descriptor file(::open(tile.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    Check(file.number >= 0);
    // The short beginning does for nearly all.
    for (const std::size_t size : {std::size_t{1} << 10, std::size_t{256} << 10}) {
        const PackFacts::Tile kind = TileKindOf(BeginningOf(file.number, size));
        if (kind != PackFacts::Tile::None) return {.tile = kind, .doubt = {}};
    }
    return {.doubt = Unreadable(tile, Localisation::Txt_RaisonTuileAbimee())};
} catch (const IOException& error) {
    return {.doubt = Unreadable(tile, error.Message)};
}

class Looker {
public:
    explicit Looker(const FolderItem& dossier)
        : dossier_(dossier.Path())
    {
    }

    PackFacts LookAt(StringView line);

private:
    Item Find(const Item& folder, StringView name);
    Item FolderOf(StringView path);
    PackFacts LookInside(const Item& folder);

    const fs::path dossier_;
    /// Where an item was searched under another spelling.
    std::map<fs::path, Items> listed_;
};

/// The item of that name, or one that isn't there.
Item Looker::Find(const Item& folder, StringView name)
{
    if (!folder.is_directory()) return {};
    if (Item exact(folder.path() / Encodings::UTF8.Encode(name)); exact.exists()) return exact;
    if (!listed_.contains(folder)) listed_.emplace(folder, ItemsOf(folder));
    const Items& items = listed_.at(folder);
    const auto found = items.find(FormOf(name));
    return found == items.end() ? Item() : found->second;
}

Item Looker::FolderOf(StringView path)
{
    Item folder(dossier_);
    if (BeginsWith(path, CustomScenery))
        path.remove_prefix(CustomScenery.size());
    else
        folder.assign(path.starts_with(U'/') ? "/" : dossier_.parent_path());
    for (const StringView name : Split(path, U"/"))
        if (!name.empty()) folder = Find(folder, name);
    return folder;
}

PackFacts Looker::LookInside(const Item& folder)
{
    const Item data = Find(folder, U"Earth nav data");
    const Items items = data.is_directory() ? ItemsOf(data) : Items();
    const auto airports = items.find(U"apt.dat");
    if (airports != items.end() && airports->second.is_regular_file()) return {.airports = true, .doubt = {}};
    for (const auto& [name, tiles] : items)
        for (const auto& [file, tile] : tiles.is_directory() ? ItemsOf(tiles) : Items())
            if (file.ends_with(U".dsf")) return LookAtTile(tile);
    const bool library = Find(folder, U"library.txt").is_regular_file();
    const bool plugins = Find(folder, U"plugins").is_directory();
    listed_.erase(folder); // asked for no more, and it may be long
    return {.library = library,
            .plugins = plugins,
            .doubt = library || plugins ? String() : Localisation::Txt_RaisonRien()};
}

PackFacts Looker::LookAt(StringView line)
try {
    const SceneryLine pack = LinesOf(line).front();
    if (pack.state == LineState::Other) return {.doubt = Localisation::Txt_RaisonPasUnPack()};
    const Item folder = FolderOf(pack.Rest());
    return folder.is_directory() ? LookInside(folder) : PackFacts{.doubt = Localisation::Txt_RaisonDossAbsent()};
} catch (const fs::filesystem_error& error) {
    return {.doubt = Unreadable(error.path1(), Encodings::UTF8.Decode(error.code().message()))};
}

} // namespace

std::vector<Pack> LookAtPacks(StringView text, const FolderItem& dossier, Progress& progress)
{
    std::vector<Pack> packs = PacksToPropose(text, dossier);
    progress.all = packs.size();
    const auto look = [&] {
        Looker looker(dossier);
        for (std::size_t i = progress.begun++; i < packs.size() && !progress.stopped; i = progress.begun++)
            if (packs[i].fitsLine) packs[i].facts = looker.LookAt(packs[i].line);
    };
    std::future<void> other = std::async(look); // where no thread is to be had, this one does it all
    look();
    other.get();
    return packs;
}
