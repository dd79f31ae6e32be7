#include "packs/LookAtPack.h"

#include "localisation/Localisation.h"
#include "packs/Tile.h"
#include "packs/Unpacking.h"
#include "toolkit/core/TextEncoding.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The item of that name, in whatever case, or nothing.
std::optional<FolderItem> Find(const FolderItem& folder, StringView name)
{
    if (const FolderItem exact(folder.Path() / Encodings::UTF8.Encode(name)); exact.Exists()) return exact;
    const String wanted = CanonicalForm(name);
    for (const FolderItem& child : folder.Children())
        if (SameText(CanonicalForm(child.Name()), wanted)) return child;
    return {};
}

/// The folder of a pack, or nothing where none is there.
std::optional<FolderItem> FolderOf(StringView path, const FolderItem& dossier)
{
    std::optional<FolderItem> folder = dossier;
    if (BeginsWith(path, CustomScenery))
        path.remove_prefix(CustomScenery.size());
    else
        folder = path.starts_with(U'/') ? FolderItem("/") : dossier.Parent();
    for (const StringView name : Split(path, U"/"))
        if (folder && !name.empty()) folder = Find(*folder, name);
    return folder && folder->LeadsToFolder() ? folder : std::nullopt;
}

/// The first tile by name in the first folder that has any.
std::optional<FolderItem> FirstTile(const FolderItem& navigationData)
{
    for (const FolderItem& folder : navigationData.Children())
        for (const FolderItem& file : folder.Children())
            if (SameText(Encodings::UTF8.Decode(file.Path().extension().native()), U".dsf")) return file;
    return {};
}

/// The first bytes of a file, unpacked if it is an archive.
std::string Beginning(int file, std::size_t size)
{
    std::string bytes(size, '\0');
    const ssize_t count = ::pread(file, bytes.data(), size, 0);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    if (!IsArchive(bytes)) return bytes;
    ::lseek(file, 0, SEEK_SET);
    return Unpack(file, size);
}

/// Sets the kind of the tile, or the doubt.
void ReadTile(PackFacts& facts, int file)
{
    struct stat status {};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
        facts.doubt = Localisation::Txt_RaisonTuileIllisible();
        return;
    }
    // The short beginning does for nearly all.
    TileKind kind = TileKind::Damaged;
    for (const std::size_t size : {std::size_t{4} << 10, std::size_t{256} << 10})
        if (kind == TileKind::Damaged) kind = TileKindOf(Beginning(file, size));
    if (kind != TileKind::Damaged)
        facts.tile = kind == TileKind::Overlay ? PackFacts::Tile::Overlay : PackFacts::Tile::Base;
    else
        facts.doubt = CanUnpack() ? Localisation::Txt_RaisonTuileAbimee() : Localisation::Txt_RaisonSansArchive();
}

void LookInside(PackFacts& facts, const FolderItem& folder)
{
    const std::optional<FolderItem> navigationData = Find(folder, U"Earth nav data");
    facts.airports = navigationData && Find(*navigationData, U"apt.dat");
    if (facts.airports) return;
    if (const auto tile = navigationData ? FirstTile(*navigationData) : std::nullopt) {
        // What opens only when somebody writes to it must not stop the program.
        const int file = ::open(tile->Path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        ReadTile(facts, file);
        if (file >= 0) ::close(file);
        return;
    }
    const std::optional<FolderItem> plugins = Find(folder, U"plugins");
    facts.plugins = plugins && plugins->LeadsToFolder();
    facts.library = Find(folder, U"library.txt").has_value();
    if (!facts.library && !facts.plugins) facts.doubt = Localisation::Txt_RaisonRien();
}

} // namespace

PackFacts LookAtPack(StringView line, const FolderItem& dossier)
{
    PackFacts facts;
    const SceneryLine pack = LinesOf(line).front();
    if (pack.state == LineState::Other)
        facts.doubt = Localisation::Txt_RaisonPasUnPack();
    else if (const std::optional<FolderItem> folder = FolderOf(pack.Rest(), dossier))
        LookInside(facts, *folder);
    else
        facts.doubt = Localisation::Txt_RaisonDossAbsent();
    return facts;
}
