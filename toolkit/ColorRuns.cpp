#include "toolkit/ColorRuns.h"

#include <algorithm>
#include <numeric>
#include <queue>

namespace {

Int64 EndOf(const ColorSpan& span, Int64 length)
{
    if (span.length <= 0 || span.start >= length) return span.start;
    return span.length > length - span.start ? length : span.start + span.length;
}

void Append(std::vector<ColorSpan>& runs, Int64 start, Int64 end, ColorGroup color)
{
    if (!runs.empty() && runs.back().color == color && runs.back().start + runs.back().length == start)
        runs.back().length += end - start;
    else
        runs.push_back({start, end - start, color});
}

} // namespace

std::vector<ColorSpan> ColorRuns(std::span<const ColorSpan> spans, Int64 length)
{
    std::vector<std::size_t> byStart(spans.size());
    std::iota(byStart.begin(), byStart.end(), std::size_t{0});
    std::ranges::stable_sort(byStart, {}, [spans](std::size_t i) { return spans[i].start; });

    std::vector<ColorSpan> runs;
    std::priority_queue<std::size_t> open; // The last span of the list that covers `here` is on top.
    Int64 here = 0;
    for (std::size_t next = 0; next < byStart.size() || !open.empty();) {
        if (open.empty()) here = std::max(here, spans[byStart[next]].start);
        while (next < byStart.size() && spans[byStart[next]].start <= here)
            open.push(byStart[next++]);
        while (!open.empty() && EndOf(spans[open.top()], length) <= here)
            open.pop();
        if (open.empty()) continue;
        Int64 end = EndOf(spans[open.top()], length);
        if (next < byStart.size()) end = std::min(end, spans[byStart[next]].start);
        Append(runs, here, end, spans[open.top()].color);
        here = end;
    }
    return runs;
}
