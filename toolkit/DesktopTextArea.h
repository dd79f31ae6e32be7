/// An editable text of many lines, with colours.
#pragma once

#include "toolkit/DesktopUIControl.h"
#include "toolkit/TextDocument.h"

/// Black on white in every appearance, grey while it is disabled; wraps at its width, and scrolls vertically. Ctrl with
/// the wheel, plus, minus and 0 zoom it.
///
/// It shows a document of its own until it is given another. All positions count characters of the document on screen.
class DesktopTextArea : public DesktopUIControl {
public:
    /// `fontSize` in points of the layout, 0 for the desktop's size.
    DesktopTextArea(DesktopWindow& window, const Placement& placement, int fontSize = 0);
    ~DesktopTextArea() override;

    /// Shows a document, with its caret and where it was scrolled to. It must live as long as it is shown.
    void SetDocument(TextDocument& document);

    [[nodiscard]] String Text() const;
    void SetText(StringView text);
    /// A text that can only be read has no caret, and the mouse wheel and the keys scroll it.
    void SetReadOnly(bool readOnly);

    /// The line of the caret, counted from 0; a wrapped line is one.
    [[nodiscard]] Int64 CaretLine() const;
    [[nodiscard]] String TextOfCaretLine() const;
    [[nodiscard]] bool CaretLineShowsMark() const;
    std::function<void()> CaretMoved;
    [[nodiscard]] Int64 SelectionStart() const;
    [[nodiscard]] Int64 SelectionLength() const;
    [[nodiscard]] String SelectedText() const;
    /// Selects characters, as far as the text has them; a length of 0 sets the caret. What is scrolled stays so.
    void Select(Int64 start, Int64 length);

    /// Offset of the first CR, or -1.
    [[nodiscard]] Int64 FirstReturn() const;

    struct Passage {
        Int64 start;
        String text;
    };
    /// The whole lines that the selection or the caret touches, with the two characters before them.
    [[nodiscard]] Passage SelectedLines() const;

    /// Ascending changes, none overlapping, as one step to undo, or none where there is no change; then selects. What
    /// is scrolled stays so, also when the step is undone or redone.
    void Change(std::span<const TextChange> changes, Int64 start, Int64 length);

    /// Each one step to undo on the lines that the selection or the caret touches; colours, selection and what is
    /// scrolled stay. False where nothing can be done, such as moving into or from the first `fixedLines` lines.
    bool MoveLines(bool down, Int64 fixedLines);
    bool DoubleLines();
    bool DeleteLines();

    /// Scrolls until the line on screen of a character stands `linesAbove` lines below the top, or as far as the text
    /// goes. A wrapped line counts as several.
    void ScrollTo(Int64 position, Int64 linesAbove);

    enum class Jump { None, Ahead, Around };
    /// Sets the caret to the next or previous line that shows a mark, `linesAbove` lines below the top; past the end of
    /// the text it goes on at the other one.
    Jump GoToMark(bool forward, Int64 linesAbove);

private:
    class TextEditor& editor() const;

    TextDocument own_;
};
