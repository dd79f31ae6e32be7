#include "tests/mainwindow/MainWindowTest.h"

namespace {

TEST_F(MainWindow, AProposalNeedsASceneryAndARunWithoutAModelOffersOne)
{
    Open();
    window->TexteProposer_Action();
    EXPECT_TRUE(probe.Asked.empty());
    EXPECT_EQ(probe.Beeps, 1);
    EXPECT_EQ(probe.Said, std::vector<String>{U"scenery_packs.ini refusé : vide ou illisible"});
    Choose(window->TextFieldSpack, folder.File("Custom Scenery/scenery_packs.ini", header));
    Run();
    EXPECT_EQ(probe.Said.back(), U"Modèle refusé : vide ou illisible (le menu “Texte” peut en proposer un)");

    folder.File("Custom Scenery/scenery_packs.ini", header + std::string("SCENERY_PACK L\xE9man/\n"));
    probe.Answers = {1, FolderItem(folder.Path() / "m.ini"), 1, 1, 2};
    window->TexteProposer_Action();
    window->BtnSave_Pressed();
    EXPECT_TRUE(probe.Asked.back().ends_with(U"L'enregistrer quand même ?[Annuler][Sauv fichier]"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "m.ini"));
}

} // namespace
