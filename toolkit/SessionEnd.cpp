#include "toolkit/SessionEnd.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array EndSignals = {SIGTERM, SIGINT, SIGHUP};

volatile std::sig_atomic_t endIsRequested = 0;

/// A signal's handler may do little more than write into a pipe, which wakes the event loop.
std::array<int, 2> wakePipe = {-1, -1};

void WakeEventLoop(int /*signal*/)
{
    const int before = errno;
    endIsRequested = 1;
    [[maybe_unused]] const auto written = write(wakePipe[1], "", 1);
    errno = before;
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

bool EndIsRequested() { return endIsRequested != 0; }

void CallAtSessionEnd(const std::function<bool(const std::function<bool()>& mayAsk)>& end)
{
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, [end](QSessionManager& manager) {
        if (!end([&manager] { return manager.allowsInteraction(); })) manager.cancel();
    });
    if (!OpenWakePipe()) return;
    auto* const woken = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(woken, &QSocketNotifier::activated, qApp, [end] {
        std::array<char, 16> drained;
        while (read(wakePipe[0], drained.data(), drained.size()) > 0) {
        }
        end([] { return false; });
    });
    for (const int number : EndSignals)
        if (std::signal(number, WakeEventLoop) == SIG_IGN) std::signal(number, SIG_IGN);
}
