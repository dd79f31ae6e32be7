#include "tests/mainwindow/MainWindowTest.h"

namespace {

/// The three views show the same text, which holds a character beyond 16 bits.
class WideText : public MainWindow {
protected:
    WideText()
    {
        const std::string packs = "SCENERY_PACK Custom Scenery/😀/\nSCENERY_PACK Custom Scenery/Alpes/\n";
        for (const char* const pack : {"Custom Scenery/😀", "Custom Scenery/Alpes"})
            folder.Folder(pack);
        Open();
        Run(header + packs, header + packs);
        text = window->TextAreaAff.Text();
    }
    void CaretAt(StringView word) { window->TextAreaAff.Select(IndexOf(window->TextAreaAff.Text(), word), 0); }

    String text;
};

TEST_F(WideText, ALineIsToggledAndAReturnIsTold)
{
    window->TextAreaAff.SetText(U"😀\nSCENERY_PACK 😀\r\n");
    CaretAt(U"PACK");
    window->BtnEnabDis_Pressed();
    EXPECT_EQ(window->TextAreaAff.Text(), U"😀\nSCENERY_PACK_DISABLED 😀\r\n");
    EXPECT_EQ(probe.Asked, std::vector<String>{U"Error ! Please contact the authors.\nBtnEnabDis, TpEof is used in the "
                                               U"Text !\nPos = 16"});
}

TEST_F(WideText, TheSoundTellsWhatASearchFound)
{
    const auto search = [&](StringView word) {
        probe.Sounds = {U""};
        window->TextFieldCherch.SetText(word);
        window->PushButtCherch_Pressed();
        return probe.Sounds.back();
    };
    EXPECT_EQ(search(U"alpes"), U"Agrafeuse_t.wav");
    EXPECT_EQ(search(U"alpes"), U"Whit.wav");
    window->TextFieldCherch.Entered();
    EXPECT_EQ(probe.Sounds.size(), 3U) << "Enter searches too";
    EXPECT_EQ(search(U"nowhere"), U"Glass_t.wav");
    Fncts::DrapMenu = false;
    EXPECT_EQ(search(U"alpes"), U"");
    Fncts::DrapMenu = true;
    EXPECT_EQ(probe.Beeps, 0);
    EXPECT_EQ(search(U""), U"");
    EXPECT_EQ(probe.Beeps, 1);
}

TEST_F(WideText, WhatIsNotThereIsNotRevealed)
{
    const auto reveal = [this](StringView word) {
        CaretAt(word);
        window->BtnAffDoss_Pressed();
        return std::pair{std::exchange(probe.Beeps, 0), std::exchange(probe.Revealed, {})};
    };
    using Revealed = std::vector<String>;
    EXPECT_EQ(reveal(U"😀/"), std::pair(0, Revealed{(folder.Path() / "Custom Scenery/😀").u32string()}));
    EXPECT_EQ(reveal(U"1000"), std::pair(1, Revealed{}));
    std::filesystem::remove(folder.Path() / "Custom Scenery/Alpes");
    EXPECT_EQ(reveal(U"Alpes"), std::pair(1, Revealed{}));
    const String disabled = U"SCENERY_PACK_DISABLED Custom Scenery/Alpes/";
    window->TextAreaAff.Select(IndexOf(text, U"SCENERY_PACK Custom Scenery/Alpes"), 34);
    app->Menus.TexteDesactSansDoss.Action();
    EXPECT_EQ(window->TextAreaAff.SelectedText(), disabled);
    EXPECT_EQ(window->TextAreaAff.Text(), ReplaceAll(text, U"SCENERY_PACK Custom Scenery/Alpes/", disabled));
    window->TextFieldSpack.SetText(U"Linux:");
    EXPECT_EQ(reveal(U"😀/"), std::pair(1, Revealed{})) << "a volume lies in no folder";
}

TEST_F(WideText, FieldsTakeWhatTheyCanKeep)
{
    const auto at = [this](const char* name) { return folder.Path() / name; };
    std::filesystem::create_symlink("nowhere", at("link.ini"));
    std::filesystem::create_symlink("circle.ini", at("circle.ini"));
    std::filesystem::create_directory_symlink("Custom Scenery", at("way"));
    const std::filesystem::path twin = folder.File("e\u0301.ini"), composed = folder.File("\u00E9.ini");
    DesktopTextField &model = window->TextFieldMod1, &archives = window->TextFieldArchiv;
    using namespace Localisation;
    const std::tuple<DesktopTextField*, std::filesystem::path, String> rows[] = {
        {&model, at("link.ini"), Dit_AliasMort()},
        {&model, at("circle.ini"), Dit_AliasMort()},
        {&model, at("way"), Txt_DropQueFichTxt()},
        {&model, folder.File("picture.png"), Txt_DropQueFichTxt()},
        {&model, twin, Txt_NomNonGarde()},
        {&model, folder.File("\xFF.ini"), Txt_NomNonGarde()},
        {&archives, at("picture.png"), Txt_DropQueDoss()},
    };
    for (const auto& [field, item, refusal] : rows) {
        const String before = field->Text();
        field->ItemDropped(FolderItem(item));
        EXPECT_EQ(field->Text(), before) << item;
        EXPECT_EQ(std::exchange(probe.Beeps, 0), 1) << item;
        EXPECT_EQ(probe.Said.back(), refusal) << item;
    }
    EXPECT_EQ(window->TextAreaAff.Text(), text) << "what is refused changes nothing";

    archives.ItemDropped(FolderItem(at("way")));
    EXPECT_EQ(archives.Text(), Fncts::AbsPath_f(FolderItem(at("Custom Scenery")), true));
    window->TextFieldMod2.Entered();
    EXPECT_EQ(window->RadGrpSrc.SelectedIndex(), 1);
    model.ItemDropped(FolderItem(composed));
    EXPECT_EQ(Fncts::GetFitemAbsPath(model.Text(), false)->Path(), composed);
    EXPECT_EQ(window->RadGrpSrc.SelectedIndex(), 0) << "a chosen model is the one that is used";
    EXPECT_EQ(window->TextAreaAff.Text(), U"") << "the old model's results are gone";
}

} // namespace
