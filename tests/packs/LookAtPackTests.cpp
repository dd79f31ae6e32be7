#include "packs/LookAtPack.h"
#include "packs/Tile.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/core/TextInputStream.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using namespace std::string_literals;

std::string Number(std::size_t number)
{
    std::string bytes;
    for (const int shift : {0, 8, 16, 24})
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

std::string Atom(const std::string& name, const std::string& content)
{
    return name + Number(content.size() + 8) + content;
}

std::string Dsf(const std::string& atoms) { return "XPLNEDSF" + Number(1) + atoms; }

std::string DsfWith(const std::string& properties) { return Dsf(Atom("DAEH", Atom("PORP", properties))); }

const std::string overlay = DsfWith("sim/west\0008\0sim/overlay\0001\0"s);
const std::string base = DsfWith("sim/west\0008\0"s);

std::string Packed(const char* name) { return TextInputStream::Open(FolderItem(fs::path(PACKS) / name)).ReadAll(); }

const std::string packedOverlay = Packed("overlay.7z");

TEST(Tile, TileKindOf)
{
    std::string nested;
    for (int depth = 0; depth < 10'000; ++depth)
        nested = Atom("DAEH", nested);
    const std::tuple<const char*, std::string, PackFacts::Tile> rows[] = {
        {"an overlay", overlay + "GEOD and all the rest", PackFacts::Tile::Overlay},
        {"no property of overlays", base, PackFacts::Tile::Base},
        {"no property at all", DsfWith(""), PackFacts::Tile::Base},
        {"the property is 0", DsfWith("sim/overlay\0000\0"s), PackFacts::Tile::Base},
        {"the text as a value", DsfWith("x\0sim/overlay\0001\0y\0"s), PackFacts::Tile::Base},
        {"atoms before the head and the properties",
         Dsf(Atom("DOEG", "xyz") + Atom("DAEH", Atom("XXXX", "") + Atom("PORP", "sim/overlay\0001\0"s))),
         PackFacts::Tile::Overlay},
        {"nothing", "", PackFacts::Tile::None},
        {"another version", "XPLNEDSF" + Number(2) + overlay.substr(12), PackFacts::Tile::None},
        {"cut in the head", overlay.substr(0, overlay.size() - 1), PackFacts::Tile::None},
        {"no head", Dsf(Atom("DOEG", "")), PackFacts::Tile::None},
        {"properties outside the head", Dsf(Atom("PORP", "sim/overlay\0001\0"s)), PackFacts::Tile::None},
        {"a length below that of its own bytes", Dsf("DOEG" + Number(7)) + overlay.substr(12), PackFacts::Tile::None},
        {"a length of 4 GiB", Dsf("DAEH" + Number(0xFFFFFFFF)), PackFacts::Tile::None},
        {"a name without a value", DsfWith("sim/overlay\0"s), PackFacts::Tile::None},
        {"a value without an end", DsfWith("sim/overlay\0001"s), PackFacts::Tile::None},
        {"heads in heads", Dsf(nested), PackFacts::Tile::None},
    };
    for (const auto& [name, bytes, kind] : rows)
        EXPECT_EQ(TileKindOf(bytes), kind) << name;
}

constexpr StringView damaged = U"“a.dsf” ne peut pas être lu : tuile abîmée, ou comprimée autrement qu'en LZMA";

class Scenery : public testing::Test {
protected:
    static constexpr StringView line = U"SCENERY_PACK Custom Scenery/p/";
    TemporaryFolder temporary;
    const fs::path custom = temporary.Folder("X-Plane/Custom Scenery");

    void Put(const fs::path& file, std::string_view content = {}) const
    {
        temporary.File("X-Plane/Custom Scenery" / file, content);
    }

    /// What a line's pack is, in a word or by the doubt.
    [[nodiscard]] String Seen(StringView text) const
    {
        Progress progress;
        const String spack = String(TxtDebSpack).append(TxtEoF).append(text);
        const PackFacts facts = LookAtPacks(spack, FolderItem(custom), progress).back().facts;
        if (!facts.doubt.empty()) return facts.doubt;
        String seen = facts.airports ? U"airports " : U"";
        if (facts.tile != PackFacts::Tile::None)
            seen += facts.tile == PackFacts::Tile::Overlay ? U"overlay " : U"base ";
        if (facts.library) seen += U"library ";
        if (facts.plugins) seen += U"plugins ";
        return seen;
    }
};

TEST_F(Scenery, ShowsWhatItIs)
{
    const fs::path tiles = "p/Earth nav data/+40+000";
    const std::tuple<const char*, std::vector<std::pair<fs::path, std::string>>, StringView> rows[] = {
        {"airports",
         {{"p/Earth nav data/apt.dat", ""}, {tiles / "+42+008.dsf", "broken"}, {"p/library.txt", ""}},
         U"airports "},
        {"in another case", {{"p/EARTH NAV DATA/Apt.Dat", ""}}, U"airports "},
        {"an overlay", {{tiles / "+42+008.dsf", overlay}}, U"overlay "},
        {"a base, for all its library", {{tiles / "+42+008.DSF", base}, {"p/library.txt", ""}}, U"base "},
        {"a packed overlay", {{tiles / "+42+008.dsf", packedOverlay}}, U"overlay "},
        {"a packed overlay with a packed header", {{tiles / "a.dsf", Packed("packed_header.7z")}}, U"overlay "},
        {"the first tile by name counts",
         {{tiles / "+41+008.dsf", base}, {tiles / "+42+008.dsf", overlay}, {"p/Earth nav data/+30+000/a.txt", ""}},
         U"base "},
        {"a head of 200 kB",
         {{tiles / "a.dsf", DsfWith(std::string(200'000, 'x') + "\0x\0sim/overlay\0001\0"s)}},
         U"overlay "},
        {"a head of 300 kB", {{tiles / "a.dsf", DsfWith(std::string(300'000, 'x') + "\0x\0"s)}}, damaged},
        {"half an archive", {{tiles / "a.dsf", packedOverlay.substr(0, packedOverlay.size() / 2)}}, damaged},
        {"an archive that points nowhere",
         {{tiles / "a.dsf", std::string(packedOverlay).replace(12, 8, 8, '\xff')}},
         damaged},
        {"an empty tile", {{tiles / "a.dsf", ""}}, damaged},
        {"a library and a plugin", {{"p/library.txt", ""}, {"p/plugins/64/lin.xpl", ""}}, U"library plugins "},
        {"folders named like files",
         {{"p/Earth nav data/apt.dat/x", ""}, {"p/library.txt/x", ""}, {"p/plugins/x", ""}},
         U"plugins "},
        {"a file named like the folder of plugins", {{"p/plugins", ""}}, U"rien n'y dit ce que c'est"},
        {"nothing", {{"p/readme.txt", ""}, {"p/Earth nav data/+40+000/readme.txt", ""}}, U"rien n'y dit ce que c'est"},
        {"no folder", {{"p", ""}}, U"le dossier manque"},
    };
    for (const auto& [name, files, seen] : rows) {
        fs::remove_all(custom / "p");
        for (const auto& [file, content] : files)
            Put(file, content);
        EXPECT_EQ(Seen(U"SCENERY_PACK_DISABLED Custom Scenery/p/"), seen) << name;
    }
}

TEST_F(Scenery, LiesWhereItsLineSays)
{
    Put("../Global Scenery/g/library.txt");
    Put("../../elsewhere/Plugged/plugins/x");
    Put("e\u0301/library.txt");
    fs::create_directory_symlink("../../elsewhere/Plugged", custom / "link");
    fs::create_directories(custom / "broken");
    fs::create_symlink("nowhere", custom / "broken/library.txt");
    const String outside = FolderItem(temporary.Path()).NativePath();
    const std::tuple<const char*, String, StringView> rows[] = {
        {"beside", U"SCENERY_PACK Global Scenery/g/", U"library "},
        {"anywhere, by its path", U"SCENERY_PACK " + outside + U"/elsewhere/plugged/", U"plugins "},
        {"behind a link", U"scenery_pack custom scenery/LINK/", U"plugins "},
        {"behind a broken link", U"SCENERY_PACK Custom Scenery/broken/", U"rien n'y dit ce que c'est"},
        {"under a composed name", U"SCENERY_PACK Custom Scenery/É/", U"library "},
        {"X-Plane's own airports lie nowhere", U"SCENERY_PACK *GLOBAL_AIRPORTS*", U"le dossier manque"},
        {"no pack line", U"# Custom Scenery/link/", U"ce n'est pas une ligne de pack"},
    };
    for (const auto& [name, text, seen] : rows)
        EXPECT_EQ(Seen(text), seen) << name;
}

TEST_F(Scenery, TellsWhyATileOrAFolderCanNotBeRead)
{
    fs::permissions(temporary.Path(), fs::perms::all);
    const fs::path pack = custom / "p", tiles = pack / "Earth nav data/+40+000";
    fs::create_directories(tiles);
    const String beginning = U"“a.dsf” ne peut pas être lu : ";
    ASSERT_EQ(mkfifo((tiles / "a.dsf").c_str(), 0600), 0);
    EXPECT_EQ(Seen(line), beginning + U"Illegal seek") << "nobody waits for a pipe";
    fs::remove(tiles / "a.dsf");
    fs::create_symlink("a.dsf", tiles / "a.dsf");
    EXPECT_EQ(Seen(line), beginning + U"Too many levels of symbolic links");
    fs::remove(tiles / "a.dsf");
    Put("p/Earth nav data/+40+000/a.dsf", overlay);

    const std::pair<fs::path, String> rows[] = {
        {tiles / "a.dsf", U"a.dsf"}, {tiles, U"+40+000"}, {pack, U"Earth nav data"}};
    for (const auto& [closed, told] : rows) {
        fs::permissions(closed, fs::perms::none);
        // All is readable to root: another user looks.
        const uid_t user = geteuid();
        ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0);
        EXPECT_EQ(Seen(line), U"“" + told + U"” ne peut pas être lu : Permission denied");
        ASSERT_EQ(seteuid(user), 0);
        fs::permissions(closed, fs::perms::all);
    }
}

} // namespace
