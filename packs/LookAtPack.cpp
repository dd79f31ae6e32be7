#include "packs/LookAtPack.h"

#include "localisation/Localisation.h"
#include "packs/Tile.h"
#include "packs/Unpacking.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"
#include "toolkit/core/TextEncoding.h"

#include <fcntl.h>
#include <future>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

String FormOf(StringView name) { return FoldCase(CanonicalForm(name)); }

String Unreadable(const fs::path& path, StringView reason)
{
    return Localisation::Filled(Localisation::Txt_RaisonIllisible(),
                                {Encodings::UTF8.Decode(path.filename().native()), reason});
}

PackFacts::Tile KindOf(const fs::path& tile)
{
    // What opens only when somebody writes to it must not stop the program.
    const Descriptor file(::open(tile.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    Check(file.number >= 0);
    struct stat status = {};
    Check(::fstat(file.number, &status) == 0);
    if (!S_ISREG(status.st_mode)) throw SystemError(EINVAL);
    // The short beginning does for nearly all.
    for (const std::size_t size : {std::size_t{1} << 10, std::size_t{256} << 10}) {
        const std::string beginning = ReadAt(file.number, 0, size);
        const PackFacts::Tile kind = TileKindOf(IsArchive(beginning) ? Unpack(file.number, size) : beginning);
        if (kind != PackFacts::Tile::None) return kind;
    }
    throw IOException(0, Localisation::Txt_RaisonTuileAbimee());
}

void LookAtTile(PackFacts& facts, const fs::path& tile)
try {
    facts.tile = KindOf(tile);
} catch (const IOException& error) {
    facts.doubt = Unreadable(tile, error.Message);
}

} // namespace

std::vector<Pack> LookAtPacks(StringView text, const FolderItem& dossier, Progress& progress)
{
    std::vector<Pack> packs = PacksToPropose(text, dossier);
    progress.all = packs.size();
    const auto look = [&] {
        PackFolders folders(dossier);
        for (std::size_t i = progress.begun++; i < packs.size() && !progress.stopped; i = progress.begun++)
            if (packs[i].fitsLine) packs[i].facts = folders.LookAt(packs[i].line);
    };
    std::future<void> other = std::async(std::launch::async, look);
    look();
    other.get();
    return packs;
}

PackFolders::PackFolders(const FolderItem& dossier)
    : dossier_(dossier.Path())
{
}

PackFolders::Items PackFolders::ItemsOf(const fs::path& folder)
{
    Items items;
    for (const Item& item : fs::directory_iterator(folder))
        items.emplace(FormOf(Encodings::UTF8.Decode(item.path().filename().native())), item);
    return items;
}

/// The item of that name, or one that isn't there.
PackFolders::Item PackFolders::Find(const Item& folder, StringView name)
{
    if (!folder.is_directory()) return {};
    if (Item exact(folder.path() / Encodings::UTF8.Encode(name)); exact.exists()) return exact;
    if (!listed_.contains(folder)) listed_.emplace(folder, ItemsOf(folder));
    const Items& items = listed_.at(folder);
    const auto found = items.find(FormOf(name));
    return found == items.end() ? Item() : found->second;
}

PackFolders::Item PackFolders::FolderOf(StringView path)
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

void PackFolders::LookInside(PackFacts& facts, const Item& folder)
{
    if (const Item navigationData = Find(folder, U"Earth nav data"); navigationData.is_directory()) {
        const Items items = ItemsOf(navigationData);
        const auto airports = items.find(U"apt.dat");
        facts.airports = airports != items.end() && airports->second.is_regular_file();
        if (facts.airports) return;
        for (const auto& [name, tiles] : items)
            for (const auto& [file, tile] : tiles.is_directory() ? ItemsOf(tiles) : Items())
                if (file.ends_with(U".dsf")) return LookAtTile(facts, tile);
    }
    facts.plugins = Find(folder, U"plugins").is_directory();
    facts.library = Find(folder, U"library.txt").is_regular_file();
    if (!facts.library && !facts.plugins) facts.doubt = Localisation::Txt_RaisonRien();
}

PackFacts PackFolders::LookAt(StringView line)
try {
    PackFacts facts;
    const SceneryLine pack = LinesOf(line).front();
    if (pack.state == LineState::Other)
        facts.doubt = Localisation::Txt_RaisonPasUnPack();
    else if (const Item folder = FolderOf(pack.Rest()); folder.is_directory())
        LookInside(facts, folder);
    else
        facts.doubt = Localisation::Txt_RaisonDossAbsent();
    return facts;
} catch (const fs::filesystem_error& error) {
    PackFacts facts;
    facts.doubt = Unreadable(error.path1(), Encodings::UTF8.Decode(error.code().message()));
    return facts;
}
