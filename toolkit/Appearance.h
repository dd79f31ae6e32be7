/// How controls look. For the sources of this folder only.
#pragma once

#include "toolkit/Color.h"

#include <QPalette>
#include <QString>

class QTextEdit;
class QWidget;

/// The colours of all windows, light on every desktop: the fixed colours of texts are made for them.
QPalette LightPalette();

/// Gives the controls of a window's content, where the platform leaves it to us, the size of the desktop's font as far
/// as their placements have room for it: 12 to 14 points of the layout.
void SetControlFont(QWidget& content);

/// Gives the widget the font of its parent in the size `fontSize` (0 for the parent's), or the largest one down to 9 at
/// which `caption` is no wider than `room`.
void FitFont(QWidget& widget, const QString& caption, int room, int fontSize = 0);

/// A caption for a widget that would take "&" for the mark of a key.
QString Marked(StringView caption);

/// Fixes the colour of a text in an enabled widget.
void SetTextColor(QWidget& widget, QPalette::ColorRole role, ColorGroup color);

/// A text that can be read, selected and copied, and stands on the window's own background.
QTextEdit* MakeReadOnlyText(QWidget* parent = nullptr);
