#include "toolkit/StrayKeys.h"

#include <QAction>
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

/// X11 tells a key that is held down as released and pressed in the same millisecond. Qt sees that one is the other's
/// repetition only where both come at once.
void FollowHeldKey(const QKeyEvent& key)
{
    if (key.type() == QEvent::KeyRelease) {
        releasedKey = key.key();
        releasedAt = key.timestamp();
    } else {
        isHeld = key.key() == releasedKey && key.timestamp() == releasedAt;
    }
}

bool IsRepeatedAction(const QObject& receiver)
{
    const auto* const action = qobject_cast<const QAction*>(&receiver);
    return isHeld && action && !action->autoRepeat();
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

bool StrayKeys::IsOne(const QObject& receiver, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Shortcut:
        return IsRepeatedAction(receiver);
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        FollowHeldKey(static_cast<const QKeyEvent&>(event));
        return false;
    case QEvent::KeyPress:
        break;
    default:
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return IsFromDialog(key) || IsLetterWithAlt(key);
}
