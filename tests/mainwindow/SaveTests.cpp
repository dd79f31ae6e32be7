#include "tests/mainwindow/MainWindowTest.h"

#include <algorithm>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const String noPack = U"Le TextArea ne contient pas de scenery_packs.[Annuler][Continuer]";
const String noArchiveFolder =
    U"Impossible de localiser le dossier où sauvegarder l'ancien fichier.[Annuler][Continuer]";
const String noOldFile = U"Il n'y a pas d'ancien fichier à sauvegarder.[Continuer][Annuler]";
const String copyFailed = U"Erreur pendant la copie de l'ancien (précédent) scenery_packs.\n";
const std::string fresh = header + "new"s;
/// Stands for the question that names the file.
const String sure = U"sure";

/// A window that shows a text over a file of another, with an archive folder.
class Saving : public MainWindow {
protected:
    Saving()
    {
        Open();
        Reset("files");
    }

    /// Begins anew with files that were never read.
    void Reset(const fs::path& place)
    {
        target = folder.File(place / "Custom Scenery/packs.é.ini", "old");
        archiveFolder = folder.Folder(place / "archives");
        Choose(window->TextFieldSpack, target);
        Choose(window->TextFieldArchiv, archiveFolder);
        window->ChBoxArchiv.SetValue(true);
        window->TextAreaAff.SetText(Encodings::UTF8.Decode(fresh));
    }

    /// Saves, and checks what was asked, what is in the file then, and how many archives there are.
    void Save(const std::vector<String>& asked, std::string_view content, std::size_t archives)
    {
        SCOPED_TRACE(target);
        probe.Asked.clear();
        probe.Sounds.clear();
        probe.Beeps = 0;
        window->BtnSave_Pressed();
        std::vector<String> wanted = asked;
        std::ranges::replace(wanted, sure, Question());
        EXPECT_EQ(probe.Asked, wanted);
        EXPECT_EQ(probe.Beeps, std::ssize(wanted)) << "each question beeps once";
        EXPECT_EQ(folder.Content(target), content);
        EXPECT_EQ(Archives(), std::vector<std::string>(archives, "old"));
        const bool written = asked.back() == sure && content != "old";
        EXPECT_EQ(probe.Said.back() == U"Rien n'a été enregistré", !written);
        EXPECT_EQ(probe.Sounds, written ? std::vector<String>{U"Msg.wav"} : std::vector<String>{});
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

TEST_F(Saving, AChangeWhileItAsksIsAskedAboutToo)
{
    Choose(window->TextFieldArchiv, "/proc"); // where nothing can be copied to
    probe.WhileAsking = [&] {
        if (BeginsWith(probe.Asked.back(), copyFailed)) folder.File(target, "later");
    };
    probe.Answers = {1, 3};
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked.back(), Changed(target));
    EXPECT_EQ(folder.Content(target), "later");
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
        EXPECT_EQ(std::ranges::count_if(probe.Asked,
                                        [](const String& told) {
                                            return told.ends_with(
                                                U"La première est la ligne 4 :\nSCENERY_PACK L\uFFFDman/[Ok]");
                                        }),
                  model == source ? 0 : 1);
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

TEST_F(Saving, AsksWhereItMustAndNoAnswerButTheRightOneWrites)
{
    Reset("no archive");
    window->ChBoxArchiv.SetValue(false);
    window->TextFieldArchiv.SetText(U"nowhere");
    probe.Answers = {2};
    Save({sure}, "old", 0);
    Save({sure}, fresh, 0);

    Reset("no text");
    window->TextAreaAff.SetText(U"### error ### empty");
    Save({noPack}, "old", 0);
    probe.Answers = {3, 1};
    Save({noPack, sure}, "### error ### empty", 1);
    window->TextAreaAff.SetText(U"\n" + Encodings::UTF8.Decode(fresh));
    Save({noPack}, "### error ### empty", 1);

    Reset("no archive folder");
    fs::remove(archiveFolder);
    Save({noArchiveFolder}, "old", 0);
    folder.File(archiveFolder, "a file in its place");
    probe.Answers = {3, 1};
    Save({noArchiveFolder, sure}, fresh, 0);

    Reset("no old file");
    fs::remove(target);
    probe.Answers = {2};
    Save({noOldFile}, "", 0);
    Save({noOldFile, sure}, fresh, 0);

    Reset("a pipe in its place");
    fs::remove(target);
    ASSERT_EQ(mkfifo(target.c_str(), 0600), 0);
    window->BtnSave_Pressed();
    EXPECT_TRUE(BeginsWith(probe.Asked.back(), copyFailed) && fs::is_fifo(target));
    fs::remove_all(target.parent_path());
    Save({U"Impossible de localiser le dossier où sauvegarder le fichier.[Ok]"}, "", 0);
}

TEST_F(Saving, ALinkStaysOneAndPermissionsStay)
{
    const fs::path real = folder.File("real.ini", "old");
    fs::remove(target);
    fs::create_symlink(real, target);
    const fs::perms open{0666}; // more than the mask of a process leaves
    fs::permissions(real, open);
    Save({sure}, fresh, 1);
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_EQ(folder.Content(real), fresh);
    for (const fs::path& file : {real, fs::directory_iterator(archiveFolder)->path()})
        EXPECT_EQ(fs::status(file).permissions(), open) << file;
}

} // namespace
