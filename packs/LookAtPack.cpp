#include "packs/LookAtPack.h"

#include "localisation/Localisation.h"
#include "packs/Tile.h"
#include "packs/Unpacking.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"
#include "toolkit/core/TextEncoding.h"

#include <fcntl.h>
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
    PackFacts::Tile kind = PackFacts::Tile::None;
    // The short beginning does for nearly all.
    for (const std::size_t size : {std::size_t{4} << 10, std::size_t{256} << 10}) {
        const std::string beginning = ReadAt(file.number, 0, size);
        kind = TileKindOf(IsArchive(beginning) ? Unpack(file.number, size) : beginning);
        if (kind != PackFacts::Tile::None) break;
    }
    return kind;
}

void LookAtTile(PackFacts& facts, const fs::path& tile)
try {
    facts.tile = KindOf(tile);
    if (facts.tile == PackFacts::Tile::None) facts.doubt = Localisation::Txt_RaisonTuileAbimee();
} catch (const IOException& error) {
    facts.doubt = Unreadable(tile, error.Message);
}

} // namespace

PackFolders::PackFolders(const FolderItem& dossier)
    : dossier_(dossier.Path())
{
}

PackFolders::Items PackFolders::ItemsOf(const fs::path& folder)
{
    Items items;
    for (const fs::directory_entry& item : fs::directory_iterator(folder))
        items.emplace(FormOf(Encodings::UTF8.Decode(item.path().filename().native())), item);
    return items;
}

std::optional<fs::directory_entry> PackFolders::Find(const fs::path& folder, StringView name)
{
    if (fs::directory_entry exact(folder / Encodings::UTF8.Encode(name)); exact.exists()) return exact;
    if (!listed_.contains(folder)) listed_.emplace(folder, ItemsOf(folder));
    const Items& items = listed_.at(folder);
    const auto found = items.find(FormOf(name));
    return found == items.end() ? std::nullopt : std::optional(found->second);
}

/// The folder of a pack, or nothing where none is there.
std::optional<fs::path> PackFolders::FolderOf(StringView path)
{
    std::optional<fs::directory_entry> folder(dossier_);
    if (BeginsWith(path, CustomScenery))
        path.remove_prefix(CustomScenery.size());
    else
        folder.emplace(path.starts_with(U'/') ? "/" : dossier_.parent_path());
    for (const StringView name : Split(path, U"/"))
        if (folder && !name.empty()) folder = Find(*folder, name);
    return folder && folder->is_directory() ? std::optional(folder->path()) : std::nullopt;
}

void PackFolders::LookInside(PackFacts& facts, const fs::path& folder)
{
    if (const auto navigationData = Find(folder, U"Earth nav data"); navigationData && navigationData->is_directory()) {
        const Items items = ItemsOf(*navigationData);
        facts.airports = items.contains(U"apt.dat");
        if (facts.airports) return;
        for (const auto& [name, tiles] : items)
            for (const auto& [file, tile] : tiles.is_directory() ? ItemsOf(tiles) : Items())
                if (file.ends_with(U".dsf")) return LookAtTile(facts, tile);
    }
    const auto plugins = Find(folder, U"plugins");
    facts.plugins = plugins && plugins->is_directory();
    facts.library = Find(folder, U"library.txt").has_value();
    if (!facts.library && !facts.plugins) facts.doubt = Localisation::Txt_RaisonRien();
}

PackFacts PackFolders::LookAt(StringView line)
try {
    PackFacts facts;
    const SceneryLine pack = LinesOf(line).front();
    if (pack.state == LineState::Other)
        facts.doubt = Localisation::Txt_RaisonPasUnPack();
    else if (const std::optional<fs::path> folder = FolderOf(pack.Rest()))
        LookInside(facts, *folder);
    else
        facts.doubt = Localisation::Txt_RaisonDossAbsent();
    return facts;
} catch (const fs::filesystem_error& error) {
    PackFacts facts;
    facts.doubt = Unreadable(error.path1(), Encodings::UTF8.Decode(error.code().message()));
    return facts;
}
