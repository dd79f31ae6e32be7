/// The end of the desktop's log-in, and the signals that ask a program to end. For the sources of this folder only.
#pragma once

#include <functional>

/// Has `end` called when the log-in ends, and at SIGTERM, SIGINT and SIGHUP, which Qt leaves alone, each time from the
/// event loop, which may be a dialog's. `mayAsk` tells whether the user may be asked something: never at a signal.
/// Where `end` answers false the log-in is asked to go on.
void CallAtSessionEnd(const std::function<bool(const std::function<bool()>& mayAsk)>& end);

/// One of these signals has come.
bool EndIsRequested();
