/// What all controls share.
#pragma once

#include "toolkit/core/Text.h"

class DesktopWindow;
class QWidget;

/// The window edges that a control follows when the window is resized, as bits.
namespace Lock {
inline constexpr unsigned Left = 1, Top = 2, Right = 4, Bottom = 8;
}

/// Geometry in points from the top left corner of the window's content, below the menu bar.
///
/// A control tied to both of two opposite edges grows with the window; one tied to the far edge alone moves with it;
/// one tied to neither stays at its distance from the left or the top.
struct Placement {
    int left, top, width, height;
    unsigned locks = Lock::Left | Lock::Top;
    /// Place in the order of the Tab key, or -1 for a control that the Tab key passes over.
    int tab = -1;
};

/// A control of one window, for the life of both. Its Qt object is owned here and is of no concern to anyone else.
///
/// Setting a value from code never fires the control's event.
class DesktopUIControl {
public:
    DesktopUIControl(const DesktopUIControl&) = delete;
    DesktopUIControl& operator=(const DesktopUIControl&) = delete;
    virtual ~DesktopUIControl();

    /// The name by which code tells controls apart; the user doesn't see it.
    [[nodiscard]] String Name() const;
    void SetName(StringView name);

    /// Points in the window's content; see Placement.
    [[nodiscard]] int Left() const { return placement_.left; }
    [[nodiscard]] int Top() const { return placement_.top; }
    [[nodiscard]] int Width() const { return placement_.width; }
    [[nodiscard]] int Height() const { return placement_.height; }
    void Place(int left, int top, int width, int height);
    void SetTop(int points) { Place(Left(), points, Width(), Height()); }

    [[nodiscard]] unsigned Locks() const { return placement_.locks; }
    void SetLocks(unsigned locks) { placement_.locks = locks; }
    [[nodiscard]] int TabIndex() const { return placement_.tab; }

    [[nodiscard]] bool Enabled() const;
    void SetEnabled(bool enabled);
    /// Whether the control is to be seen when its window is.
    [[nodiscard]] bool Visible() const;
    void SetVisible(bool visible);

    [[nodiscard]] String Tooltip() const;
    void SetTooltip(StringView tooltip);

    /// What a screen reader calls the control; a caption is its own name until another is set.
    void SetAccessibleName(StringView name);

    void SetFocus();
    /// A press by the mouse leaves the focus where it is.
    void SetFocusByTabAlone();
    [[nodiscard]] DesktopWindow& Parent() const { return window_; }
    /// Whether an act of the user counts: a screen reader can press what is hidden or disabled. See
    /// `DesktopWindow::TakesInput`.
    [[nodiscard]] bool TakesInput() const;

protected:
    DesktopUIControl(DesktopWindow& window, QWidget* widget, const Placement& placement);

    QWidget* const widget_;

private:
    friend class DesktopWindow;
    void Apply();
    /// The window's content grew by so many points.
    void Follow(int moreWidth, int moreHeight);

    DesktopWindow& window_;
    Placement placement_;
};
