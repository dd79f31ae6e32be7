/// An editable text of many lines, with colours.
#pragma once

#include "toolkit/Color.h"
#include "toolkit/DesktopUIControl.h"

#include <memory>

/// Black on white in every appearance, grey while it is disabled; wraps at its width, and scrolls vertically.
///
/// It gives back exactly the characters that it was given, whatever they are. All positions count characters, the only
/// place where they meet the 16-bit units of Qt is inside this class.
class DesktopTextArea : public DesktopUIControl {
public:
    /// `fontSize` in points of the layout, 0 for the system's size.
    DesktopTextArea(DesktopWindow& window, const Placement& placement, int fontSize = 0);
    ~DesktopTextArea() override;

    [[nodiscard]] String Text() const;
    /// Shows a text in black; the caret goes to offset 0, with nothing selected.
    void SetText(StringView text);
    /// Shows a text with colours: of spans that overlap the later one wins, what none covers is black. The caret goes
    /// to offset 0, with nothing selected, and what is typed next is black.
    void SetStyledText(StringView text, std::span<const ColorSpan> colors);
    /// The same as a step that the user can undo, which brings back the former text with its colours and the caret.
    /// What is scrolled stays so.
    void ReplaceStyledText(StringView text, std::span<const ColorSpan> colors);

    /// A text that can only be read has no caret, and the mouse wheel and the keys scroll it.
    void SetReadOnly(bool readOnly);

    [[nodiscard]] Int64 SelectionStart() const;
    [[nodiscard]] Int64 SelectionLength() const;
    [[nodiscard]] String SelectedText() const;
    /// Selects characters, as far as the text has them; a length of 0 sets the caret.
    void Select(Int64 start, Int64 length);

    /// The line on screen, counted from 0, in which a character stands; a wrapped line counts as several.
    [[nodiscard]] Int64 LineNumber(Int64 position) const;
    /// Scrolls until that line is at the top, or as far as the text goes.
    void SetVerticalScrollPosition(Int64 line);

private:
    class Editor;
    Editor& editor() const;
};
