/// The application: event loop, windows, menu bar, end.
#pragma once

#include "toolkit/DesktopMenu.h"
#include "toolkit/DesktopWindow.h"

#include <memory>

class QMenuBar;
class QWidget;

/// The one application object. It must live before the first window and after the last.
class DesktopApplication {
public:
    DesktopApplication(int& argc, char** argv, String name, String version);
    DesktopApplication(const DesktopApplication&) = delete;
    DesktopApplication& operator=(const DesktopApplication&) = delete;
    virtual ~DesktopApplication();

    const String Name, Version;

    /// The bar of every window that is made with one. Items are checked by `MenuBarSelected` before a menu is seen and
    /// before a shortcut acts, and act only when they are enabled then.
    void SetMenuBar(DesktopMenuBar menuBar);
    std::function<void()> MenuBarSelected;

    /// Runs the event loop until the program quits; the result is the program's exit code.
    int Run();
    /// Asks every open window (`CancelClosing` with true); if none objects, the event loop ends with `exitCode`.
    void Quit(int exitCode);

    static Int64 WindowCount();
    /// Windows that exist, hidden ones included, in the order of their creation.
    static DesktopWindow* WindowAt(Int64 index);

    /// Lets the platform repaint and its timers fire, without serving the user's mouse and keyboard.
    static void YieldToPlatform();

private:
    friend class DesktopWindow;
    /// The menu bar for one window, or null when the application has none.
    static QMenuBar* MakeMenuBar(QWidget* window);
    /// Ends the event loop when no window is left.
    static void WindowClosed();
    static bool HasVisibleWindow();

    struct Private;
    std::unique_ptr<Private> private_;
};
