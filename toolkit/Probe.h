/// A test's hand on the layer: answers dialogs in advance, and records what would be seen, heard or opened.
#pragma once

#include "toolkit/core/FolderItem.h"

#include <deque>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

/// While one lives, no dialog opens, nothing beeps or plays, and no link or file manager is opened; the code above the
/// layer is the same as in use.
class Probe {
public:
    Probe() { current_ = this; }
    ~Probe() { current_ = nullptr; }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    /// The answer of the next dialog: the number of a button (1 action, 2 cancel, 3 alternate, 0 none), or the item
    /// chosen. With none left a message is answered by its action button, a chooser by nothing.
    using Answer = std::variant<int, std::optional<FolderItem>>;
    std::deque<Answer> Answers;
    /// Called, if set, while a dialog counts as open: it is recorded, and not answered yet.
    std::function<void()> WhileAsking;

    /// What was asked, in order: message, line end, explanation (where there is one), and the captions of the buttons
    /// in brackets: "Really?\nIt is gone then.[Yes][No]". A chooser gives its prompt, a MessageBox its text alone.
    std::vector<String> Asked;
    /// The sentences of the status bar.
    std::vector<String> Said;
    int Beeps = 0;
    /// File names of the sounds.
    std::vector<String> Sounds;
    std::vector<String> Links;
    std::vector<String> Revealed;
    std::vector<String> Opened;
    /// Keys that count as held down.
    bool ShiftKey = false, AltKey = false, ControlKey = false;
    /// Width and height of the main screen in points, where it is not to be the real one.
    std::optional<std::pair<int, int>> ScreenSize;

    /// The one that lives, or null.
    static Probe* Current() { return current_; }

private:
    static inline Probe* current_ = nullptr;
};
