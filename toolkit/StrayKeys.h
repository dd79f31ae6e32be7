/// Keys that come where nobody meant them to act. For the sources of this folder only.
#pragma once

class QEvent;
class QObject;

namespace StrayKeys {

/// A dialog has ended: a key that closed it may be held down still, or bounce.
void DialogHasEnded();

/// Whether an event is a key to be dropped. These are Return, Enter and the space bar, where they repeat after the end
/// of a dialog or come at once behind it, a letter with Alt, which may open a menu but is no text, and the key of an
/// action that doesn't repeat, where it is held down.
bool IsOne(const QObject& receiver, const QEvent& event);

} // namespace StrayKeys
