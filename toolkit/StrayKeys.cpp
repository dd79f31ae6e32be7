#include "toolkit/StrayKeys.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <utility>

namespace {

/// Milliseconds; a key is pressed again on purpose later than that.
constexpr int bounceTime = 400;

QElapsedTimer sinceDialog;
bool pressedInDialog = false;

int releasedKey = 0;
quint64 releasedAt = 0; // milliseconds
bool isHeld = false;

void FollowHeldKey(const QKeyEvent& key)
{
    if (key.type() == QEvent::KeyRelease) {
        releasedKey = key.key();
        releasedAt = key.timestamp();
    }
    isHeld = key.type() != QEvent::KeyRelease &&
             (key.isAutoRepeat() || (key.key() == releasedKey && key.timestamp() == releasedAt));
}

bool ClosesDialogs(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space; }

bool IsFromDialog(const QKeyEvent& key)
{
    if (!ClosesDialogs(key.key())) return false;
    const bool isInDialog = QApplication::activeModalWidget() != nullptr;
    pressedInDialog = pressedInDialog || isInDialog;
    if (!sinceDialog.isValid()) return false;
    if (key.isAutoRepeat() || (!sinceDialog.hasExpired(bounceTime) && !isInDialog)) return true;
    sinceDialog.invalidate();
    return false;
}

/// Where the platform has no other use for Alt. An open menu takes it for the mark of an item.
bool IsLetterWithAlt(const QKeyEvent& key)
{
#ifdef Q_OS_MACOS
    return false;
#else
    const auto commands = key.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    return commands == Qt::AltModifier && !key.text().isEmpty() && key.text().front().isPrint() &&
           !QApplication::activePopupWidget();
#endif
}

} // namespace

void StrayKeys::DialogHasEnded()
{
    if (std::exchange(pressedInDialog, false)) sinceDialog.start();
}

bool StrayKeys::IsOne(const QEvent& event)
{
    // The press of a key that acts in a menu is told as a question about it only.
    const bool isPress = event.type() == QEvent::KeyPress;
    if (!isPress && event.type() != QEvent::KeyRelease && event.type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    FollowHeldKey(key);
    return isPress && (IsFromDialog(key) || IsLetterWithAlt(key));
}

bool StrayKeys::IsHeld() { return isHeld; }
