/// The test application and its menu bar.
#pragma once

#include "toolkit/DesktopApplication.h"

inline DesktopApplication* testApplication = nullptr;

struct TestMenus {
    DesktopMenuItem open{U"Open", U"Ouvrir…", U"Ctrl+Shift+O"}, archive{U"Archive", U"Archive…", U"Ctrl+Alt+O"};
    DesktopMenuItem separator{U"", U"-"};
    DesktopQuitMenuItem quit{U"Quit", U"&Quit", U"Ctrl+Q"};
    DesktopMenuItem undo{U"Undo", U"&Undo", U"Ctrl+Z", EditCommand::Undo};
    DesktopMenuItem redo{U"Redo", U"Rétablir", U"Ctrl+Shift+Z; Ctrl+Y", EditCommand::Redo};
    DesktopMenuItem cut{U"Cut", U"Couper", U"Ctrl+X", EditCommand::Cut};
    DesktopMenuItem copy{U"Copy", U"Copier", U"Ctrl+C", EditCommand::Copy};
    DesktopMenuItem paste{U"Paste", U"Coller", U"Ctrl+V", EditCommand::Paste};
    DesktopMenuItem clear{U"Clear", U"Effacer", U"", EditCommand::Clear};
    DesktopMenuItem selectAll{U"SelectAll", U"Tout", U"Ctrl+A", EditCommand::SelectAll};
    DesktopPreferencesMenuItem preferences{U"Preferences", U"Préférences…", U"Ctrl+,"};
    const DesktopMenuBar bar = {
        {U"File", U"Fichier", {&open, &archive, &separator, &quit}},
        {U"Edit", U"Édition", {&undo, &redo, &cut, &copy, &paste, &clear, &selectAll, &preferences}}};
};
inline TestMenus testMenus;
