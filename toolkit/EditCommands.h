/// What the Edit menu does to a text control of Qt. For the sources of this folder only.
#pragma once

#include "toolkit/DesktopMenu.h"

class QWidget;

/// Whether the widget is one whose text can be edited.
bool IsTextControl(const QWidget* widget);

/// Whether the command would do anything to the text control; false without one.
bool CanEdit(EditCommand command, const QWidget* control);

/// Does it, or nothing to what is no text control.
void Edit(EditCommand command, QWidget* control);
