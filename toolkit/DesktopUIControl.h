/// What all controls share.
#pragma once

#include "toolkit/Placement.h"
#include "toolkit/core/Text.h"

class DesktopWindow;
class QWidget;

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
    void SetLeft(int points);
    void SetTop(int points);
    void SetWidth(int points);
    void SetHeight(int points);

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
    [[nodiscard]] String AccessibleName() const;
    void SetAccessibleName(StringView name);

    void SetFocus();
    [[nodiscard]] DesktopWindow& Parent() const { return window_; }
    /// Whether an act of the user counts; see `DesktopWindow::TakesInput`.
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
