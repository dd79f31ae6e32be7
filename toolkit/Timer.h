/// Timers.
#pragma once

#include <functional>
#include <memory>

class QTimer;

/// Fires `Action` on the main thread once its period has passed.
class Timer {
public:
    enum class RunModes { Off, Single };

    /// `period` in milliseconds.
    explicit Timer(int period);
    ~Timer();

    /// Off stops it; Single starts the period anew, and is Off again before `Action` runs.
    void SetRunMode(RunModes mode);

    std::function<void()> Action;

private:
    std::unique_ptr<QTimer> timer_;
};
