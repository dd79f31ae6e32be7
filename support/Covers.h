/// Covers over the windows that a dialog doesn't hang on, and small adjustments of windows.
#pragma once

#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopWindow.h"

#include <memory>

namespace Fncts {

/// A window's two labels "LabBlockUI" and "LabBlockUI1". The second is the cover: hidden and small until a dialog on
/// another window lays it over everything, where it takes the mouse.
///
/// A window holds one as a member and calls `Opening` from its own opening event, when all its controls exist.
class LabBlockUISet {
public:
    /// `tab` is its place in the window's order of controls; the Tab key passes labels over.
    LabBlockUISet(DesktopWindow& window, int tab);

    /// Makes the cover, above all controls that the window has by now.
    void Opening();

private:
    DesktopLabel first_;
    std::unique_ptr<DesktopLabel> clone_;
};

/// Lays the covers over all visible windows but `win` (`opening`), or takes them off. The result tells a dialog to hang
/// on `win`: it is true when `opening` is and the window is visible; else nothing is covered.
bool CtrlDsFenetrDiag(DesktopWindow* win, bool opening);

enum class CoverAct {
    /// The dialog's window `win` is remembered, or forgotten (null).
    Remember,
    /// `win` was activated: the user is sent back to the dialog's window, with one beep and its reason unless the last
    /// call is no more than 12 ticks ago.
    Activated,
};

/// Knows the window that a dialog hangs on. The result is true when no window is remembered.
bool CmLabBlockUI(CoverAct act, DesktopWindow* win);

/// Moves each control to where its class looks best beside the others: text fields one point up, sliders two down. Once
/// for each window.
void DecPosCtrl(DesktopWindow& win);

/// Tells the authors of windows that are open too early, that is, all but the `known` ones.
void CtrlFenetrOuv(const std::vector<DesktopWindow*>& known);

/// Gives the focus back to the control that has it, or to the window itself when none has or a segmented button does.
void WrkArrSegButBugF(DesktopWindow& win);

} // namespace Fncts
