#include "mainwindow/ArchiveName.h"
#include "tests/mainwindow/MainWindowTest.h"

#include <algorithm>
#include <sys/mount.h>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const String noPack = U"Le TextArea ne contient pas de scenery_packs.[Annuler][Continuer]";
const String noTarget = U"Impossible de localiser le dossier où sauvegarder le fichier.[Ok]";
const String noArchiveFolder =
    U"Impossible de localiser le dossier où sauvegarder l'ancien fichier.[Continuer][Annuler]";
const String noOldFile = U"Il n'y a pas d'ancien fichier à sauvegarder.[Continuer][Annuler]";
const String copyFailed = U"Erreur pendant la copie de l'ancien (précédent) scenery_packs.[Continuer][Annuler]";
const String writeFailed = U"Erreur pendant l'écriture du nouveau scenery_packs.[Ok]";
const std::string fresh = header + "new"s;
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
        window->TextAreaAff.SetText(Encodings::UTF8.Decode(fresh));
    }

    /// Saves, and checks what was asked, what is in the file then, and how many archives there are.
    void Save(const std::vector<String>& asked, std::string_view content, std::size_t archives)
    {
        probe.Asked.clear();
        probe.Sounds.clear();
        probe.Beeps = 0;
        window->BtnSave_Pressed();
        std::vector<String> wanted = asked;
        std::ranges::replace(wanted, sure, Question());
        CutReason();
        EXPECT_EQ(probe.Asked, wanted);
        EXPECT_EQ(probe.Beeps, std::ssize(wanted)) << "each question beeps once";
        EXPECT_EQ(folder.Content(target), content);
        EXPECT_EQ(Archives(), std::vector<std::string>(archives, "old"));
        const bool written = asked.back() == sure && content != "old";
        EXPECT_EQ(probe.Sounds, written ? std::vector<String>{U"Msg.wav"} : std::vector<String>{});
    }

    /// Cuts off what follows the message of a failed write: the path and the reason.
    void CutReason()
    {
        String& last = probe.Asked.back();
        const std::size_t reason = last.find(U'\n');
        if (!last.starts_with(U"Erreur pendant l'écriture")) return;
        EXPECT_EQ(last.find(target.u32string() + U"\n"), reason + 1);
        last.erase(reason, last.find(U'[') - reason);
    }

    [[nodiscard]] static String Changed(const fs::path& file)
    {
        return U"“" + Fncts::AbsPath_f(FolderItem(file), false) +
               U"” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements."
               U"[Annuler][Sauv fichier]";
    }

    /// What the archives hold, in an order of its own.
    [[nodiscard]] std::vector<std::string> Archives() const
    {
        std::vector<std::string> contents;
        std::error_code error;
        for (const fs::path& archive : fs::directory_iterator(archiveFolder, error))
            contents.push_back(folder.Content(archive));
        return contents;
    }

    [[nodiscard]] String Question(StringView view = U"Spack Après") const
    {
        const DesktopTextField& field = view == U"Spack Modèle" ? window->TextFieldMod1 : window->TextFieldSpack;
        return U"Êtes-vous sûr de vouloir enregistrer “" + String(view) + U"” comme “" + field.Text() +
               U"” ?[Sauv fichier][Annuler]";
    }

    fs::path target, archiveFolder;
};

TEST_F(Saving, EachViewGoesToItsFileAsItWasRead)
{
    const std::string pack = "SCENERY_PACK é 😀 	  ﷐"s + '\0', model = header + pack + "\n\n ",
                      source = header + ("SCENERY_PACK é\n" + pack);
    const fs::path modelFile = folder.File("model.ini", model);
    folder.File(target, source);
    Choose(window->TextFieldMod1, modelFile);
    Run();
    window->ChBoxArchiv.SetValue(false);
    window->RadGrpSrc.SetSelectedIndex(1);
    const String awkward = window->TextAreaAff.Text() + U"\r\n\n ";
    window->TextAreaAff.SetText(awkward);
    const std::string views[] = {model, source, Encodings::UTF8.Encode(awkward)};
    for (const int view : {0, 1, 2}) {
        View(view);
        folder.File(modelFile, "old");
        folder.File(target, "old");
        probe.Answers = {1, 0};
        window->BtnSave_Pressed();
        EXPECT_EQ(folder.Content(modelFile) + folder.Content(target), "oldold") << "no answer but the last writes";
        probe.Asked.clear();
        probe.Answers = {1, 3};
        window->BtnSave_Pressed();
        EXPECT_EQ(folder.Content(modelFile), view == 0 ? model : "old");
        EXPECT_EQ(folder.Content(target), view == 0 ? "old" : views[view]);
        const String question = Question(window->PopMenuAff.SelectedRowText());
        EXPECT_EQ(probe.Asked, (std::vector{question, Changed(view == 0 ? modelFile : target)}));
        probe.Asked.clear();
        window->BtnSave_Pressed();
        EXPECT_EQ(probe.Asked, std::vector{question}) << "what was written here is no surprise";
    }
    fs::remove(target);
    probe.Asked.clear();
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked.size(), 1U) << "nothing is there to be lost";
}

TEST_F(Saving, ATextThatLostCharactersIsAskedAboutWhereverTheyWent)
{
    const std::string good = header + "SCENERY_PACK d'été/\n"s,
                      bad = header + "SCENERY_PACK L\xE9man/\nSCENERY_PACK d'été/\n"s;
    window->ChBoxArchiv.SetValue(false);
    Choose(window->TextFieldMod1, folder.Path() / "model.ini");
    for (const auto& [model, source, asked] : {std::tuple(good, good, std::array{false, false, false}),
                                               {bad, good, {true, false, true}},
                                               {good, bad, {false, true, true}}}) {
        folder.File("model.ini", model);
        folder.File(target, source);
        probe.Asked.clear();
        Run();
        const String lost = U"“" + (model == bad ? window->TextFieldMod1 : window->TextFieldSpack).Text() +
                            U"” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été "
                            U"retirés, dans 2 ligne(s). La première est la ligne 4 :\nSCENERY_PACK L\uFFFDman/[Ok]";
        EXPECT_EQ(std::ranges::count(probe.Asked, lost), model == source ? 0 : 1);
        for (const int view : {0, 1, 2}) {
            View(view);
            probe.Asked.clear();
            probe.Answers = {2};
            if (asked[static_cast<std::size_t>(view)]) probe.Answers.push_front(1);
            const std::size_t questions = probe.Answers.size();
            window->BtnSave_Pressed();
            EXPECT_EQ(probe.Asked.size(), questions) << view;
            EXPECT_EQ(probe.Asked.back().ends_with(U"L'enregistrer quand même ?[Annuler][Sauv fichier]"),
                      questions == 2);
            EXPECT_EQ(folder.Content(target), source);
        }
    }
}

TEST_F(Saving, WithoutArchiveItsFolderIsNotLookedAt)
{
    window->ChBoxArchiv.SetValue(false);
    window->TextFieldArchiv.SetText(U"nowhere");
    Save({sure}, fresh, 0);
}

TEST_F(Saving, NoAnswerButTheFirstWrites)
{
    probe.Answers = {2};
    Save({sure}, "old", 0);
}

TEST_F(Saving, ATextThatIsNoneIsAskedAbout)
{
    window->TextAreaAff.SetText(U"### error ### empty");
    Save({noPack}, "old", 0);
    probe.Answers = {3, 1};
    Save({noPack, sure}, "### error ### empty", 1);
    window->TextAreaAff.SetText(U"\n" + Encodings::UTF8.Decode(fresh));
    Save({noPack}, "### error ### empty", 1);
}

TEST_F(Saving, AMissingArchiveFolderLeavesTheChoice)
{
    fs::remove(archiveFolder);
    probe.Answers = {2};
    Save({noArchiveFolder}, "old", 0);
    Save({noArchiveFolder, sure}, fresh, 0);
}

TEST_F(Saving, AnArchiveFolderThatIsAFileIsNone)
{
    fs::remove(archiveFolder);
    folder.File("archives", "a file");
    Save({noArchiveFolder, sure}, fresh, 0);
}

TEST_F(Saving, AFileThatIsNotThereYetIsMade)
{
    fs::remove(target);
    probe.Answers = {2};
    Save({noOldFile}, "", 0);
    Save({noOldFile, sure}, fresh, 0);
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
    CutReason();
    EXPECT_EQ(probe.Asked, (std::vector<String>{Question(), copyFailed, writeFailed}));
    EXPECT_TRUE(fs::is_fifo(target));
}

TEST_F(Saving, AnArchiveIsNeverOverwritten)
{
    std::vector<std::string> before;
    // Two saves in one second, after some tries at the most, want one name.
    for (int save = 0; save < 100 && (probe.Asked.empty() || probe.Asked.back() != copyFailed); ++save) {
        before = Archives();
        folder.File(target, std::to_string(save));
        if (save > 0) probe.Answers = {1, 3}; // the file has changed
        window->BtnSave_Pressed();
    }
    EXPECT_EQ(probe.Asked.back(), copyFailed);
    EXPECT_EQ(Archives(), before);
    EXPECT_EQ(folder.Content(target), fresh) << "the user went on";
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
    Save({sure}, fresh, 1);
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_EQ(folder.Content(real), fresh);
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

TEST_F(Saving, ATextThatDoesNotFitLeavesTheOldFileAsItWas)
{
    rlimit usual = {};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small{8192, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    window->TextAreaAff.SetText(Encodings::UTF8.Decode(fresh) + String(100'000, U'x'));
    Save({sure, writeFailed}, "old", 1);
    setrlimit(RLIMIT_FSIZE, &usual);
    fs::remove_all(archiveFolder);
    folder.Folder("archives");

    const SmallDisk disk(target.parent_path());
    if (!disk.mounted) GTEST_SKIP() << "a small file system needs the right to mount one";
    folder.File(target, "old");
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
