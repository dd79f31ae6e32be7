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
        Choose(window->TextFieldMod1, folder.File("model", header + packs));
        Choose(window->TextFieldSpack, folder.File("Custom Scenery/scenery_packs.ini", header + packs));
        Run();
        text = window->TextAreaAff.Text();
    }
    void CaretAt(StringView word) { window->TextAreaAff.Select(IndexOf(window->TextAreaAff.Text(), word), 0); }

    String text;
};

TEST_F(WideText, ALineIsToggledInTheViewOnScreenAndAReturnIsTold)
{
    for (const int view : {0, 1, 2}) {
        View(view);
        CaretAt(U"Alpes");
        window->BtnEnabDis_Pressed();
        EXPECT_EQ(window->TextAreaAff.SelectedText(), U"SCENERY_PACK_DISABLED Custom Scenery/Alpes/") << view;
    }
    EXPECT_TRUE(probe.Asked.empty());
    window->TextAreaAff.SetText(U"😀\nSCENERY_PACK 😀\r\n");
    CaretAt(U"PACK");
    window->BtnEnabDis_Pressed();
    EXPECT_EQ(window->TextAreaAff.Text(), U"😀\nSCENERY_PACK_DISABLED 😀\r\n");
    EXPECT_EQ(probe.Asked, std::vector<String>{U"Error ! Please contact the authors.\nBtnEnabDis, TpEof is used in the "
                                               U"Text !\nPos = 16"});
}

TEST_F(WideText, AMatchIsSelectedAndTheSoundTellsWhatWasFound)
{
    const auto search = [this](StringView word, const auto& ask) {
        probe.Sounds.clear();
        window->TextFieldCherch.SetText(word);
        ask();
        const DesktopTextArea& area = window->TextAreaAff;
        return std::tuple{area.SelectionStart(), area.SelectedText(), probe.Sounds};
    };
    const auto button = [this] { window->PushButtCherch_Pressed(); };
    const Int64 first = IndexOf(text, U"Custom"), second = IndexOf(text, U"Custom", first + 1);
    using Sounds = std::vector<String>;
    EXPECT_EQ(search(U"alpes", button), std::tuple(second + 15, U"Alpes", Sounds{U"Agrafeuse_t.wav"}));
    EXPECT_EQ(search(U"alpes", button), std::tuple(second + 15, U"Alpes", Sounds{U"Whit.wav"}));
    EXPECT_EQ(window->Focus(), &window->TextAreaAff);
    for (const Int64 place : {first, second, first}) {
        EXPECT_EQ(search(U"custom", window->TextFieldCherch.Entered),
                  std::tuple(place, U"Custom", Sounds{U"Agrafeuse_t.wav"}));
        EXPECT_EQ(window->Focus(), &window->TextFieldCherch) << "the next Enter searches on";
    }
    Fncts::DrapMenu = false;
    EXPECT_EQ(search(U"alpes", button), std::tuple(first, U"Custom", Sounds{}));
    Fncts::DrapMenu = true;
    EXPECT_EQ(probe.Beeps, 0);
    EXPECT_EQ(search(U"", button), std::tuple(first, U"Custom", Sounds{}));
    EXPECT_EQ(probe.Beeps, 1);
    EXPECT_EQ(search(U"nowhere", button), std::tuple(0, U"", Sounds{U"Glass_t.wav"}));
    window->PushButtInitCherch_Pressed();
    EXPECT_EQ(window->TextFieldCherch.Text(), U"");
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
    window->TextFieldSpack.SetText(U"Linux:");
    EXPECT_EQ(reveal(U"😀/"), std::pair(1, Revealed{})) << "a volume lies in no folder";
}

TEST_F(WideText, FieldsTakeWhatTheyCanKeep)
{
    const auto dropped = [&](DesktopTextField& field, const std::filesystem::path& item) {
        field.ItemDropped(FolderItem(item));
        return std::tuple(field.Text(), std::exchange(probe.Beeps, 0), probe.Said.empty() ? U"" : probe.Said.back());
    };
    const String model = window->TextFieldMod1.Text(), archives = window->TextFieldArchiv.Text();
    std::filesystem::create_symlink("nowhere", folder.Path() / "link.ini");
    std::filesystem::create_directory_symlink("Custom Scenery", folder.Path() / "way");
    const std::filesystem::path twin = folder.File("e\u0301.ini"), composed = folder.File("\u00E9.ini"),
                                noText = folder.File("\xFF.ini"), picture = folder.File("picture.png");
    using namespace Localisation;
    EXPECT_EQ(dropped(window->TextFieldMod1, folder.Path() / "link.ini"), std::tuple(model, 1, Dit_AliasMort()));
    EXPECT_EQ(dropped(window->TextFieldMod1, folder.Path() / "way"), std::tuple(model, 1, Txt_DropQueFichTxt()));
    EXPECT_EQ(dropped(window->TextFieldMod1, picture), std::tuple(model, 1, Txt_DropQueFichTxt()));
    EXPECT_EQ(dropped(window->TextFieldMod1, twin), std::tuple(model, 1, Txt_NomNonGarde()));
    EXPECT_EQ(dropped(window->TextFieldMod1, noText), std::tuple(model, 1, Txt_NomNonGarde()));
    EXPECT_EQ(dropped(window->TextFieldArchiv, picture), std::tuple(archives, 1, Txt_DropQueDoss()));
    EXPECT_EQ(window->TextAreaAff.Text(), text) << "what is refused changes nothing";

    dropped(window->TextFieldArchiv, folder.Path() / "way");
    EXPECT_EQ(window->TextFieldArchiv.Text(), Fncts::AbsPath_f(FolderItem(folder.Path() / "Custom Scenery"), true));
    window->RadGrpSrc.SetSelectedIndex(1);
    window->TextFieldMod2.Entered();
    EXPECT_EQ(window->RadGrpSrc.SelectedIndex(), 1);
    dropped(window->TextFieldMod1, composed);
    EXPECT_EQ(Fncts::GetFitemAbsPath(window->TextFieldMod1.Text(), false)->Path(), composed);
    EXPECT_EQ(window->RadGrpSrc.SelectedIndex(), 0) << "a chosen model is the one that is used";
    EXPECT_EQ(window->TextAreaAff.Text(), U"") << "the old model's results are gone";
}

} // namespace
