/// The menu bar and its items.
#pragma once

#include "toolkit/core/Text.h"

#include <functional>
#include <memory>
#include <vector>

/// What the platform's text controls do for an item of their own, on the control that has the focus.
enum class EditCommand { None, Undo, Redo, Cut, Copy, Paste, Clear, SelectAll };

/// An item, or a line between items when its text is "-".
class DesktopMenuItem {
public:
    /// `shortcut` in the form "Cmd+Shift+O", where Cmd is the platform's command key (Control on Linux) and Option its
    /// Alt key; a doubled "Cmd+Cmd+Q" means the same key once; "; " stands between several. An item with an `edit`
    /// command needs no handler.
    DesktopMenuItem(String name, String text, String shortcut = {}, EditCommand edit = EditCommand::None);
    virtual ~DesktopMenuItem() = default;
    DesktopMenuItem(const DesktopMenuItem&) = delete;
    DesktopMenuItem& operator=(const DesktopMenuItem&) = delete;

    const String Name, Text, Shortcut;
    const EditCommand Edit;
    bool Enabled = true;
    /// The user chose the item, by mouse or by its shortcut.
    std::function<void()> Action;
};

/// An item that acts again and again while its shortcut is held, as those with an `edit` command do.
class DesktopRepeatingMenuItem : public DesktopMenuItem {
public:
    using DesktopMenuItem::DesktopMenuItem;
};

/// Asks the application to quit, unless it has an action of its own.
class DesktopQuitMenuItem : public DesktopMenuItem {
public:
    using DesktopMenuItem::DesktopMenuItem;
};

/// The item of the preferences, which the platform may put at a place of its own.
class DesktopPreferencesMenuItem : public DesktopMenuItem {
public:
    using DesktopMenuItem::DesktopMenuItem;
};

struct DesktopMenu {
    String name, text;
    std::vector<DesktopMenuItem*> items;
};

/// The menus, shown by each window that has a menu bar.
using DesktopMenuBar = std::vector<DesktopMenu>;
