/// Windows.
#pragma once

#include "toolkit/DesktopUIControl.h"

#include <functional>
#include <memory>
#include <vector>

/// What a window is made with. Sizes are points of the content, which lies between menu bar and status bar.
struct WindowStyle {
    String title;
    int width, height;
    int minimumWidth = 0, minimumHeight = 0;
    int maximumWidth = 32000, maximumHeight = 32000;
    bool hasMenuBar = false, hasStatusBar = false;
    bool resizable = true;
    /// Keeps the user from all other windows while it is open.
    bool movableModal = false;
    /// The buttons that close, maximise and minimise it.
    bool hasTitleButtons = true;
};

/// A window's place and size in points, as `DesktopWindow::Left` and those after it.
struct WindowPlace {
    int left, top, width, height;
};

/// A window and the controls that stand in it, in the order of their creation. Hidden until `Show`.
class DesktopWindow {
public:
    explicit DesktopWindow(const WindowStyle& style);
    DesktopWindow(const DesktopWindow&) = delete;
    DesktopWindow& operator=(const DesktopWindow&) = delete;
    virtual ~DesktopWindow();

    /// Windows that exist, hidden ones included, in the order of their creation.
    static const std::vector<DesktopWindow*>& All() { return all_; }

    [[nodiscard]] String Title() const;
    /// Shows that the window holds what is not saved yet, as the platform does.
    void SetModified(bool modified);
    [[nodiscard]] int MinimumWidth() const;
    [[nodiscard]] int MinimumHeight() const;

    /// The content's place in points from the main screen's top left corner; the frame and the bars lie outside.
    /// Where the desktop doesn't tell a window where it stands, as on Wayland, the place last set.
    [[nodiscard]] int Left() const;
    [[nodiscard]] int Top() const;
    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    void SetLeft(int points);
    void SetTop(int points);
    void SetWidth(int points);
    void SetHeight(int points);
    /// Where the window stands, or, while it is maximised, would stand again afterwards.
    [[nodiscard]] WindowPlace RestoredPlace() const;

    /// How far the window reaches below its content.
    [[nodiscard]] int StatusHeight() const;
    /// What the status bar always shows.
    void SetStatus(StringView status);
    /// Shows a sentence for a while in the status bar of the window that the user works in; where that has none, in
    /// another's. A screen reader reads it out, the focus stays where it is. An empty one takes the last away.
    static void Say(StringView sentence);
    /// A screen reader reads the words out, the screen doesn't show them. Empty ones take back what isn't read yet.
    void SayUnseen(StringView words);

    [[nodiscard]] bool Visible() const;
    /// Whether the keyboard goes to this window.
    [[nodiscard]] bool Active() const;
    /// Whether the window was shown and not closed since; true while it opens, before anything is seen.
    [[nodiscard]] bool IsOpen() const { return opened_; }
    /// Shows the window and brings it to the front. The first call, and the first after a close, fires `Opening` before
    /// anything is seen.
    void Show();
    /// Asks `CancelClosing`, and closes the window unless it answers true. With the last one the program ends.
    void Close();

    /// The control that has the focus, or null.
    [[nodiscard]] DesktopUIControl* Focus() const;
    /// Takes the focus from every control.
    void SetFocus();
    /// Keeps the keyboard from the controls: the focus leaves them, and the Tab key doesn't bring it back. Afterwards
    /// the control that had it has it again.
    void BlockKeyboard(bool blocked);

    /// Whether the user's acts reach the window's controls and menus, from wherever they come. They are dropped while a
    /// dialog blocks the window, while the keyboard is kept from it, and while the program only yields to the platform:
    /// a screen reader, unlike mouse and keyboard, knows nothing of that.
    [[nodiscard]] bool TakesInput() const;

    [[nodiscard]] const std::vector<DesktopUIControl*>& Controls() const { return controls_; }

    std::function<void()> Opening;
    /// The window becomes the one that the keyboard goes to.
    std::function<void()> Activated;
    /// The user asked for the search by the platform's keys for it.
    std::function<void()> FindRequested;
    /// The window is about to close, alone or with the whole program; true keeps it open.
    std::function<bool(bool appQuitting)> CancelClosing;

private:
    friend class DesktopApplication;
    friend class DesktopUIControl;
    friend class Dialogs;
    class Shell;

    [[nodiscard]] QWidget* Content() const;
    void Add(DesktopUIControl& control);
    void Remove(DesktopUIControl& control);
    /// Brings the Tab key's order in line with the controls' tab indices.
    void ApplyTabOrder();
    void ContentResized(int width, int height);
    /// The active window, else one that is visible, or null.
    static DesktopWindow* Front();

    static inline std::vector<DesktopWindow*> all_;
    /// The one that the user worked in last, if it lives: a dialog that has just closed leaves none active.
    static inline const DesktopWindow* lastWithStatus_ = nullptr;
    int width_, height_;
    bool opened_ = false;
    std::vector<DesktopUIControl*> controls_;
    std::unique_ptr<Shell> shell_;
};
