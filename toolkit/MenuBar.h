/// The menu bar of one window in Qt. For the sources of this folder only.
#pragma once

#include "toolkit/DesktopMenu.h"

#include <QMenuBar>
#include <QPointer>

/// What a menu bar needs of the application.
struct MenuServices {
    /// Whether the window's menus are open to the user at present.
    std::function<bool()> takesInput;
    /// Brings `Enabled` of all items up to date.
    std::function<void()> validate;
    std::function<void()> quit;
};

/// A bar with `menus` for `window`, which owns it. The items must outlive it.
QMenuBar* MakeMenuBar(QWidget* window, const DesktopMenuBar& menus, const MenuServices& services);
