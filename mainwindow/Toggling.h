/// Enabling and disabling pack lines of a text.
#pragma once

#include "toolkit/TextDocument.h"

/// A range of characters; a length of 0 is a caret.
struct Selection {
    Int64 start, length;
    bool operator==(const Selection&) const = default;
};

/// The line around a position, without its line end. Of a last line that has no line end the last character is left
/// out.
Selection LineAround(StringView text, Int64 position);

enum class ToggleMode {
    /// Every pack line changes its state.
    Invert,
    /// Disabled lines are enabled.
    Enable,
    /// Enabled lines are disabled.
    Disable,
};

struct Toggled {
    /// The keywords that become others, in order.
    std::vector<TextChange> changes;
    /// The same lines as before, as long as they are then.
    Selection selection;
};

/// How the pack lines change that start in the selection; a caret stands for its line (`LineAround`). Nothing when no
/// character is selected even so.
///
/// A keyword counts at the start of a line alone, and its line end before it must be there: the first line of a text
/// never changes, and neither does a line that is selected from its middle on. Case is ignored, and a changed keyword
/// comes out in capitals. All other characters stay as they are.
std::optional<Toggled> ToggleLines(StringView text, Selection selection, ToggleMode mode);
