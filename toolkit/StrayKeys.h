/// Keys that come where nobody meant them to act. For the sources of this folder only.
#pragma once

class QEvent;

namespace StrayKeys {

/// A dialog has ended: a key that closed it may be held down still, or bounce.
void DialogHasEnded();

/// Whether an event is a key to be dropped. These are Return, Enter and the space bar, where they repeat after the end
/// of a dialog or come at once behind it, and a letter with Alt, which may open a menu but is no text.
bool IsOne(const QEvent& event);

/// Whether the key pressed last is one that is held down. X11 may tell that as a release and a press in the same
/// millisecond, which a menu takes for a key pressed again.
bool IsHeld();

} // namespace StrayKeys
