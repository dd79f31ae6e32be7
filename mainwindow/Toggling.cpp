#include "mainwindow/Toggling.h"

#include "engine/SceneryText.h"

namespace {

/// What a line begins with and what comes in its place, or nothing for a line that doesn't change.
std::optional<TextChange> ChangeOf(StringView line, Int64 start, ToggleMode mode)
{
    if (mode != ToggleMode::Disable && BeginsWith(line, DisabledPrefix))
        return TextChange{start, std::ssize(DisabledPrefix), String(EnabledPrefix)};
    if (mode != ToggleMode::Enable && BeginsWith(line, EnabledPrefix))
        return TextChange{start, std::ssize(EnabledPrefix), String(DisabledPrefix)};
    return {};
}

bool LineEndBefore(StringView text, Int64 position)
{
    return position >= LgTxtEoF && Middle(text, position - LgTxtEoF, LgTxtEoF) == TxtEoF;
}

} // namespace

Selection LineAround(StringView text, Int64 position)
{
    Int64 start = position;
    while (start >= LgTxtEoF && !LineEndBefore(text, start))
        --start;
    Int64 end = start;
    while (end + 1 < std::ssize(text) && Middle(text, end, LgTxtEoF) != TxtEoF)
        ++end;
    return {start, end - start};
}

std::optional<Toggled> ToggleLines(StringView text, Selection selection, ToggleMode mode)
{
    if (selection.length == 0) selection = LineAround(text, selection.start);
    if (selection.length <= 0) return {};

    // The line end before the selection brings its first line in.
    const bool drawnIn = selection.start > LgTxtEoF && LineEndBefore(text, selection.start);
    const Int64 end = selection.start + selection.length;
    const StringView selected = Left(text, end);
    Toggled toggled{{}, selection};
    for (Int64 lineEnd = IndexOf(selected, TxtEoF, selection.start - (drawnIn ? LgTxtEoF : 0)); lineEnd >= 0;
         lineEnd = IndexOf(selected, TxtEoF, lineEnd + LgTxtEoF)) {
        const Int64 start = lineEnd + LgTxtEoF;
        std::optional<TextChange> change = ChangeOf(Middle(selected, start), start, mode);
        if (!change) continue;
        toggled.selection.length += std::ssize(change->text) - change->length;
        toggled.changes.push_back(std::move(*change));
    }
    return toggled;
}
