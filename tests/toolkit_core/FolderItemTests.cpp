#include "tests/TemporaryFolder.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <cerrno>
#include <functional>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

struct FolderItems : testing::Test {
    [[nodiscard]] FolderItem Item(const fs::path& name) const { return FolderItem(folder.Path() / name); }

    const TemporaryFolder folder;
    const FolderItem top{folder.Path().string() + "/"};
};

TEST_F(FolderItems, AreFoundByName)
{
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
        (void)folder.File(onDisk);
        const FolderItem child = top.Child(wanted).value();
        EXPECT_EQ(child.Path(), folder.Path() / onDisk) << name;
        EXPECT_EQ(CanonicalForm(child.Name()), CanonicalForm(wanted)) << name;
    }
    (void)folder.File("K");
    EXPECT_EQ(top.Child(U"K")->Path(), folder.Path() / "K") << "the exact name comes first";

    for (const String& missing : {String(U"e\u0301.txt"), String(300, U'x'), String(100'000, U'é')})
        EXPECT_FALSE(top.Child(missing)->Exists() || top.Child(missing)->IsReadable());
    for (const StringView name : {StringView(), StringView(U"."), StringView(U".."), StringView(U"a/b"),
                                  StringView(U"/etc"), StringView(U"a\0b", 3)})
        EXPECT_FALSE(top.Child(name));
}

TEST_F(FolderItems, AreListedByNameWhateverTheirCase)
{
    for (const char* name : {"b", "B", "a", "\xC3\x89", "C", "\xFF", ".d"})
        (void)folder.File(name);
    fs::create_symlink("nowhere", folder.Path() / "Aa");
    std::vector<std::string> names;
    for (const FolderItem& child : top.Children())
        names.push_back(child.Path().filename());
    EXPECT_EQ(names, (std::vector<std::string>{".d", "a", "Aa", "B", "b", "C", "\xC3\x89", "\xFF"}));

    EXPECT_EQ(Item("\xFF").Name(), U"\uFFFD");
    EXPECT_EQ(FolderItem("/a b/\xC3\xA9%#?:\n\xFF").URLPath(), U"file:///a%20b/%C3%A9%25%23%3F%3A%0A%FF");
    EXPECT_FALSE(top.Child(U"\uFFFD")->Exists()) << "it could be any of several files";
    EXPECT_FALSE(Item(".d").Visible());
    EXPECT_TRUE(Item("missing").Children().empty());
}

TEST_F(FolderItems, ReplaceNothing)
{
    for (const auto& [name, content] : {std::pair("file", "new"), {"inner/file", "old"}, {"tree/leaf", "leaf"}})
        (void)folder.File(name, content);
    (void)folder.Folder("inner/tree");
    fs::create_symlink("nowhere", folder.Path() / "link");
    fs::create_directory_symlink("inner", folder.Path() / "way");
    const FolderItem inner = Item("inner");
    const std::tuple<const char*, std::function<void()>, int> refused[] = {
        {"a file", [&] { Item("file").MoveTo(inner); }, EEXIST},
        {"not even an empty folder is replaced", [&] { Item("tree").MoveTo(inner); }, EEXIST},
        {"a dead link is an item too", [&] { Item("file").MoveTo(Item("link")); }, EEXIST},
        {"a copy", [&] { Item("file").CopyTo(Item("inner/file")); }, EEXIST},
        {"a name that is taken", [&] { Item("file").Rename(U"tree"); }, EEXIST},
        {"no name", [&] { Item("file").Rename(U"../up"); }, EINVAL},
        {"nothing to move", [&] { Item("missing").MoveTo(inner); }, ENOENT},
        {"a folder isn't put into itself", [&] { inner.MoveTo(Item("inner/below")); }, EINVAL},
        {"a folder that isn't empty", [&] { Item("tree").Remove(); }, ENOTEMPTY},
        {"nothing to remove", [&] { Item("missing").Remove(); }, ENOENT},
    };
    for (const auto& [name, act, error] : refused)
        try {
            act();
            ADD_FAILURE() << name;
        } catch (const IOException& exception) {
            EXPECT_EQ(exception.ErrorNumber, error) << name;
        }
    Item("file").Rename(U"fichié");
    Item("fichi\xC3\xA9").MoveTo(Item("way"));
    EXPECT_EQ(folder.Content("inner/fichi\xC3\xA9"), "new");
    EXPECT_FALSE(Item("fichi\xC3\xA9").Exists());
    EXPECT_EQ(folder.Content("inner/file") + folder.Content("tree/leaf"), "oldleaf");
    Item("link").MoveTo(Item("inner/other"));
    EXPECT_EQ(fs::read_symlink(inner.Path() / "other"), "nowhere");
}

} // namespace
