#include "mainwindow/Colouring.h"

#include "engine/SceneryText.h"

std::vector<ColorSpan> ColourKeywords(StringView line)
{
    constexpr StringView start = U"SCENERY_PACK"; // of both keywords
    std::vector<ColorSpan> spans;
    for (Int64 at = IndexOf(line, start); at >= 0; at = IndexOf(line, start, at + std::ssize(start)))
        for (const LineState state : {LineState::Disabled, LineState::Enabled})
            if (BeginsWith(Middle(line, at), PrefixOf(state)))
                spans.push_back({at, std::ssize(PrefixOf(state)),
                                 state == LineState::Enabled ? Colouring::EnabledKeyword : Colouring::DisabledKeyword});
    return spans;
}
