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

bool OpenWakePipe()
{
    if (wakePipe[0] >= 0) return true;
    if (pipe(wakePipe.data()) != 0) return false;
    for (const int end : wakePipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

} // namespace

void QuitAtSessionEnd(const std::function<void(bool bySignal)>& quit)
{
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                     [quit](QSessionManager& manager) { QuitOrGoOn(manager, [&quit] { quit(false); }); });
    if (!OpenWakePipe()) return;
    auto* const woken = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(woken, &QSocketNotifier::activated, qApp, [quit] {
        std::array<char, 16> drained;
        while (read(wakePipe[0], drained.data(), drained.size()) > 0) {
        }
        quit(true);
    });
    for (const int number : EndSignals)
        if (std::signal(number, WakeEventLoop) == SIG_IGN) std::signal(number, SIG_IGN);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [] {
        for (const int number : EndSignals)
            std::signal(number, SIG_DFL);
    });
}
