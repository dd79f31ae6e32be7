#include "toolkit/Timer.h"

#include <QTimer>

Timer::Timer(int period)
    : timer_(std::make_unique<QTimer>())
{
    timer_->setSingleShot(true);
    timer_->setInterval(period);
    QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] {
        if (Action) Action();
    });
}

Timer::~Timer() = default;

void Timer::SetRunMode(RunModes mode)
{
    if (mode == RunModes::Off)
        timer_->stop();
    else
        timer_->start();
}
