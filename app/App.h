/// The application object: its menus, the settings that no control holds, and the one switch of the whole interface.
#pragma once

#include "app/MenuBar1.h"
#include "toolkit/DesktopApplication.h"

class App final : public DesktopApplication {
public:
    App(int& argc, char** argv);
    ~App() override { current_ = nullptr; }

    /// The main window at its smallest, with a margin.
    static constexpr DesktopDisplay SmallestScreen{780, 460};

    /// The one application object; it lives as long as `main` runs.
    static App& Current() { return *current_; }

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

    MenuBar1 Menus;
    /// Enables or disables every control that a user may only touch while the program is idle. The main window puts it
    /// in when it is made, as it does with what the menu's items do.
    std::function<void(bool idle)> EnableControls;

    /// Sets `Fncts::DrapMenu`, and brings the interface in line with it.
    void EnableMenuBoutons(bool idle) const;

    /// Whether `ext`, with its leading dot, is an extension of text files; case is ignored.
    [[nodiscard]] static bool ExtInFileType(StringView ext);

    /// The volume of all sounds, in percent. It becomes `value`, or 80 for a value outside 0 to 100.
    [[nodiscard]] Int16 DefVolSon() const { return volSon_; }
    void DefVolSon(Int16 value);

private:
    static inline App* current_ = nullptr;
    Int16 volSon_ = 80;
};
