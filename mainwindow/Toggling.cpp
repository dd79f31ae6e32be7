#include "mainwindow/Toggling.h"

#include "engine/SceneryText.h"

namespace {

/// A line end, and the keyword behind it as the mode changes it, or nothing behind it that changes.
struct Change {
    Int64 length = 0;
    StringView keyword;
};

Change ChangeAt(StringView keywordAndRest, ToggleMode mode)
{
    if (mode != ToggleMode::Disable && BeginsWith(keywordAndRest, DisabledPrefix))
        return {std::ssize(DisabledPrefix), EnabledPrefix};
    if (mode != ToggleMode::Enable && BeginsWith(keywordAndRest, EnabledPrefix))
        return {std::ssize(EnabledPrefix), DisabledPrefix};
    return {};
}

/// `range` with the keyword behind each of its line ends changed.
String ChangeKeywords(StringView range, ToggleMode mode)
{
    String changed;
    changed.reserve(range.size());
    for (Int64 from = 0;;) {
        const Int64 lineEnd = IndexOf(range, TxtEoF, from);
        if (lineEnd < 0) return changed.append(Middle(range, from));
        const Int64 keyword = lineEnd + LgTxtEoF;
        const Change change = ChangeAt(Middle(range, keyword), mode);
        changed.append(Middle(range, from, keyword - from)).append(change.keyword);
        from = keyword + change.length;
    }
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
    const Int64 drawnIn = selection.start > LgTxtEoF && LineEndBefore(text, selection.start) ? LgTxtEoF : 0;
    const Int64 start = selection.start - drawnIn;
    const Int64 end = selection.start + selection.length;
    const String changed = ChangeKeywords(Middle(text, start, end - start), mode);

    String whole(Left(text, start));
    whole.append(changed).append(Middle(text, end));
    return Toggled{std::move(whole), {selection.start, std::ssize(changed) - drawnIn}};
}
