/// The end of the desktop's log-in, and the signals that ask a program to end. For the sources of this folder only.
#pragma once

#include <functional>
#include <memory>

class SessionEnd {
public:
    /// Calls `quit` when the log-in ends, and at SIGTERM, SIGINT and SIGHUP, each time from the event loop. A log-in
    /// whose end finds the program still there a moment later is asked to go on, as far as the desktop lets it.
    explicit SessionEnd(std::function<void()> quit);
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;
    ~SessionEnd();

private:
    struct Private;
    std::unique_ptr<Private> private_;
};
