/// An editable text of many lines, with colours.
#pragma once

#include "toolkit/Color.h"
#include "toolkit/DesktopUIControl.h"

#include <memory>

/// Black on white in every appearance; wraps at its width, and scrolls vertically.
///
/// It gives back exactly the characters that it was given, whatever they are. All positions count characters, the only
/// place where they meet the 16-bit units of Qt is inside this class.
class DesktopTextArea : public DesktopUIControl {
public:
    DesktopTextArea(DesktopWindow& window, const Placement& placement);
    ~DesktopTextArea() override;

    [[nodiscard]] String Text() const;
    /// Shows a text in black; the caret goes to offset 0, with nothing selected.
    void SetText(StringView text);
    /// Shows a text with colours: of spans that overlap the later one wins, what none covers is black. The caret goes
    /// to offset 0, with nothing selected, and what is typed next is black.
    void SetStyledText(StringView text, std::span<const ColorSpan> colors);

    [[nodiscard]] Int64 SelectionStart() const;
    [[nodiscard]] Int64 SelectionLength() const;

private:
    class Editor;
    Editor& editor() const;
};
