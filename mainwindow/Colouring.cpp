#include "mainwindow/Colouring.h"

#include "engine/SceneryText.h"

namespace {

void MarkLine(Colours& colours, StringView text, Int64 jNbre)
{
    const Int64 kNbre = jNbre < std::ssize(text) ? IndexOf(text, TxtEoF, jNbre) + 1 : -1;
    if (jNbre < kNbre)
        colours.spans.push_back({jNbre, kNbre - jNbre, Colouring::MarkedLine});
    else
        colours.badMarks.push_back({jNbre, kNbre});
}

void ColourKeyword(Colours& colours, StringView text, StringView keyword, ColorGroup color)
{
    const Int64 length = std::ssize(keyword);
    for (Int64 found = IndexOf(text, keyword); found >= 0; found = IndexOf(text, keyword, found + length))
        colours.spans.push_back({found, length, color});
}

} // namespace

Colours ColourText(StringView text, std::span<const Int64> marks)
{
    Colours colours;
    for (const Int64 mark : marks)
        MarkLine(colours, text, mark);
    ColourKeyword(colours, text, DisabledPrefix, Colouring::DisabledKeyword);
    ColourKeyword(colours, text, EnabledPrefix, Colouring::EnabledKeyword);
    return colours;
}
