/// The test application and its menu bar.
#pragma once

#include "toolkit/DesktopApplication.h"

inline DesktopApplication* testApplication = nullptr;

struct TestMenus {
    DesktopMenuItem open{U"Open", U"Ouvrir…", U"Cmd+Shift+O"}, archive{U"Archive", U"Archive…", U"Cmd+Option+O"};
    DesktopMenuItem separator{U"", U"-"};
    DesktopQuitMenuItem quit{U"Quit", U"&Quit", U"Cmd+Cmd+Q"};
    DesktopMenuItem undo{U"Undo", U"&Undo", U"Cmd+Z", EditCommand::Undo};
    DesktopMenuItem redo{U"Redo", U"Rétablir", U"Cmd+Shift+Z; Cmd+Y", EditCommand::Redo};
    DesktopMenuItem cut{U"Cut", U"Couper", U"Cmd+X", EditCommand::Cut};
    DesktopMenuItem copy{U"Copy", U"Copier", U"Cmd+C", EditCommand::Copy};
    DesktopMenuItem paste{U"Paste", U"Coller", U"Cmd+V", EditCommand::Paste};
    DesktopMenuItem clear{U"Clear", U"Effacer", U"", EditCommand::Clear};
    DesktopMenuItem selectAll{U"SelectAll", U"Tout", U"Cmd+A", EditCommand::SelectAll};
    DesktopPreferencesMenuItem preferences{U"Preferences", U"Préférences…", U"Cmd+,"};
    const DesktopMenuBar bar = {
        {U"File", U"Fichier", {&open, &archive, &separator, &quit}},
        {U"Edit", U"Édition", {&undo, &redo, &cut, &copy, &paste, &clear, &selectAll, &preferences}}};
};
inline TestMenus testMenus;
