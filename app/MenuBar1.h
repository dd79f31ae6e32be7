/// The program's menu bar.
#pragma once

#include "toolkit/DesktopMenu.h"

/// The items whose handlers or state belong to the program are members; the Edit items are served by the platform's
/// text controls.
class MenuBar1 {
public:
    MenuBar1();

    DesktopMenuItem FichSelFichModel, FichSelArchivDoss, FichSelFichSpack, FichSaveFile;
    DesktopPreferencesMenuItem ApplePrefs;

    /// The two menus from top to bottom.
    [[nodiscard]] DesktopMenuBar Menus();

private:
    DesktopMenuItem untitledSeparator_;
    DesktopQuitMenuItem fileQuit_;
    DesktopMenuItem editUndo_, untitledSeparator0_, editCut_, editCopy_, editPaste_, editClear_, editSelectAll_,
        untitledSeparator1_;
};
