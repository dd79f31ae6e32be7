/// What the Edit menu does to the control that has the focus. For the sources of this folder only.
#pragma once

#include "toolkit/DesktopMenu.h"

class QKeyEvent;
class QWidget;

/// A control of ours that the Edit menu works on. What it can't do itself is done as with a text control of Qt, if it
/// is one.
class EditTarget {
public:
    EditTarget() = default;
    virtual ~EditTarget() = default;
    EditTarget(const EditTarget&) = delete;
    EditTarget& operator=(const EditTarget&) = delete;

    [[nodiscard]] virtual bool CanEdit(EditCommand command) const = 0;
    virtual void Edit(EditCommand command) = 0;
};

/// Whether the widget is a text control of Qt or an EditTarget.
bool IsTextControl(const QWidget* widget);

/// Whether the command would do anything to the control; false without one.
bool CanEdit(EditCommand command, const QWidget* control);

/// Does it, or nothing to what is no such control.
void Edit(EditCommand command, QWidget* control);

/// The command that a key stands for on this platform.
EditCommand CommandOf(const QKeyEvent& key);

bool ClipboardHasText();
