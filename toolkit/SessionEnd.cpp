#include "toolkit/SessionEnd.h"

#include <QApplication>
#include <QEventLoop>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array EndSignals = {SIGTERM, SIGINT, SIGHUP};

/// Milliseconds that the program has for its quit before the log-in is asked to go on.
constexpr int QuitTime = 1000;

/// A signal's handler may do little more than write into a pipe, which wakes the event loop.
std::array<int, 2> wakePipe = {-1, -1};

void WakeEventLoop(int /*signal*/)
{
    const int before = errno;
    [[maybe_unused]] const auto written = write(wakePipe[1], "", 1);
    errno = before;
}

void QuitOrGoOn(QSessionManager& manager, const std::function<void()>& quit)
{
    QEventLoop wait;
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &wait, [&wait] { wait.exit(1); });
    limit.start(QuitTime);
    quit();
    // The end of the program ends this loop too, with 0.
    if (wait.exec() != 0 && manager.allowsInteraction()) manager.cancel();
}

} // namespace

struct SessionEnd::Private {
    explicit Private(std::function<void()> quit)
        : Quit(std::move(quit))
    {
    }
    std::function<void()> Quit;
    std::unique_ptr<QSocketNotifier> Woken;
    QObject Context;
};

SessionEnd::SessionEnd(std::function<void()> quit)
    : private_(std::make_unique<Private>(std::move(quit)))
{
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &private_->Context,
                     [this](QSessionManager& manager) { QuitOrGoOn(manager, private_->Quit); });
    if (pipe(wakePipe.data()) != 0) return;
    for (const int end : wakePipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    private_->Woken = std::make_unique<QSocketNotifier>(wakePipe[0], QSocketNotifier::Read);
    QObject::connect(private_->Woken.get(), &QSocketNotifier::activated, &private_->Context, [this] {
        std::array<char, 16> drained;
        while (read(wakePipe[0], drained.data(), drained.size()) > 0) {
        }
        private_->Quit();
    });
    for (const int number : EndSignals)
        if (std::signal(number, WakeEventLoop) == SIG_IGN) std::signal(number, SIG_IGN);
}

SessionEnd::~SessionEnd()
{
    if (!private_->Woken) return;
    for (const int number : EndSignals)
        std::signal(number, SIG_DFL);
    private_->Woken.reset();
    for (const int end : wakePipe)
        close(end);
}
