/// The window of a message. For the sources of the layer alone.
#pragma once

#include "toolkit/Dialogs.h"

class QDialog;
class QWidget;

/// Icon, message, explanation, and the buttons in the desktop's usual order; its result is the number of the button
/// that closed it. A QMessageBox neither scrolls a long text nor breaks a long word: here a text scrolls, so that the
/// whole window takes no more than some six tenths of the screen's height.
QDialog* MakeMessageWindow(const MessageDialog& content, QWidget* parent);
