#include "tests/mainwindow/MainWindowTest.h"

namespace {

TEST_F(MainWindow, ARefusedTextStandsWhereItsViewIs)
{
    struct Row {
        const char* model;
        const char* source;
        String views[3];
        /// What the status line ends with: the forms of the model and of the source.
        StringView forms[2] = {};
    };
    const String refused =
        U"### Error ###  Content should begin with :\nI\n1000 version\nSCENERY\n\n" + String(89, U'*') + U"\n";
    const Row rows[] = {
        {nullptr, nullptr, {U"### Error ###  empty", U"### Error ###  empty", U"### Error ###"}},
        {"x\r\n",
         "I\n1000 VERSION\nSCENERY_X\r\ny\r",
         {refused + U"x\r\n", U"I\n1000 VERSION\nSCENERY_X\ny\n", U"### Error ###"},
         {U"LF : CR LF. “", U"LF : CR LF, CR."}},
        {header,
         "\xEF\xBB\xBFI\n1000 version\nSCENERY\nab\xFF" // a byte-order mark, and a byte that is no text
         "c",
         {U"I\n1000 version\nSCENERY\n", U"I\n1000 version\nSCENERY\nabc", U"I\n1000 version\nSCENERY\nabc\n"},
         {U"", U"LF : BOM."}},
    };
    Open();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.source ? row.source : "both are missing");
        probe.Beeps = 0;
        Choose(window->TextFieldMod1, row.model ? folder.File("model", row.model) : folder.Path() / "none");
        Choose(window->TextFieldSpack,
               row.source ? folder.File("Custom Scenery/source", row.source) : folder.Folder("folder"));
        Run();
        const String said = probe.Said.back();
        EXPECT_TRUE(said.find(row.forms[0]) != String::npos && said.ends_with(row.forms[1]));
        EXPECT_EQ(said.starts_with(U"Réordonné : 4 lignes, 1 sans équivalent, "), row.model == header);
        EXPECT_EQ(CountFields(said, U"simple texte"), 1 + !row.forms[0].empty() + !row.forms[1].empty());
        for (const int view : {0, 1, 2}) {
            EXPECT_EQ(View(view), row.views[view]);
            app->MenuBarSelected();
            for (const DesktopMenuItem* item : {&app->Menus.TexteAjouter, &app->Menus.TexteDesactSansDoss})
                EXPECT_EQ(item->Enabled, view != 0) << "the model has no folders";
        }
        EXPECT_EQ(probe.Beeps, 1) << "the refusal, or what the reading lost";
    }
}

TEST_F(MainWindow, ARunDisablesTheOtherWindowToo)
{
    Open();
    window->SegButtSpecA.SetSelected(0, true);
    window->SegButtSpecA.Pressed(0);
    const auto& special = dynamic_cast<WinSpecA&>(*DesktopWindow::All().back());
    window->BtnSave_Pressed();
    EXPECT_EQ(probe.Asked.size(), 1U) << "a question, and nothing of a window without a cover";
    for (const bool idle : {false, true}) {
        App::Current().EnableMenuBoutons(idle);
        EXPECT_TRUE(special.TextFieldDest1.Enabled() == idle && special.PushButtTrait.Enabled() == idle &&
                    window->SegButtSpecA.Enabled() == idle)
            << idle;
    }
}

TEST_F(MainWindow, AStartThatFailsIsHeardAndToldAndEnds)
{
    probe.ScreenSize = {{780, 459}};
    Open();
    EXPECT_EQ(probe.Beeps, 1);
    EXPECT_EQ(probe.Asked.size(), 1U);
    EXPECT_EQ(app->Run(), 1);
}

TEST_F(MainWindow, AModelAddressThatIsNoneIsTold)
{
    Open("\xEF\xBB\xBFSource Model :@: 1\nSourceUrl :@: ftp://server/model\n");
    Run();
    EXPECT_EQ(probe.Asked, std::vector<String>{U"L'url devrait commencer avec 'http://' o 'https://'.[Ok]"});
    EXPECT_EQ(View(0), U"### Error ###  empty");

    probe.WhileAsking = [] { throw std::bad_alloc(); };
    window->BtnRun_Pressed();
    window->TimerDebRun.SetRunMode(Timer::RunModes::Off);
    EXPECT_THROW(window->TimerDebRun.Action(), std::bad_alloc);
    EXPECT_TRUE(Fncts::DrapMenu) << "a fault ends the run";
}

TEST_F(MainWindow, FromTheFourthOfItsKindOnReportsAreGathered)
{
    Open();
    std::string model = header, source = header;
    for (const std::string name : {"0", "1", "2", "3", "4"}) {
        const std::string pack = "\nSCENERY_PACK /" + name, disabled = "\nSCENERY_PACK_DISABLED /" + name;
        model.append(name).append(pack).append("\n");
        source.append(name).append("\n").append(name).append(pack).append(disabled).append("\n");
    }
    Run(model, source);
    EXPECT_NE(probe.Said.back().find(U" 11 remarques"), String::npos);
    const auto pack = [](const String& name) {
        return U"\nSCENERY_PACK /" + name + U"\nSCENERY_PACK_DISABLED /" + name;
    };
    const String twice = Localisation::Txt_ProbLignPresDxFois(), both = Localisation::Txt_ProbLignEquiv();
    EXPECT_EQ(probe.Asked.front(), twice + U"\n0[Ok]");
    EXPECT_EQ(probe.Asked.back(), twice + U"\n3\n4\n\n" + both + pack(U"3") + pack(U"4") + U"[Ok]");
    EXPECT_EQ(probe.Asked.size(), 8U) << "three of each, what the comparison found, and the rest in one";
}

TEST_F(MainWindow, WhatAHandHasMadeIsAskedForBeforeItGoes)
{
    Open();
    const auto model = folder.Path() / "model", other = folder.File("other", header);
    Run(header, std::string(header) + "SCENERY_PACK a/\n");
    const auto toggle = [this] {
        window->TextAreaAff.Select(30, 0);
        window->BtnEnabDis_Pressed();
    };
    const auto asks = [&](DesktopTextField& field, const auto& item) {
        field.ItemDropped(FolderItem(item));
        return std::exchange(probe.Asked, {});
    };
    const std::vector<String> no, question = {U"Le texte a été modifié et n'est pas enregistré. Continuer sans "
                                              U"enregistrer ?[Annuler][Continuer]"};
    EXPECT_EQ(asks(window->TextFieldMod1, model), no) << "a result as a run left it";
    Run();
    toggle();
    Run();
    EXPECT_TRUE(probe.Asked.empty()) << "what can be taken back";

    toggle();
    EXPECT_EQ(asks(window->TextFieldMod1, other), question);
    EXPECT_EQ(Fncts::GetFitemAbsPath(window->TextFieldMod1.Text(), false)->Path(), model);
    View(1);
    EXPECT_EQ(asks(window->TextFieldSpack, other), question);
    EXPECT_NE(View(2), U"");
    probe.Answers = {3};
    EXPECT_EQ(asks(window->TextFieldMod1, other), question);
    EXPECT_EQ(View(2), U"");
    EXPECT_NE(View(1), U"") << "the other file's text stays";
}

TEST_F(MainWindow, AStoppedRunLeavesNothingBehindButASourceThatItHasNotTouched)
{
    Open();
    Run(header, header);
    for (int press = 0; press < 2; ++press)
        window->BtnRun_Pressed();
    App::Current().EnableMenuBoutons(false);
    window->BtnRun_Pressed();
    EXPECT_EQ(View(1), U"I\n1000 version\nSCENERY\n") << "where no run is under way, none is stopped";
    App::Current().EnableMenuBoutons(true);
    const auto later = std::chrono::steady_clock::now() + std::chrono::milliseconds(50);
    while (std::chrono::steady_clock::now() < later)
        DesktopApplication::YieldToPlatform();
    EXPECT_EQ(View(2), U"") << "the timer has stopped";

    window->RadGrpSrc.SetSelectedIndex(1);
    window->TextFieldMod2.SetText(U"HTTP://127.0.0.1/model");
    window->BtnRun_Pressed();
    window->TimerDebRun.SetRunMode(Timer::RunModes::Off);
    window->TimerDebRun_Action();
    probe.Beeps = 0;
    window->Close();
    EXPECT_EQ(probe.Beeps, 1) << "a run refuses the close";
    EXPECT_EQ(probe.Said.back(), U"Un traitement ou un dialogue est en cours : terminez-le d'abord");
    window->BtnRun_Pressed();
    for (const int row : {2, 1, 0})
        EXPECT_EQ(View(row), U"");
}

TEST_F(MainWindow, BadPreferencesFillTheControlsAsFarAsTheyCan)
{
    std::string large;
    large.resize(25'000'000, 'x');
    Open("Source Model :@: 1\nSource Model :@: 7\nSourceFile_Path :@: a\xFF\nSourceFile_Path :@: " +
         large.substr(0, 70'000) + "\nArchivFolder_Path :@: b\r\nSceneryPack_Path :@: " + large +
         "\nVolume Sonore :@: 35\nTabSpecAorg :@: " + std::string(large.size(), '\t'));
    EXPECT_EQ(window->RadGrpSrc.SelectedIndex(), 1) << "there is no choice 7";
    EXPECT_EQ(window->TextFieldMod1.Text(), U"a");
    EXPECT_EQ(window->TextFieldArchiv.Text(), U"b");
    EXPECT_EQ(window->TextFieldSpack.Text(), U"") << "too long for a field";
    EXPECT_EQ(app->DefVolSon(), 35);
    EXPECT_TRUE(app->TabSpecAorg.empty());
    EXPECT_EQ(probe.Beeps, 13) << "one for the byte, three for each line that was passed over";
    window->StaticTextVersion.Pressed();
    EXPECT_EQ(probe.Links.size(), 1U);
}

TEST_F(MainWindow, AProposalNeedsASceneryAndARunWithoutAModelOffersOne)
{
    Open();
    window->TexteProposer_Action();
    EXPECT_TRUE(probe.Asked.empty());
    EXPECT_EQ(probe.Beeps, 1);
    EXPECT_EQ(probe.Said, std::vector<String>{U"scenery_packs.ini refusé : vide ou illisible"});
    Choose(window->TextFieldSpack, folder.File("Custom Scenery/scenery_packs.ini", header));
    Run();
    EXPECT_EQ(probe.Said.back(),
              U"Modèle refusé : vide ou illisible (Fichier modèle) ; le menu “Texte” peut en proposer un");

    folder.File("Custom Scenery/scenery_packs.ini", header + std::string("SCENERY_PACK L\xE9man/\n"));
    probe.Answers = {1, FolderItem(folder.Path() / "m.ini"), 1, 1, 2};
    window->TexteProposer_Action();
    window->BtnSave_Pressed();
    EXPECT_TRUE(probe.Asked.back().ends_with(U"L'enregistrer quand même ?[Annuler][Sauv fichier]"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "m.ini"));

    const String first = window->TextFieldMod1.Text(), proposed = window->TextAreaAff.Text();
    for (const Int16 answer : {Int16{1}, Int16{3}}) { // a proposal that isn't saved yet, under another name
        probe.Answers = {1, FolderItem(folder.Path() / "n.ini"), answer, 1};
        window->TexteProposer_Action();
        EXPECT_EQ(window->TextFieldMod1.Text() == first, answer == 1);
    }
    EXPECT_EQ(window->TextAreaAff.Text(), proposed);
    window->BtnRun_Pressed();
    EXPECT_TRUE(probe.Said.back().ends_with(U"enregistrez-le d'abord")) << "an equal text is to be saved, too";
}

} // namespace
