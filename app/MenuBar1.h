/// The program's menu bar.
#pragma once

#include "localisation/Localisation.h"
#include "toolkit/DesktopMenu.h"

/// The items, as members named like themselves. The main window says what its items do; the others are served by the
/// platform: those of a text by the text control that has the focus.
struct MenuBar1 {
    DesktopMenuItem FichSelFichModel{U"FichSelFichModel", Localisation::Menu_FichSelFichMod(), U"Cmd+Shift+O"};
    DesktopMenuItem FichSelArchivDoss{U"FichSelArchivDoss", Localisation::Menu_FichSelDossArchiv(), U"Cmd+Option+O"};
    DesktopMenuItem FichSelFichSpack{U"FichSelFichSpack", Localisation::Menu_FichSelFichScenPack(), U"Cmd+O"};
    DesktopMenuItem FichSaveFile{U"FichSaveFile", Localisation::Btn_SauvFichier(), U"Cmd+S"};
    DesktopQuitMenuItem FileQuit{U"FileQuit", Localisation::Btn_Quit(), U"Cmd+Cmd+Q"};

    DesktopMenuItem EditUndo{U"EditUndo", Localisation::Menu_EditUndo(), U"Cmd+Z", EditCommand::Undo};
    DesktopMenuItem EditRedo{U"EditRedo", Localisation::Menu_EditRedo(), U"Cmd+Shift+Z; Cmd+Y", EditCommand::Redo};
    DesktopMenuItem EditCut{U"EditCut", Localisation::Menu_EditCut(), U"Cmd+X", EditCommand::Cut};
    DesktopMenuItem EditCopy{U"EditCopy", Localisation::Menu_EditCopy(), U"Cmd+C", EditCommand::Copy};
    DesktopMenuItem EditPaste{U"EditPaste", Localisation::Menu_EditPaste(), U"Cmd+V", EditCommand::Paste};
    DesktopMenuItem EditClear{U"EditClear", Localisation::Menu_EditClear(), U"", EditCommand::Clear};
    DesktopMenuItem EditSelectAll{U"EditSelectAll", Localisation::Menu_EditSelectAll(), U"Cmd+A",
                                  EditCommand::SelectAll};
    DesktopPreferencesMenuItem ApplePrefs{U"ApplePrefs", Localisation::Menu_Preferences(), U"Cmd+,"};

    DesktopMenuItem TexteGenerer{U"TexteGenerer", Localisation::Btn_Generer(), U"F5"};
    DesktopMenuItem TexteRapport{U"TexteRapport", Localisation::Menu_Rapport()};
    DesktopRepeatingMenuItem TexteMonter{U"TexteMonter", Localisation::Menu_Monter(), U"Option+Up"};
    DesktopRepeatingMenuItem TexteDescendre{U"TexteDescendre", Localisation::Menu_Descendre(), U"Option+Down"};
    DesktopRepeatingMenuItem TexteDoubler{U"TexteDoubler", Localisation::Menu_Doubler(), U"Cmd+D"};
    DesktopRepeatingMenuItem TexteSupprimer{U"TexteSupprimer", Localisation::Menu_Supprimer(), U"Cmd+Shift+K"};
    DesktopRepeatingMenuItem TexteMarqueSuiv{U"TexteMarqueSuiv", Localisation::Menu_MarqueSuiv(), U"F8"};
    DesktopRepeatingMenuItem TexteMarquePrec{U"TexteMarquePrec", Localisation::Menu_MarquePrec(), U"Shift+F8"};
    DesktopRepeatingMenuItem TexteCherchSuiv{U"TexteCherchSuiv", Localisation::Menu_CherchSuiv(), U"F3"};
    DesktopRepeatingMenuItem TexteCherchPrec{U"TexteCherchPrec", Localisation::Menu_CherchPrec(), U"Shift+F3"};
    DesktopMenuItem TexteAjouter{U"TexteAjouter", Localisation::Menu_Ajouter()};
    DesktopMenuItem TexteDesactSansDoss{U"TexteDesactSansDoss", Localisation::Menu_DesactSansDoss()};
    DesktopMenuItem TexteProposer{U"TexteProposer", Localisation::Menu_TexteProposer()};

    DesktopMenuItem UntitledSeparator{U"UntitledSeparator", U"-"};

    /// The menus from left to right, their items from top to bottom.
    DesktopMenuBar Menus()
    {
        return {
            {U"FileMenu",
             Localisation::Menu_Fichier(),
             {&FichSelFichModel, &FichSelArchivDoss, &FichSelFichSpack, &FichSaveFile, &UntitledSeparator, &FileQuit}},
            {U"EditMenu",
             Localisation::Menu_Edit(),
             {&EditUndo, &EditRedo, &UntitledSeparator, &EditCut, &EditCopy, &EditPaste, &EditClear, &EditSelectAll,
              &UntitledSeparator, &ApplePrefs}},
            {U"TextMenu",
             Localisation::Menu_Texte(),
             {&TexteGenerer, &TexteRapport, &UntitledSeparator, &TexteMonter, &TexteDescendre, &TexteDoubler,
              &TexteSupprimer, &UntitledSeparator, &TexteMarqueSuiv, &TexteMarquePrec, &TexteCherchSuiv,
              &TexteCherchPrec, &UntitledSeparator, &TexteAjouter, &TexteDesactSansDoss, &UntitledSeparator,
              &TexteProposer}},
        };
    }

    /// The items that can be chosen only while the program is idle.
    std::vector<DesktopMenuItem*> WhenIdle()
    {
        return {&FichSelFichModel, &FichSelArchivDoss, &FichSelFichSpack, &FichSaveFile, &TexteProposer, &ApplePrefs};
    }

    /// The items that act on the text of the main window.
    std::vector<DesktopMenuItem*> OfText()
    {
        return {&TexteGenerer,    &TexteRapport,    &TexteMonter,     &TexteDescendre,
                &TexteDoubler,    &TexteSupprimer,  &TexteMarqueSuiv, &TexteMarquePrec,
                &TexteCherchSuiv, &TexteCherchPrec, &TexteAjouter,    &TexteDesactSansDoss};
    }
};
