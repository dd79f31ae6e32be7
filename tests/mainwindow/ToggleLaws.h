/// What holds for every toggle.
#pragma once

#include "engine/SceneryText.h"
#include "mainwindow/Toggling.h"

#include <gtest/gtest.h>

/// The text with each pack line inverted that starts in the selection, line by line.
inline String InvertNaively(StringView text, Selection selection)
{
    String inverted;
    Int64 start = 0;
    for (const SceneryLine& line : LinesOf(text)) {
        const bool starts = start > selection.start || (start == selection.start && start > 1);
        const bool inside = starts && start + std::ssize(line.Prefix()) <= selection.start + selection.length;
        inverted += inside ? line.Twin() : String(line.text);
        inverted += TxtEoF;
        start += std::ssize(line.text) + LgTxtEoF;
    }
    inverted.pop_back();
    return inverted;
}

inline void ExpectLawfulToggles(StringView text, Selection selection)
{
    const std::optional<Toggled> once = ToggleLines(text, selection, ToggleMode::Invert);
    if (selection.length == 0) selection = LineAround(text, selection.start);
    EXPECT_EQ(once.has_value(), selection.length > 0);
    if (!once) return;
    EXPECT_EQ(once->text, InvertNaively(text, selection));

    const Toggled twice = *ToggleLines(once->text, once->selection, ToggleMode::Invert);
    EXPECT_TRUE(SameText(twice.text, text)) << "twice gives the text back, with its keywords in capitals";
    EXPECT_EQ(twice.selection, selection);
    const Toggled thrice = *ToggleLines(twice.text, twice.selection, ToggleMode::Invert);
    EXPECT_EQ(thrice.text, once->text);

    for (const ToggleMode mode : {ToggleMode::Enable, ToggleMode::Disable}) {
        const Toggled forced = *ToggleLines(text, selection, mode);
        const Toggled again = *ToggleLines(forced.text, forced.selection, mode);
        EXPECT_EQ(again.text, forced.text) << "what is forced stays";
        EXPECT_EQ(again.selection, forced.selection);
        // The other state is forced on all lines of the selection, wherever they come from.
        const ToggleMode other = mode == ToggleMode::Enable ? ToggleMode::Disable : ToggleMode::Enable;
        EXPECT_EQ(ToggleLines(forced.text, forced.selection, other)->text,
                  ToggleLines(forced.text, forced.selection, ToggleMode::Invert)->text);
    }
}
