#include "app/App.h"
#include "specialA/WinSpecA.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/Probe.h"
#include "toolkit/core/Exceptions.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const String found = U"Nombre de fois où les textes cherchés ont été trouvés :\n • 1 x “a”[Continuer][Arrêter]";

String Exists(StringView name)
{
    return U"Un fichier nommé “" + String(name) + U"” existe déjà.[Ne pas remplacer][Remplacer]";
}

const String lost = U"“original.txt” est le fichier original lui-même. Son texte d'avant sera perdu.[Ne pas remplacer]"
                    U"[Remplacer]",
             full = U"“full” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : 1."
                    U"[Ne pas remplacer][Remplacer]";

class SpecialA : public testing::Test {
protected:
    SpecialA()
    {
        Fncts::DrapMenu = true;
        probe.ScreenSize = {{1280, 800}};
        app.TabSpecAorg = {U"", U"a"};
        app.TabSpecAdest1 = {U"one", U"1"};
        app.TabSpecAdest2 = {U"two", U"2"};
        segButtSpecA.SetSelected(0, true);
    }

    void Open(const std::filesystem::path& original = {})
    {
        if (!original.empty()) app.PathSpecA = Fncts::AbsPath_f(FolderItem(original), true);
        window.emplace(winMain, segButtSpecA, timerQuit);
        window->Show();
    }
    String Row(std::size_t row) const
    {
        const CellRow& cells = window->ListboxRR.Rows()[row];
        return cells[0] + U"|" + cells[1] + U"|" + cells[2];
    }
    /// The last sentence since the last call.
    String Said() { return probe.Said.empty() ? String() : std::exchange(probe.Said, {}).back(); }
    /// What was asked since the last call.
    std::vector<String> Asked() { return std::exchange(probe.Asked, {}); }

    TemporaryFolder folder;
    Probe probe;
    char program[8] = "tests", *argv[2] = {program, nullptr};
    int argc = 1;
    App app{argc, argv};
    DesktopWindow winMain{{.title = U"Main", .width = 700, .height = 400}};
    DesktopSegmentedButton segButtSpecA{winMain, {0, 0, 100, 20}, U"Spécial A"};
    Timer timerQuit{10};
    std::optional<WinSpecA> window;
};

TEST_F(SpecialA, WritesWhatTheAnswersAllow)
{
    const String failed = U"Il y a eu une erreur pendant l'écriture du fichier.\n",
                 unchanged = U"Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?"
                             U"[Continuer][Arrêter]";
    struct Row {
        const char* name;
        StringView dest1, dest2;
        std::deque<Probe::Answer> answers;
        const char* files; // what is under both names and in the original then
        std::vector<String> more;
        int sounds;
        StringView replacement1 = U"1";
    };
    const Row rows[] = {
        // clang-format off
        {"both are written", U"one", U"two", {}, "x 1|x 2|x A", {}, 2},
        {"nothing after the second button", U"one", U"two", {2}, "||x A", {}, 0},
        {"without names nothing is written", U"", U"", {}, "||x A", {}, 0},
        {"one is refused, the other written", U"taken", U"two", {1, 1}, "old|x 2|x A", {Exists(U"taken")}, 1},
        {"of the same name twice the second stays", U"one", U"one", {1, 3}, "x 2|x 2|x A", {Exists(U"one")}, 2},
        {"the original when so wanted", U"original.txt", U"", {1, 3, 3}, "x 1||x 1", {Exists(U"original.txt"), lost}, 1},
        {"the original is kept when so wanted", U"original.txt", U"", {1, 3}, "x A||x A", {Exists(U"original.txt"), lost}, 0},
        {"a full folder is kept when so wanted", U"full", U"", {1, 3}, "||x A", {Exists(U"full"), full}, 0},
        {"an empty one gives way", U"empty", U"", {1, 3}, "x 1||x A", {Exists(U"empty")}, 1},
        {"no name leads out of the folder", U"../two", U"..", {}, "outside||x A", {failed + U"../two[Ok]", failed + U"..[Ok]"}, 0},
        {"another case alone is no change", U"one", U"two", {1, 2}, "|x 2|x A", {unchanged}, 1, U"a"},
        {"a full folder and an alias give way when so wanted", U"full", U"alias", {1, 3, 3, 3}, "x 1|x 2|x A",
         {Exists(U"full"), full, Exists(U"alias")}, 2},
        // clang-format on
    };
    const auto in = folder.Path() / "in";
    const auto content = [&](StringView name) {
        return std::filesystem::is_regular_file(in / name) ? folder.Content(in / name) : "";
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::filesystem::remove_all(in);
        const auto original = folder.File(in / "original.txt", "x A");
        std::filesystem::permissions(original, std::filesystem::perms{0640});
        folder.File(in / "taken", "old");
        folder.File(folder.Path() / "two", "outside");
        folder.File(in / "full/inner", "kept");
        folder.Folder(in / "empty");
        std::filesystem::create_symlink("taken", in / "alias");
        app.TabSpecAdest1 = {U"", String(row.replacement1)};
        Open(original);
        window->TextFieldDest1.SetText(row.dest1);
        window->TextFieldDest2.SetText(row.dest2);
        probe.Answers = row.answers;
        probe.Sounds.clear();
        window->PushButtTrait_Pressed();
        std::vector<String> asked = row.more;
        asked.insert(asked.begin(), found);
        EXPECT_EQ(Asked(), asked);
        EXPECT_EQ(content(row.dest1) + "|" + content(row.dest2) + "|" + content(U"original.txt"), row.files);
        EXPECT_EQ(folder.Content(in / "taken") + folder.Content("two"), "oldoutside");
        EXPECT_EQ(folder.Content(in / "full/inner").empty(), row.sounds == 2 && row.dest1 == U"full");
        EXPECT_EQ(std::ssize(probe.Sounds), row.sounds);
        EXPECT_EQ(std::filesystem::status(original).permissions(), std::filesystem::perms{0640});
        EXPECT_EQ(std::exchange(probe.Beeps, 0), std::ranges::count_if(row.more, [&](const String& told) {
                      return told.starts_with(failed) || told == unchanged;
                  }));
        EXPECT_TRUE(Fncts::DrapMenu);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(in), {}), 5) << "nothing is left over";
    EXPECT_EQ(Said(), U"Écrit : full, alias, dans " + FolderItem(in).NativePath() + U".");
    probe.WhileAsking = [&] { folder.File(in / "original.txt", "later"); };
    window->TextFieldDest1.SetText(U"original.txt");
    window->TextFieldDest2.SetText(U"");
    probe.Answers = {1, 3, 3};
    window->PushButtTrait_Pressed();
    EXPECT_TRUE(Asked().back().ends_with(U"fera perdre ces changements.[Ne pas remplacer][Remplacer]"));
    EXPECT_EQ(folder.Content(in / "original.txt"), "later");

    app.TabSpecAdest1 = {U"one", String(1'000'000, U'x')};
    Open(folder.File("grown/original.txt", std::string(100, 'a')));
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Asked().back(), U"“one” deviendrait trop long et n'est pas écrit.[Ok]");
    EXPECT_EQ(Said(), U"Rien n'a été écrit.");
}

TEST_F(SpecialA, AnOriginalThatLostCharactersIsAskedAbout)
{
    Open(folder.File("original.txt", "x \xE9 a"));
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Said(), U"Rien n'a été écrit.");
    const String asked = Asked().back();
    EXPECT_TRUE(asked.ends_with(U"La première est la ligne 1 :\nx \uFFFD a[Annuler][Continuer]"));
    probe.Answers = {3};
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Asked(), (std::vector{asked, found}));
    EXPECT_EQ(folder.Content("one"), "x  1");
}

TEST_F(SpecialA, StaysAliveInALongTreatment)
{
    std::string text;
    for (int word = 0; word < 600'000; ++word)
        text += "w" + std::to_string(word % 5000) + ' ';
    for (int row = 1; row < 500; ++row)
        app.TabSpecAorg.push_back(U"w" + ToText(Int64{5} * row) + U" ");
    Open(folder.File("long.txt", text));
    int ticks = 0, ticksWithBar = 0;
    Timer watch(20);
    watch.Action = [&] {
        ++ticks;
        window->Close();
        if (window->ProgressTrait.Visible() && ++ticksWithBar == 3) window->PushButtTrait_Pressed();
        watch.SetRunMode(Timer::RunModes::Single);
    };
    watch.SetRunMode(Timer::RunModes::Single);
    window->PushButtTrait_Pressed();
    watch.SetRunMode(Timer::RunModes::Off);
    EXPECT_EQ(ticksWithBar, 3);
    EXPECT_GT(ticks, ticksWithBar) << "the bar comes after half a second";
    EXPECT_FALSE(window->ProgressTrait.Visible());
    EXPECT_TRUE(window->Visible()) << "no close in the middle";
    EXPECT_EQ(probe.Beeps, ticks);
    EXPECT_EQ(Asked(), std::vector<String>());
    EXPECT_EQ(Said(), U"Traitement arrêté, rien n'a été écrit.");
    EXPECT_EQ(window->PushButtTrait.Caption(), U"Traiter");

    app.DrapOkQuit = true;
    watch.Action = [this] { app.Quit(0); };
    watch.SetRunMode(Timer::RunModes::Single);
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Asked(), std::vector<String>()) << "it ends with the program";
}

TEST_F(SpecialA, HasNoUseForWhatIsNoFile)
{
    const std::vector<String> missing = {U"Le fichier original n'existe pas.[Ok]"};
    const auto asksAt = [this](const std::filesystem::path& original) {
        Open(original);
        window->PushButtTrait_Pressed();
        return Asked();
    };
    EXPECT_EQ(asksAt({}), missing);
    EXPECT_EQ(window->StTextFichSource.Text(), U"…");
    const auto gone = folder.Path() / "gone.txt";
    EXPECT_EQ(asksAt(gone), missing);
    window->Close();
    EXPECT_EQ(app.PathSpecA, Fncts::AbsPath_f(FolderItem(gone), true)) << "it may be away for a while";
    Open();
    EXPECT_EQ(window->TextFieldOrg.Text(), U"gone.txt");
    folder.File("gone.txt", "a");
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Asked().front(), found) << "it is there again";
    std::filesystem::remove(gone);
    std::filesystem::create_symlink(folder.File("text"), gone);
    window->PushButtTrait_Pressed();
    EXPECT_EQ(Asked(), missing) << "a link has taken its place";

    const auto pipe = folder.Path() / "pipe.txt";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(asksAt(pipe), std::vector{U"Le fichier original ne peut pas être lu.\n" + FolderItem(pipe).NativePath() +
                                        U"\n" + SystemError(EINVAL).Message + U"[Ok]"})
        << "it doesn't wait";
}

TEST_F(SpecialA, TakesDroppedTextFilesOnly)
{
    const String refused = U"Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.[Ok]";
    const auto text = folder.File("text.TXT"), picture = folder.File("picture.png");
    std::filesystem::create_symlink(text, folder.Path() / "link.png");
    std::filesystem::create_symlink(folder.Folder("folder.txt"), folder.Path() / "link.txt");
    const std::tuple<const char*, std::vector<FolderItem>, StringView> rows[] = {
        {"a text file", {FolderItem(text)}, U"text.TXT"},
        {"an alias that leads to one", {FolderItem(folder.Path() / "link.png")}, U"text.TXT"},
        {"another file", {FolderItem(picture)}, U"…"},
        {"an alias that leads to a folder", {FolderItem(folder.Path() / "link.txt")}, U"…"},
        {"two files", {FolderItem(text), FolderItem(text)}, U"…"},
        {"a file that is gone", {FolderItem(folder.Path() / "gone.txt")}, U"…"},
    };
    for (const auto& [name, items, org] : rows) {
        SCOPED_TRACE(name);
        app.PathSpecA.clear();
        Open();
        window->GroupBoxSource_DropObject({items});
        EXPECT_EQ(window->TextFieldOrg.Text(), org);
        EXPECT_EQ(Asked(), org == U"…" ? std::vector{refused} : std::vector<String>());
    }
    Fncts::DrapMenu = false;
    window->GroupBoxSource_DropObject({{FolderItem(text)}});
    EXPECT_EQ(window->TextFieldOrg.Text(), U"…") << "not while anything is under way";
}

TEST_F(SpecialA, ChoosesAndRevealsItsOriginal)
{
    const FolderItem text(folder.File("in/text.txt"));
    std::filesystem::create_symlink(text.Path(), folder.Path() / "link");
    Open();
    probe.ShiftKey = true;
    window->PushButtSource_Pressed();
    EXPECT_EQ(probe.Beeps, 1) << "nothing to reveal";
    probe.ShiftKey = false;
    probe.Answers = {text, FolderItem(folder.Path()),           1,           FolderItem(folder.Path() / "link"),
                     1,    FolderItem(folder.File("\xFF.txt")), std::nullopt};
    for (int time = 0; time < 5; ++time)
        window->PushButtSource_Pressed();
    const String choose = U"Choisir un fichier :",
                 refused = U"Vous pouvez seulement sélectionner un fichier texte.[Ok]";
    EXPECT_EQ(Asked(), (std::vector{choose, choose, refused, choose, refused, choose, choose}));
    EXPECT_EQ(Said(), Localisation::Txt_NomNonGarde());
    EXPECT_EQ(probe.Beeps, 4) << "one for each that is refused";
    EXPECT_EQ(window->TextFieldOrg.Text(), U"text.txt") << "none of the others was taken";
    probe.ShiftKey = true;
    window->PushButtSource_Pressed();
    EXPECT_EQ(probe.Revealed, std::vector{text.NativePath()});
}

TEST_F(SpecialA, TheTableGrowsAndShrinks)
{
    app.TabSpecAdest2 = {U"two", U"2", U"lonely"};
    Open();
    EXPECT_EQ(window->ListboxRR.Rows().size(), 2U);
    EXPECT_EQ(Row(1), U"||lonely") << "lists of unequal length leave empty cells";
    window->PushButtSupp_Pressed();
    EXPECT_EQ(probe.Beeps, 1) << "the last row isn't empty";
    window->PushButtAdd_Pressed();
    EXPECT_EQ(window->ListboxRR.SelectedRowIndex(), 2);
    window->ListboxRR.SetSelectedRowIndex(-1);
    window->PushButtSupp_Pressed();
    EXPECT_EQ(window->ListboxRR.Rows().size(), 2U);
    window->ListboxRR.SetSelectedRowIndex(0);
    window->ListboxRR_RowsPasted(RowsOf(U"other.txt\tone\ttwo\n\n"));
    window->ListboxRR_RowsPasted(RowsOf(U"other.txt\tone\ttwo\n\nx\ty\tz\nv"));
    EXPECT_EQ(window->ListboxRR.SelectedRowIndex(), 1);
    EXPECT_EQ(Row(1) + Row(2), U"x|y|zv||") << "without the names that were copied with the rows";
    for (int time = 0; time < 2; ++time) {
        window->PushButtSupp_Pressed();
        EXPECT_EQ(Row(1), U"v||") << "the selected row goes, its neighbour isn't selected then";
    }
    EXPECT_EQ(probe.Beeps, 2);
}

TEST_F(SpecialA, TellsTheLimitsOfTheTable)
{
    const String tooMany = U"Le tableau ne peut pas avoir plus de 1 000 lignes.";
    const std::tuple<std::vector<CellRow>, String, std::size_t> rows[] = {
        {{{U"1", U"2", U"3", U"4"}}, U"Les cellules au-delà de la troisième colonne ont été laissées de côté.", 2},
        {{{String(1'999'998, U'x')}}, U"", 3},
        {{{U"y"}}, U"Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.", 3},
        {std::vector<CellRow>(996), U"", 999},
        {std::vector<CellRow>(2), tooMany, 1000},
    };
    Open();
    for (const auto& [pasted, told, count] : rows) {
        window->ListboxRR_RowsPasted(pasted);
        EXPECT_EQ(Said(), told);
        EXPECT_EQ(window->ListboxRR.Rows().size(), count);
    }
    window->PushButtAdd_Pressed();
    EXPECT_EQ(Said(), tooMany);
    EXPECT_EQ(window->ListboxRR.Rows().size(), 1000U);
}

TEST_F(SpecialA, HandsAllBackWhenItCloses)
{
    const auto original = folder.File("original.txt", "x");
    Open(original);
    window->TextFieldDest2.SetText(U"two\twords");
    window->SetHeight(500);
    Fncts::DrapMenu = false;
    window->Close();
    EXPECT_TRUE(window->Visible());
    EXPECT_EQ(probe.Beeps, 1);
    Fncts::DrapMenu = true;
    window->Close();
    EXPECT_FALSE(window->Visible() || segButtSpecA.Selected(0));
    EXPECT_EQ(app.WspecAheight, 500);
    EXPECT_EQ(app.PathSpecA, Fncts::AbsPath_f(FolderItem(original), true));
    EXPECT_EQ(app.TabSpecAorg, (std::vector<String>{U"original.txt", U"a"}));
    EXPECT_EQ(app.TabSpecAdest2, (std::vector<String>{U"two words", U"2"})) << "no tab";
    app.WspecAheight = 900;
    Open();
    EXPECT_EQ(window->Height(), 400) << "no room on the screen";
}

} // namespace
