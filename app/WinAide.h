/// The window of the help.
#pragma once

#include "support/Covers.h"
#include "toolkit/DesktopTextArea.h"

/// Tells what the program is, and how to reach its makers; its one button alone closes it. One object is one opening.
class WinAide final : public DesktopWindow {
public:
    WinAide();

    // The controls, in the order of creation.
    DesktopTextArea TexteInfo;
    DesktopButton BoutonOk;
    DesktopLabel StaticTextNomProg;
    Fncts::LabBlockUISet LabBlockUI;
    DesktopLabel Web2, Email2;

    void BoutonOk_Pressed();

private:
    void Event_Opening();
    bool Event_CancelClosing();
    void FollowEmail2() const;

    /// The window refuses to close.
    bool DrapMovableModal = false;
    /// `Fncts::DrapMenu` as it was before.
    bool DrapMenuTemp = false;
};
