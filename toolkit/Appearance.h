/// How controls look. For the sources of this folder only.
#pragma once

#include "toolkit/Color.h"

#include <QPalette>
#include <QString>

class QWidget;

/// The size of the controls' texts in points of the layout, where the platform leaves it to us: the heights of the
/// placements of controls are made for it.
inline constexpr int ControlFontSize = 12;

/// Brings the controls of a window's content to that size.
void SetControlFont(QWidget& content);

/// Gives the widget the font of its parent in the size `fontSize` (0 for the parent's), or the largest one down to 9 at
/// which `caption` is no wider than `room`.
void FitFont(QWidget& widget, const QString& caption, int room, int fontSize = 0);

/// Gives the widget the font of the resource folder beside its own if its own lacks symbols of the caption. Without
/// that file such a symbol is an empty box.
void ProvideSymbols(QWidget& widget, StringView caption);

/// A caption for a widget that would take "&" for the mark of a key; `Unmarked` gives the caption back.
QString Marked(StringView caption);
String Unmarked(QString caption);

/// Fixes the colour of a text in an enabled widget.
void SetTextColor(QWidget& widget, QPalette::ColorRole role, ColorGroup color);

/// Black on white, whatever the desktop's colours are.
void SetBlackOnWhite(QWidget& widget);
