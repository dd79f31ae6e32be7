/// The application: event loop, windows, menu bar, end.
#pragma once

#include "toolkit/Desktop.h"
#include "toolkit/DesktopMenu.h"
#include "toolkit/DesktopWindow.h"

#include <memory>
#include <optional>

class QApplication;
class QMenuBar;
class QWidget;

/// The one application object. It must live before the first window and after the last.
class DesktopApplication {
public:
    /// `needed` is the screen that the windows need: if the desktop's scale leaves fewer points, it is lowered.
    DesktopApplication(int& argc, char** argv, String name, String version, DesktopDisplay needed = {1, 1});
    DesktopApplication(const DesktopApplication&) = delete;
    DesktopApplication& operator=(const DesktopApplication&) = delete;
    virtual ~DesktopApplication();

    const String Name, Version;

    /// Tells the desktop which entry of its menu the windows belong to: `entry` is that file's name without ".desktop".
    /// The windows have the pictures `icon`_16.png, `icon`_32.png and `icon`_64.png of the resources. To be called
    /// once, before the first window.
    static void SetDesktopEntry(StringView entry, StringView icon);

    /// The bar of every window that is made with one. Items are checked by `MenuBarSelected` before a menu is seen and
    /// before a shortcut acts, and act only when they are enabled then.
    void SetMenuBar(DesktopMenuBar menuBar);
    std::function<void()> MenuBarSelected;

    /// Runs the event loop until the program quits; the result is the program's exit code. An exception that leaves an
    /// event's handler is shown to the user, and the loop goes on.
    int Run();
    /// Asks every open window (`CancelClosing` with true); if none objects, the event loop ends with `exitCode`.
    void Quit(int exitCode);

    /// The desktop's log-in ends, or SIGTERM, SIGINT or SIGHUP has come, whatever the program is doing: what is to be
    /// kept is to be kept now. Dialogs are closed as cancelled afterwards, and the program ends with 0. Nothing may be
    /// asked unless `mayAsk` allows it; the answer false keeps the program running.
    std::function<bool(const std::function<bool()>& mayAsk)> SessionEnding;
    /// Such a signal has come, or the program has decided to end: long work is to be given up. Dialogs aren't shown any
    /// more.
    static bool EndRequested();

    /// Lets the platform repaint and timers fire. Mouse, keyboard, the closing of windows and answers from the network
    /// wait until the program is idle again; what a screen reader presses meanwhile is dropped.
    static void YieldToPlatform();
    /// Lets everything happen, for work that the user can stop; what may not happen meanwhile must be disabled.
    static void YieldToUser();

private:
    friend class DesktopWindow;
    bool EndSession(const std::function<bool()>& mayAsk);
    /// The menu bar for one window, or null when the application has none.
    static QMenuBar* MakeMenuBar(const DesktopWindow& window, QWidget* parent);
    /// Ends the event loop when no window is left.
    static void WindowClosed();
    static bool HasVisibleWindow();

    static inline DesktopApplication* current_ = nullptr;
    /// Calls of `YieldToPlatform` under way.
    static inline int yields_ = 0;

    std::unique_ptr<QApplication> application_;
    DesktopMenuBar menuBar_;
    std::optional<int> exitCode_;
};
