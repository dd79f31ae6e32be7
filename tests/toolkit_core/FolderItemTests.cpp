#include "tests/TemporaryFolder.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

Int64 ErrorOf(const std::function<void()>& action)
try {
    action();
    return 0;
} catch (const IOException& exception) {
    return exception.ErrorNumber;
}

TEST(FolderItem, FindsItsChildrenByName)
{
    const TemporaryFolder folder;
    const std::tuple<const char*, fs::path, String> rows[] = {
        {"a colon", "A:B", U"A:B"},
        {"a line end", "a\nb", U"a\nb"},
        {"a composed letter", "\xC3\xA9", U"é"},
        {"a decomposed letter by its composed form", "e\xCC\x81t", U"ét"},
        {"a composed letter by its decomposed form", "\xC3\xA0t", U"a\u0300t"},
        {"a Kelvin sign by the letter that it is", "\xE2\x84\xAA", U"K"},
        {"a name of 255 bytes", std::string(255, 'x'), String(255, U'x')},
    };
    for (const auto& [name, onDisk, wanted] : rows) {
        const fs::path path = folder.File(onDisk);
        const FolderItem child = FolderItem(folder.Path()).Child(wanted).value();
        EXPECT_EQ(child.Path(), path) << name;
        EXPECT_EQ(CanonicalForm(child.Name()), CanonicalForm(wanted)) << name;
        EXPECT_EQ(child.Parent()->Path(), folder.Path()) << name;
    }
    (void)folder.File("K");
    EXPECT_EQ(FolderItem(folder.Path()).Child(U"K")->Path(), folder.Path() / "K") << "the exact name comes first";
}

TEST(FolderItem, GivesAMissingChildItsPlace)
{
    const TemporaryFolder folder;
    const FolderItem item(folder.Path().string() + "/");
    EXPECT_EQ(item.Child(U"e\u0301.txt")->Path(), folder.Path() / "e\xCC\x81.txt");
    EXPECT_FALSE(item.Child(U"e\u0301.txt")->Exists());
    EXPECT_FALSE(item.Child(String(300, U'x'))->Exists());
    EXPECT_FALSE(item.Child(String(100'000, U'é'))->IsReadable());
    EXPECT_FALSE(FolderItem(folder.File("file")).Child(U"below")->Exists());
    for (const StringView name : {U"", U".", U"..", U"a/b", U"/etc"})
        EXPECT_FALSE(item.Child(name));
    EXPECT_FALSE(item.Child(StringView(U"a\0b", 3)));
}

TEST(FolderItem, ListsItsChildrenByNameWhateverTheirCase)
{
    const TemporaryFolder folder;
    for (const char* name : {"b", "B", "a", "\xC3\x89", "C", "\xFF", ".d"})
        (void)folder.File(name);
    fs::create_symlink("nowhere", folder.Path() / "Aa");
    std::vector<std::string> names;
    for (const FolderItem& child : FolderItem(folder.Path()).Children())
        names.push_back(child.Path().filename());
    EXPECT_EQ(names, (std::vector<std::string>{".d", "a", "Aa", "B", "b", "C", "\xC3\x89", "\xFF"}));

    EXPECT_EQ(FolderItem(folder.Path() / "\xFF").Name(), U"\uFFFD");
    EXPECT_EQ(FolderItem("/a b/\xC3\xA9%#?:\n\xFF").URLPath(), U"file:///a%20b/%C3%A9%25%23%3F%3A%0A%FF");
    EXPECT_FALSE(FolderItem(folder.Path()).Child(U"\uFFFD")->Exists()) << "it could be any of several files";
    EXPECT_FALSE(FolderItem(folder.Path() / ".d").Visible());
    EXPECT_TRUE(FolderItem(folder.Path() / "missing").Children().empty());
}

TEST(FolderItem, TellsAnAliasFromWhatItLeadsTo)
{
    const TemporaryFolder temporary;
    const fs::path target = temporary.Folder("real/target");
    const FolderItem folder(temporary.Folder("links"));
    const std::tuple<const char*, fs::path, fs::path> rows[] = {
        {"a link to a folder", target, target},
        {"a link by a way of its own", "../real/./target/", target},
        {"a link to a link", "a link to a folder", target},
        {"a dead link", "../real/nothing", temporary.Path() / "real/nothing"},
        {"a link to a dead link", "a dead link", temporary.Path() / "real/nothing"},
        {"a circle", "a circle", temporary.Path() / "links/a circle"},
    };
    for (const auto& [name, leadsTo, destination] : rows) {
        SCOPED_TRACE(name);
        fs::create_symlink(leadsTo, folder.Path() / name);
        const String wanted = Encodings::UTF8.Decode(name);
        const FolderItem alias = folder.Child(wanted, false).value();
        EXPECT_EQ(alias.Path(), folder.Path() / name);
        EXPECT_TRUE(alias.IsAlias() && alias.Exists() && !alias.IsFolder());
        EXPECT_EQ(folder.Child(wanted)->Path(), destination);
        EXPECT_EQ(folder.Child(wanted)->IsFolder(), destination == target);
    }
}

TEST(FolderItem, MovesWithoutReplacingAnything)
{
    const TemporaryFolder folder;
    const FolderItem inner(folder.Folder("inner"));
    (void)folder.File("file", "new");
    (void)folder.File("inner/file", "old");
    (void)folder.File("tree/leaf", "leaf");
    (void)folder.Folder("inner/tree");
    fs::create_symlink("nowhere", folder.Path() / "link");
    fs::create_directory_symlink("inner", folder.Path() / "way");
    const auto item = [&](const char* name) { return FolderItem(folder.Path() / name); };

    EXPECT_EQ(ErrorOf([&] { item("file").MoveTo(inner); }), EEXIST);
    EXPECT_EQ(ErrorOf([&] { item("tree").MoveTo(inner); }), EEXIST) << "not even an empty folder is replaced";
    EXPECT_EQ(ErrorOf([&] { item("file").MoveTo(item("link")); }), EEXIST) << "a dead link is an item too";
    EXPECT_EQ(ErrorOf([&] { item("file").Rename(U"tree"); }), EEXIST);
    EXPECT_EQ(ErrorOf([&] { item("file").Rename(U"../up"); }), EINVAL);
    EXPECT_EQ(ErrorOf([&] { item("missing").MoveTo(inner); }), ENOENT);
    EXPECT_EQ(ErrorOf([&] { inner.MoveTo(item("inner/below")); }), EINVAL) << "a folder isn't put into itself";
    EXPECT_EQ(folder.Content("file"), "new");
    EXPECT_EQ(folder.Content("inner/file"), "old");
    EXPECT_EQ(folder.Content("tree/leaf"), "leaf");

    item("file").Rename(U"fichié");
    item("fichi\xC3\xA9").MoveTo(item("way"));
    EXPECT_EQ(folder.Content("inner/fichi\xC3\xA9"), "new");
    EXPECT_FALSE(item("fichi\xC3\xA9").Exists());
    item("tree").MoveTo(item("inner/other"));
    EXPECT_EQ(folder.Content("inner/other/leaf"), "leaf");
    item("link").MoveTo(inner);
    EXPECT_EQ(fs::read_symlink(inner.Path() / "link"), "nowhere");
    EXPECT_FALSE(item("link").Exists());
}

TEST(FolderItem, IsMadeAndRemoved)
{
    const TemporaryFolder folder;
    const FolderItem deep(folder.Path() / "a/b/c");
    deep.CreateFolder();
    EXPECT_TRUE(deep.IsFolder());
    EXPECT_EQ(ErrorOf([&] { FolderItem(folder.Path() / "a").Remove(); }), ENOTEMPTY);
    deep.Remove();
    EXPECT_EQ(ErrorOf([&] { deep.Remove(); }), ENOENT);
    fs::create_symlink(folder.File("file"), folder.Path() / "link");
    FolderItem(folder.Path() / "link").Remove();
    EXPECT_TRUE(fs::exists(folder.Path() / "file")) << "an alias goes alone";
}

} // namespace
