/// The end of the desktop's log-in, and the signals that ask a program to end. For the sources of this folder only.
#pragma once

#include <functional>

/// Has `quit` called when the log-in ends, and with true at SIGTERM, SIGINT and SIGHUP, which Qt leaves alone, each
/// time from the event loop. A log-in whose end finds the program still there a moment later is asked to go on, as far
/// as the desktop lets it.
void QuitAtSessionEnd(const std::function<void(bool bySignal)>& quit);
