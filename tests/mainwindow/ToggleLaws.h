/// What holds for every toggle.
#pragma once

#include "engine/SceneryText.h"
#include "mainwindow/Toggling.h"

#include <gtest/gtest.h>

/// The text with each pack line toggled that starts in the selection, line by line.
inline String ToggleNaively(StringView text, Selection selection, ToggleMode mode)
{
    const LineState kept = mode == ToggleMode::Enable    ? LineState::Enabled
                           : mode == ToggleMode::Disable ? LineState::Disabled
                                                         : LineState::Other;
    String toggled;
    Int64 start = 0;
    for (const SceneryLine& line : LinesOf(text)) {
        const bool starts = start > selection.start || (start == selection.start && start > 1);
        const bool inside = starts && start + std::ssize(line.Prefix()) <= selection.start + selection.length;
        toggled += inside && line.state != kept ? line.Twin() : String(line.text);
        toggled += TxtEoF;
        start += std::ssize(line.text) + LgTxtEoF;
    }
    toggled.pop_back();
    return toggled;
}

inline void ExpectLawfulToggles(StringView text, const Selection& selection)
{
    Selection lines = selection;
    if (selection.length == 0) {
        // Up to the line end, or short of the text's last character.
        lines.start = static_cast<Int64>(text.substr(0, static_cast<std::size_t>(selection.start)).rfind(U'\n') + 1);
        const Int64 end = IndexOf(text, TxtEoF, lines.start);
        lines.length = (end < 0 ? std::max(std::ssize(text) - 1, lines.start) : end) - lines.start;
    }
    for (const ToggleMode mode : {ToggleMode::Invert, ToggleMode::Enable, ToggleMode::Disable}) {
        const std::optional<Toggled> toggled = ToggleLines(text, selection, mode);
        EXPECT_EQ(toggled.has_value(), lines.length > 0);
        if (!toggled) continue;
        String after(text);
        for (auto change = toggled->changes.rbegin(); change != toggled->changes.rend(); ++change)
            after.replace(static_cast<std::size_t>(change->start), static_cast<std::size_t>(change->length),
                          change->text);
        EXPECT_EQ(after, ToggleNaively(text, lines, mode));
        EXPECT_EQ(toggled->selection, (Selection{lines.start, lines.length + std::ssize(after) - std::ssize(text)}));
    }
}
