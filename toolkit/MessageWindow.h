/// The window of a message. For the sources of the layer alone.
#pragma once

#include "toolkit/Dialogs.h"

#include <QDialog>

class QDialogButtonBox;
class QTextEdit;

/// Icon, message, explanation, and the buttons in the desktop's usual order. A long text scrolls, so that the whole
/// window takes no more than some six tenths of the screen's height.
class MessageWindow : public QDialog {
public:
    MessageWindow(const MessageDialog& content, QWidget* parent);

    /// The button that closed it.
    [[nodiscard]] MessageDialog::Button Pressed() const { return pressed_; }

protected:
    /// Esc stands for the cancel button.
    void keyPressEvent(QKeyEvent* event) override;

private:
    static void AddText(QTextEdit& text, const String& message, const String& explanation);
    void AddButtons(QDialogButtonBox& box, const MessageDialog& content);
    void FitToScreen(QTextEdit& text, int heightOfTheRest) const;
    void Answer(MessageDialog::Button button);

    MessageDialog::Button pressed_ = MessageDialog::Button::None;
    bool canBeCancelled_ = false;
};
