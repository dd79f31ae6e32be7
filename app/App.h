/// The application object: its menus, the settings that no control holds, and the one switch of the whole interface.
#pragma once

#include "app/MenuBar1.h"
#include "toolkit/DesktopApplication.h"

#include <functional>
#include <vector>

/// What the application asks of the main window. The window puts these in when it is made, so that this room needn't
/// know it.
struct MainWindowLink {
    /// Enables or disables every control that a user may only touch while the program is idle.
    std::function<void(bool idle)> EnableControls;
    /// The acts behind the menu items; `reveal` shows the present item in the file manager instead of a chooser.
    std::function<void(bool reveal)> ActSelFichModel, ActSelArchivDoss, ActSelFichSpack;
    std::function<void()> ActSaveFile;
    std::function<void()> ShowPreferences;
};

class App final : public DesktopApplication {
public:
    App(int& argc, char** argv);
    ~App() override;

    /// The one application object; it lives as long as `main` runs.
    static App& Current();

    /// The replacement table: element 0 of each list is the file name in its field, the others are the rows.
    std::vector<String> TabSpecAorg, TabSpecAdest1, TabSpecAdest2;
    /// Path form of the file that the replacements are made in.
    String PathSpecA;
    /// Height in points of the window "Spécial A" when it was last closed, 0 before that.
    Int16 WspecAheight = 0;
    /// The program has decided to quit.
    bool DrapOkQuit = false;
    /// The button "Spécial A" of the main window is shown.
    bool DrapAffBtnSpecA = false;

    MainWindowLink MainWindow;

    /// Brings the interface in line with `Fncts::DrapMenu`; to be called after each change of it.
    void EnableMenuBoutons() const;

    /// Whether `ext`, with its leading dot, is an extension of text files; case is ignored.
    [[nodiscard]] static bool ExtInFileType(StringView ext);

    /// Keeps the volume of all sounds, in percent. With `set` it becomes `value`, or 80 for a value outside 0 to 100;
    /// the result is the volume from now on.
    Int16 DefVolSon(Int16 value, bool set);

private:
    void Event_MenuBarSelected();
    bool ApplePrefs_Action() const;
    bool FichSaveFile_Action() const;
    bool FichSelArchivDoss_Action() const;
    bool FichSelFichSpack_Action() const;
    bool FichSelFichModel_Action() const;

    MenuBar1 menuBar_;
    Int16 volSon_ = 80;
};
