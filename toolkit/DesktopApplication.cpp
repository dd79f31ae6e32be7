#include "toolkit/DesktopApplication.h"

#include "toolkit/Appearance.h"
#include "toolkit/Dialogs.h"
#include "toolkit/SessionEnd.h"
#include "toolkit/StrayKeys.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/QtText.h"
#include "toolkit/core/System.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QToolTip>
#include <QTranslator>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <utility>

namespace {

/// Tells the user of an exception that nothing else has caught, one at a time; it never throws.
void TellOfException(const char* what) noexcept
{
    static bool telling = false;
    std::fprintf(stderr, "%s\n", what);
    if (telling) return;
    telling = true;
    try {
        MessageBox(U"Error ! Please contact the authors.\n" + FromQt(QString::fromUtf8(what)));
    } catch (...) {
        std::fputs("There was no way to show this error.\n", stderr);
    }
    telling = false;
}

/// Ends an exception at the event that raised it, so that the program goes on with the next one; drops stray keys.
class GuardedApplication final : public QApplication {
public:
    GuardedApplication(int& argc, char** argv)
        : QApplication(argc, argv)
    {
        installEventFilter(this);
    }

    /// As a filter it leaves the menu bar's own: to that, Alt would have been pressed without any letter.
    bool eventFilter(QObject* receiver, QEvent* event) override { return StrayKeys::IsOne(*receiver, *event); }

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            TellOfException(error.what());
        } catch (...) {
            TellOfException("Unknown exception");
        }
        return false;
    }
};

std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv, const DesktopDisplay& needed)
{
#ifndef Q_OS_MACOS
    // Known before the application is made, or the desktop's own style is loaded first.
    QApplication::setStyle(QStringLiteral("Fusion"));
#endif
    auto application = std::make_unique<GuardedApplication>(argc, argv);
    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    const double share = std::min(1.0 * screen.Width / needed.Width, 1.0 * screen.Height / needed.Height);
    if (share >= 1 || share * application->devicePixelRatio() < 1) return application;
    // The scale is read when an application is made. Programs that this one starts are to have the desktop's.
    constexpr const char* variable = "QT_SCALE_FACTOR";
    const QByteArray desktops = qgetenv(variable);
    const double scale = desktops.isEmpty() ? 1 : desktops.toDouble();
    application.reset();
    qputenv(variable, QByteArray::number(std::floor(100 * scale * share) / 100));
    application = std::make_unique<GuardedApplication>(argc, argv);
    qputenv(variable, desktops);
    return application;
}

} // namespace

DesktopApplication::DesktopApplication(int& argc, char** argv, String name, String version, DesktopDisplay needed)
    : Name(std::move(name))
    , Version(std::move(version))
    , application_(MakeApplication(argc, argv, needed))
{
    current_ = this;
    QApplication::setPalette(LightPalette());
    QToolTip::setPalette(LightPalette());
    CallAtSessionEnd([this](const std::function<bool()>& mayAsk) { return EndSession(mayAsk); });
    // A file above the user's limit of sizes is an error of its writer, and no end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication::setApplicationName(ToQt(Name));
    QApplication::setApplicationVersion(ToQt(Version));
    QApplication::setQuitOnLastWindowClosed(false);
    const std::optional<FolderItem> resources = ResourceFolder();
    if (!resources) return;
    const QString folder = ToQt(resources->NativePath());
    // Qt takes from it what the desktop's fonts lack.
    QFontDatabase::addApplicationFont(folder + QStringLiteral("/TarnivelSymbols.ttf"));
    auto* const platformTexts = new QTranslator(qApp);
    if (platformTexts->load(ToQt(U"qtbase_" + UserLanguage()), folder + QStringLiteral("/translations")))
        QApplication::installTranslator(platformTexts);
}

void DesktopApplication::SetDesktopEntry(StringView entry, StringView icon)
{
    QApplication::setDesktopFileName(ToQt(entry));
#ifndef Q_OS_MACOS // where the bundle has the icon
    const std::optional<FolderItem> resources = ResourceFolder();
    if (!resources) return;
    QIcon pictures;
    for (const int size : {16, 32, 64})
        pictures.addFile(QStringLiteral("%1/%2_%3.png").arg(ToQt(resources->NativePath()), ToQt(icon)).arg(size),
                         QSize(size, size));
    QApplication::setWindowIcon(pictures);
#endif
}

DesktopApplication::~DesktopApplication() { current_ = nullptr; }

void DesktopApplication::SetMenuBar(DesktopMenuBar menuBar) { menuBar_ = std::move(menuBar); }

int DesktopApplication::Run()
{
    // A window that refused to open, or a quit from its opening, has left no loop to end.
    if (exitCode_ || !HasVisibleWindow()) return exitCode_.value_or(0);
    return QApplication::exec();
}

void DesktopApplication::Quit(int exitCode)
{
    const std::vector<DesktopWindow*> windows = DesktopWindow::All();
    const bool refused = std::ranges::any_of(windows, [](DesktopWindow* window) {
        return window->Visible() && window->CancelClosing && window->CancelClosing(true);
    });
    if (refused) return;
    exitCode_ = exitCode;
    QApplication::exit(exitCode);
}

bool DesktopApplication::EndSession(const std::function<bool()>& mayAsk)
{
    if (SessionEnding && !SessionEnding(mayAsk)) return false;
    exitCode_ = 0;
    // All event loops end, those of dialogs too, which are then closed as cancelled.
    QApplication::exit(0);
    return true;
}

bool DesktopApplication::EndRequested() { return EndIsRequested() || (current_ && current_->exitCode_); }

bool DesktopApplication::HasVisibleWindow()
{
    return std::ranges::any_of(DesktopWindow::All(), &DesktopWindow::Visible);
}

void DesktopApplication::WindowClosed()
{
    if (!HasVisibleWindow()) QApplication::exit(0);
}

void DesktopApplication::YieldToUser() { QApplication::processEvents(); }

void DesktopApplication::YieldToPlatform()
{
    if (!QApplication::instance()) return;
    ++yields_;
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    --yields_;
}
