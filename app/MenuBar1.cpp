#include "app/MenuBar1.h"

#include "localisation/Localisation.h"

MenuBar1::MenuBar1()
    : FichSelFichModel(U"FichSelFichModel", Localisation::Menu_FichSelFichMod(), U"Cmd+Shift+O")
    , FichSelArchivDoss(U"FichSelArchivDoss", Localisation::Menu_FichSelDossArchiv(), U"Cmd+Option+O")
    , FichSelFichSpack(U"FichSelFichSpack", Localisation::Menu_FichSelFichScenPack(), U"Cmd+O")
    , FichSaveFile(U"FichSaveFile", Localisation::Btn_SauvFichier(), U"Cmd+S")
    , ApplePrefs(U"ApplePrefs", Localisation::Menu_Preferences(), U"Cmd+,")
    , untitledSeparator_(U"UntitledSeparator", U"-")
    , fileQuit_(U"FileQuit", U"&Quit", U"Cmd+Cmd+Q")
    , editUndo_(U"EditUndo", U"&Undo", U"Cmd+Z", EditCommand::Undo)
    , untitledSeparator0_(U"UntitledSeparator0", U"-")
    , editCut_(U"EditCut", Localisation::Menu_EditCut(), U"Cmd+X", EditCommand::Cut)
    , editCopy_(U"EditCopy", Localisation::Menu_EditCopy(), U"Cmd+C", EditCommand::Copy)
    , editPaste_(U"EditPaste", Localisation::Menu_EditPaste(), U"Cmd+V", EditCommand::Paste)
    , editClear_(U"EditClear", Localisation::Menu_EditClear(), U"", EditCommand::Clear)
    , editSelectAll_(U"EditSelectAll", Localisation::Menu_EditSelectAll(), U"Cmd+A", EditCommand::SelectAll)
    , untitledSeparator1_(U"UntitledSeparator1", U"-")
{
}

DesktopMenuBar MenuBar1::Menus()
{
    return {
        {U"FileMenu",
         Localisation::Menu_Fichier(),
         {&FichSelFichModel, &FichSelArchivDoss, &FichSelFichSpack, &FichSaveFile, &untitledSeparator_, &fileQuit_}},
        {U"EditMenu",
         Localisation::Menu_Edit(),
         {&editUndo_, &untitledSeparator0_, &editCut_, &editCopy_, &editPaste_, &editClear_, &editSelectAll_,
          &untitledSeparator1_, &ApplePrefs}},
    };
}
