/// The simple controls: what they show, and the events that a user's act fires.
#pragma once

#include "toolkit/Color.h"
#include "toolkit/DesktopUIControl.h"
#include "toolkit/core/FolderItem.h"

#include <functional>

class QButtonGroup;

/// A push button. Its caption is literal: "&" is a character like any other.
class DesktopButton : public DesktopUIControl {
public:
    /// `fontSize` in points of the layout, 0 for the system's size.
    DesktopButton(DesktopWindow& window, const Placement& placement, StringView caption, int fontSize = 0);

    [[nodiscard]] String Caption() const;
    void SetCaption(StringView caption);
    /// Enter presses the default button of its window, unless another button has the focus; Esc the cancel button.
    void SetDefault();
    void SetCancel();

    std::function<void()> Pressed;

private:
    int fontSize_;
};

struct FieldStyle {
    bool readOnly = false;
    ColorGroup color{};
    /// A tab or a line end that comes in becomes a blank.
    bool oneLine = false;
};

/// A field of one line, black on white in every appearance, grey while it is disabled. Line ends in its text stay,
/// though they are not seen.
class DesktopTextField : public DesktopUIControl {
public:
    DesktopTextField(DesktopWindow& window, const Placement& placement, StringView text = {},
                     const FieldStyle& style = {});

    /// The text, tidied where it was typed.
    [[nodiscard]] String Text() const;
    void SetText(StringView text);
    void SelectAll();

    /// Enter and Esc.
    std::function<void()> Entered, Escaped;
    /// What stands for a text that was pasted, or that was typed and then left, confirmed by Enter or asked for. The
    /// text comes without blanks and line ends around it, and goes in like that where another isn't given; that takes
    /// the place of all that the field holds.
    std::function<String(StringView text)> Tidied;
    /// An item was dropped on the field, or something else than one that is there; without a handler it takes none.
    std::function<void(const std::optional<FolderItem>& item)> ItemDropped;
    /// Whether the pointer shows, over the field, that it can be dropped; it always can.
    std::function<bool(const std::optional<FolderItem>& item)> TakesItem;
};

enum class TextAlignment { Left, Center, Right };

struct LabelStyle {
    ColorGroup color{};
    TextAlignment alignment = TextAlignment::Left;
    bool bold = false;
    bool underline = false;
    /// Points of the layout, 0 for the system's size.
    int fontSize = 0;
    /// Wraps where it must, and can be selected and copied; what has no room scrolls.
    bool multiline = false;
    /// Can be pressed, and takes the focus if it has a place in the order of the Tab key.
    bool link = false;
};

/// A text that the user can't change.
class DesktopLabel : public DesktopUIControl {
public:
    DesktopLabel(DesktopWindow& window, const Placement& placement, StringView text, const LabelStyle& style = {});

    [[nodiscard]] String Text() const;
    void SetText(StringView text);

    /// The mouse went down and up on the link, or it was pressed by Enter, the space bar or a screen reader.
    std::function<void()> Pressed;

private:
    int fontSize_;
};

class DesktopCheckBox : public DesktopUIControl {
public:
    DesktopCheckBox(DesktopWindow& window, const Placement& placement, StringView caption);

    [[nodiscard]] bool Value() const;
    void SetValue(bool checked);
};

/// Choices of which one is selected, one below the other in equal heights.
class DesktopRadioGroup : public DesktopUIControl {
public:
    /// The captions are separated by line ends. The first choice is selected.
    DesktopRadioGroup(DesktopWindow& window, const Placement& placement, StringView captions);

    [[nodiscard]] int SelectedIndex() const;
    void SetSelectedIndex(int index);

private:
    QButtonGroup* const choices_;
};

class DesktopPopupMenu : public DesktopUIControl {
public:
    /// `rows` are separated by line ends.
    DesktopPopupMenu(DesktopWindow& window, const Placement& placement, StringView rows, int selectedRow);

    /// -1 when no row is selected.
    [[nodiscard]] int SelectedRowIndex() const;
    void SetSelectedRowIndex(int row);
    [[nodiscard]] String SelectedRowText() const;

    std::function<void()> SelectionChanged;

private:
    /// The row after the last change that counted.
    int row_;
};

/// A button of one segment that stays down when it is pressed and comes up when it is pressed again.
class DesktopSegmentedButton : public DesktopUIControl {
public:
    DesktopSegmentedButton(DesktopWindow& window, const Placement& placement, StringView caption);

    [[nodiscard]] bool Selected(int segmentIndex) const;
    void SetSelected(int segmentIndex, bool selected);
    /// Keys such as "Ctrl+S" (Cmd on macOS) that press the button from any window of the program.
    void SetShortcut(StringView keys);

    std::function<void(int segmentIndex)> Pressed;
};

struct SliderStyle {
    int minimum, maximum, value;
    /// How far an arrow key moves it, and how far a page key or a click beside the knob does.
    int lineStep, pageStep;
};

/// A horizontal slider without tick marks. Its value follows the knob while that is dragged.
class DesktopSlider : public DesktopUIControl {
public:
    DesktopSlider(DesktopWindow& window, const Placement& placement, const SliderStyle& style);

    [[nodiscard]] int Value() const;
    void SetValue(int value);

    /// The value changed, by the user or by `SetValue`.
    std::function<void()> ValueChanged;
};

/// A bar that shows how far a long work is.
class DesktopProgressBar : public DesktopUIControl {
public:
    DesktopProgressBar(DesktopWindow& window, const Placement& placement);

    /// 0 to 100 percent.
    void SetValue(int percent);
};
