#include "tests/TemporaryFolder.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/TextInputStream.h"
#include "toolkit/core/TextOutputStream.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace {

TEST(TextInputStream, ReadsLinesWithEveryLineEnd)
{
    const TemporaryFolder folder;
    // The reader takes the file in pieces of 65,536 bytes: a line end may lie across two of them.
    const Bytes almost(65'535, 'x');
    const std::tuple<const char*, Bytes, std::vector<Bytes>> rows[] = {
        {"an empty file has no line", "", {}},
        {"LF, CR LF and CR", "a\nb\r\nc\rd\r", {"a", "b", "c", "d"}},
        {"empty lines", "\n\r\n\r\r\n", {"", "", "", ""}},
        {"bytes are left alone", Bytes("\xEF\xBB\xBF\xFF\0 \n", 7), {Bytes("\xEF\xBB\xBF\xFF\0 ", 6)}},
        {"CR LF across two pieces", almost + "\r\nb", {almost, "b"}},
        {"CR at the end of a piece", almost + "\rb", {almost, "b"}},
    };
    for (const auto& [name, content, lines] : rows) {
        SCOPED_TRACE(name);
        const FolderItem file(folder.File("file", content));
        TextInputStream stream = TextInputStream::Open(file);
        for (const Bytes& line : lines)
            EXPECT_EQ(stream.ReadLine(), line);
        EXPECT_TRUE(stream.EndOfFile());
        EXPECT_EQ(TextInputStream::Open(file).ReadAll(), content);
    }
}

TEST(TextInputStream, OpensFilesAlone)
{
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("pipe", folder.Path() / "link to pipe");
    std::filesystem::create_symlink("circle", folder.Path() / "circle");
    std::filesystem::resize_file(folder.File("huge"), (std::uintmax_t{1} << 30) + 1);
    const std::pair<std::filesystem::path, Int64> rows[] = {
        {folder.Folder("folder"), EISDIR},
        {folder.Path() / "missing", ENOENT},
        {folder.Path() / "link to pipe", EINVAL},
        {folder.Path() / "circle", ELOOP},
        {folder.Path() / "huge", EFBIG},
        {folder.File("file") / "below", ENOTDIR},
        {"/dev/zero", EINVAL},
    };
    for (const auto& [path, error] : rows) {
        try {
            TextInputStream::Open(FolderItem(path));
            ADD_FAILURE() << path << " was opened";
        } catch (const IOException& exception) {
            EXPECT_EQ(exception.ErrorNumber, error) << path;
            EXPECT_FALSE(exception.Message.empty());
        }
    }
}

TEST(TextOutputStream, ReplacesAFileWhenItIsClosed)
{
    const TemporaryFolder folder;
    const FolderItem file(folder.File("file", "old"));
    TextOutputStream(file).Write("given up");
    EXPECT_EQ(folder.Content("file"), "old");
    TextOutputStream(FolderItem(folder.Path() / "none")).Write("given up");
    // The owner, user 7, the group, the mask, others.
    const char list[] = "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\7\0\0\0\4\0\0\0\xFF\xFF\xFF\xFF\x10\0\6\0\xFF\xFF"
                        "\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF";
    constexpr const char* name = "system.posix_acl_access";
    const bool hasLists = setxattr(file.Path().c_str(), name, list, sizeof(list) - 1, 0) == 0;
    TextOutputStream stream(file);
    stream.Write("new");
    stream.Close();
    file.CopyTo(FolderItem(folder.Path() / "copy"));
    EXPECT_EQ(folder.Content("file") + folder.Content("copy"), "newnew");
    EXPECT_EQ(FolderItem(folder.Path()).Children().size(), 2U) << "something is left over";
    for (const char* kept : {"file", "copy"})
        EXPECT_TRUE(!hasLists || getxattr((folder.Path() / kept).c_str(), name, nullptr, 0) == sizeof(list) - 1)
            << kept;
}

} // namespace
