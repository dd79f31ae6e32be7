#include "mainwindow/ArchiveName.h"
#include "tests/mainwindow/MainWindowTest.h"

#include <algorithm>
#include <sys/mount.h>

namespace {

namespace fs = std::filesystem;

const String noPack = U"Le TextArea ne contient pas de scenery_packs.[Continuer][Annuler]";
const String noTarget = U"Impossible de localiser le dossier où sauvegarder le fichier.[Ok]";
const String noArchiveFolder =
    U"Impossible de localiser le dossier où sauvegarder l'ancien fichier.[Continuer][Annuler]";
const String noOldFile = U"Il n'y a pas d'ancien fichier à sauvegarder.[Continuer][Annuler]";
const String copyFailed = U"Erreur pendant la copie de l'ancien (précédent) scenery_packs.[Continuer][Annuler]";
const String writeFailed = U"Erreur pendant l'écriture du nouveau scenery_packs.[Ok]";
/// Stands for the question that names the file.
const String sure = U"sure";

/// A window that shows a text over a file of another, with an archive folder.
class Saving : public MainWindow {
protected:
    Saving()
    {
        target = folder.File("Custom Scenery/packs.é.ini", "old");
        archiveFolder = folder.Folder("archives");
        Open();
        Choose(window->TextFieldSpack, target);
        Choose(window->TextFieldArchiv, archiveFolder);
        window->ChBoxArchiv.SetValue(true);
        window->TextAreaAff.SetText(U"new");
    }

    /// Saves, and checks what was asked, what is in the file then, and how many archives there are.
    void Save(const std::vector<String>& asked, std::string_view content, std::ptrdiff_t archives)
    {
        probe.Asked.clear();
        probe.Sounds.clear();
        probe.Beeps = 0;
        window->BtnSave_Pressed();
        std::vector<String> wanted = asked;
        std::ranges::replace(wanted, sure, Question());
        EXPECT_EQ(probe.Asked, wanted);
        EXPECT_EQ(probe.Beeps, std::ssize(wanted)) << "each question beeps once";
        EXPECT_EQ(folder.Content(target), content);
        std::ptrdiff_t found = 0;
        std::error_code error;
        for (const fs::path& archive : fs::directory_iterator(archiveFolder, error)) {
            EXPECT_EQ(folder.Content(archive), "old");
            ++found;
        }
        EXPECT_EQ(found, archives);
        const bool written = asked.back() == sure && content != "old";
        EXPECT_EQ(probe.Sounds, written ? std::vector<String>{U"Msg.wav"} : std::vector<String>{});
    }

    [[nodiscard]] String Question() const
    {
        return U"Êtes-vous sûr de vouloir enregistrer “Spack Après” comme “" + window->TextFieldSpack.Text() +
               U"” ?[Sauv fichier][Annuler]";
    }

    fs::path target, archiveFolder;
};

TEST_F(Saving, EveryCharacterOfTheTextIsWritten)
{
    const String text = U"I\u00A0\t\r\né e\u0301 😀 \u2028\u2029\uFDD0\n\n ";
    window->TextAreaAff.SetText(text);
    Save({sure}, Encodings::UTF8.Encode(text), 1);
    EXPECT_EQ(window->TextAreaAff.Text(), text);
}

TEST_F(Saving, WithoutArchiveItsFolderIsNotLookedAt)
{
    window->ChBoxArchiv.SetValue(false);
    window->TextFieldArchiv.SetText(U"nowhere");
    Save({sure}, "new", 0);
}

TEST_F(Saving, NoAnswerButTheFirstWrites)
{
    probe.Answers = {2};
    Save({sure}, "old", 0);
}

TEST_F(Saving, ATextThatIsNoneIsAskedAbout)
{
    window->TextAreaAff.SetText(U"### error ### empty");
    probe.Answers = {0};
    Save({noPack}, "old", 0);
    Save({noPack, sure}, "### error ### empty", 1);
}

TEST_F(Saving, ATargetThatIsNoPlaceEndsIt)
{
    window->TextFieldSpack.SetText(U"No such volume:file");
    Save({noTarget}, "old", 0);
}

TEST_F(Saving, AMissingArchiveFolderLeavesTheChoice)
{
    fs::remove(archiveFolder);
    probe.Answers = {2};
    Save({noArchiveFolder}, "old", 0);
    Save({noArchiveFolder, sure}, "new", 0);
}

TEST_F(Saving, AnArchiveFolderThatIsAFileIsNone)
{
    fs::remove(archiveFolder);
    folder.File("archives", "a file");
    Save({noArchiveFolder, sure}, "new", 0);
}

TEST_F(Saving, AFileThatIsNotThereYetIsMade)
{
    fs::remove(target);
    probe.Answers = {2};
    Save({noOldFile}, "", 0);
    Save({noOldFile, sure}, "new", 0);
}

TEST_F(Saving, AnArchiveThatCanNotBeMadeIsNeverPassedInSilence)
{
    // A pipe can't be copied, and neither can it be written.
    fs::remove(target);
    ASSERT_EQ(mkfifo(target.c_str(), 0600), 0);
    probe.Answers = {1, 2};
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked, (std::vector<String>{Question(), copyFailed}));
    probe.Asked.clear();
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked, (std::vector<String>{Question(), copyFailed, writeFailed}));
    EXPECT_TRUE(fs::is_fifo(target));
}

TEST_F(Saving, AnArchiveIsNeverOverwritten)
{
    window->BtnSave_Pressed();
    const fs::path archive = fs::directory_iterator(archiveFolder)->path();
    EXPECT_THROW(FolderItem(target).CopyTo(FolderItem(archive)), std::exception);
    EXPECT_EQ(folder.Content(archive), "old");
}

TEST_F(Saving, AReadOnlyFileAndAMissingFolderEndInTheWriteError)
{
    fs::permissions(target, fs::perms::owner_read);
    Save({sure, writeFailed}, "old", 1);
    fs::remove_all(target.parent_path());
    probe.Asked.clear();
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked, std::vector<String>{noTarget});
}

TEST_F(Saving, ALinkStaysOneAndPermissionsStay)
{
    const fs::path real = folder.File("real.ini", "old");
    fs::remove(target);
    fs::create_symlink(real, target);
    fs::permissions(real, fs::perms::owner_all);
    Save({sure}, "new", 1);
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_EQ(folder.Content(real), "new");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_all);
}

/// Mounts a file system of 16 KB at a folder for the time of a test; false where that isn't allowed.
class SmallDisk {
public:
    explicit SmallDisk(fs::path place)
        : place_(std::move(place))
    {
    }
    ~SmallDisk()
    {
        if (mounted) umount2(place_.c_str(), MNT_DETACH);
    }
    const fs::path place_;
    const bool mounted = mount("tmpfs", place_.c_str(), "tmpfs", 0, "size=16k") == 0;
};

TEST_F(Saving, AFullDiskLeavesTheOldFileAsItWas)
{
    const SmallDisk disk(target.parent_path());
    if (!disk.mounted) GTEST_SKIP() << "a small file system needs the right to mount one";
    folder.File(target, "old");
    window->TextAreaAff.SetText(String(100'000, U'x'));
    Save({sure, writeFailed}, "old", 1);
}

TEST_F(Saving, AFullArchiveFolderKeepsNoHalfCopy)
{
    const SmallDisk disk(archiveFolder);
    if (!disk.mounted) GTEST_SKIP() << "a small file system needs the right to mount one";
    folder.File(target, std::string(100'000, 'x'));
    probe.Answers = {1, 2};
    Save({sure, copyFailed}, std::string(100'000, 'x'), 0);
}

TEST(ArchiveNames, TheMomentStandsBeforeTheExtension)
{
    const DateTime moment{2024, 3, 5, 9, 5, 2};
    EXPECT_EQ(ArchiveName(U"scenery_packs.ini", U".ini", moment), U"scenery_packs_2024-03-05_09'05'02.ini");
    EXPECT_EQ(ArchiveName(U".ini", U"", moment), U".ini_2024-03-05_09'05'02");
    EXPECT_EQ(ArchiveName(U"e\u0301.e\u0301", U".e\u0301", {12, 12, 31, 23, 59, 59}), U"é_0012-12-31_23'59'59.é");
}

} // namespace
