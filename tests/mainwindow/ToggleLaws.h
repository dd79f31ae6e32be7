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

/// A text after a toggle, or nothing where there is none.
struct AfterToggle {
    String text;
    Selection selection;
};

inline std::optional<AfterToggle> Toggle(StringView text, Selection selection, ToggleMode mode)
{
    const std::optional<Toggled> toggled = ToggleLines(text, selection, mode);
    if (!toggled) return {};
    AfterToggle after{String(text), toggled->selection};
    for (auto change = toggled->changes.rbegin(); change != toggled->changes.rend(); ++change)
        after.text.replace(static_cast<std::size_t>(change->start), static_cast<std::size_t>(change->length),
                           change->text);
    return after;
}

inline void ExpectLawfulToggles(StringView text, Selection selection)
{
    const std::optional<AfterToggle> once = Toggle(text, selection, ToggleMode::Invert);
    if (selection.length == 0) {
        // Up to the line end, or short of the text's last character.
        const auto start =
            static_cast<Int64>(text.substr(0, static_cast<std::size_t>(selection.start)).rfind(U'\n') + 1);
        const Int64 end = IndexOf(text, TxtEoF, start);
        selection = {start, (end < 0 ? std::max(std::ssize(text) - 1, start) : end) - start};
    }
    EXPECT_EQ(once.has_value(), selection.length > 0);
    if (!once) return;
    EXPECT_EQ(once->text, InvertNaively(text, selection));

    const AfterToggle twice = *Toggle(once->text, once->selection, ToggleMode::Invert);
    EXPECT_TRUE(SameText(twice.text, text)) << "twice gives the text back, with its keywords in capitals";
    EXPECT_EQ(twice.selection, selection);
    const AfterToggle thrice = *Toggle(twice.text, twice.selection, ToggleMode::Invert);
    EXPECT_EQ(thrice.text, once->text);

    for (const ToggleMode mode : {ToggleMode::Enable, ToggleMode::Disable}) {
        const AfterToggle forced = *Toggle(text, selection, mode);
        const AfterToggle again = *Toggle(forced.text, forced.selection, mode);
        EXPECT_EQ(again.text, forced.text) << "what is forced stays";
        EXPECT_EQ(again.selection, forced.selection);
        // The other state is forced on all lines of the selection, wherever they come from.
        const ToggleMode other = mode == ToggleMode::Enable ? ToggleMode::Disable : ToggleMode::Enable;
        EXPECT_EQ(Toggle(forced.text, forced.selection, other)->text,
                  Toggle(forced.text, forced.selection, ToggleMode::Invert)->text);
    }
}
