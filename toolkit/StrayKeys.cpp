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
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return IsFromDialog(key) || IsLetterWithAlt(key);
}
