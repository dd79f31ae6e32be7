#include "specialA/FoldedText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t tripleLength = 3;

/// The place in the sketch of the triple that begins there.
std::size_t TripleAt(const char32_t* characters)
{
    // Odd factors spread the letters of one script, which lie close together, over the whole sketch.
    const std::uint32_t mixed = characters[0] * 0x9E3779B1U + characters[1] * 0x85EBCA77U + characters[2] * 0xC2B2AE3DU;
    return mixed >> 16U;
}

} // namespace

Needle::Needle(StringView text)
    : folded(FoldCase(text))
    , borders{0}
{
    for (std::size_t i = 0; i + tripleLength <= folded.size(); ++i)
        triples.push_back(TripleAt(&folded[i]));
    for (std::size_t i = 1; i < folded.size(); ++i) {
        std::size_t border = borders.back();
        while (border > 0 && folded[i] != folded[border])
            border = borders[border - 1];
        borders.push_back(folded[i] == folded[border] ? border + 1 : 0);
    }
}

FoldedText::FoldedText(StringView text)
    : text_(text)
    , folded_(FoldCase(text))
{
    Sketch(0, folded_.size());
}

void FoldedText::Sketch(std::size_t from, std::size_t to)
{
    for (std::size_t i = from; i < to && i + tripleLength <= folded_.size(); ++i)
        triples_.set(TripleAt(&folded_[i]));
}

std::vector<std::size_t> FoldedText::Matches(const Needle& needle, bool overlapping) const
{
    std::vector<std::size_t> matches;
    if (!std::ranges::all_of(needle.triples, [&](std::size_t triple) { return triples_.test(triple); })) return matches;
    const String& searched = needle.folded;
    std::size_t matched = 0;
    for (std::size_t i = 0; i < folded_.size(); ++i) {
        while (matched > 0 && folded_[i] != searched[matched])
            matched = needle.borders[matched - 1];
        if (folded_[i] == searched[matched]) ++matched;
        if (matched < searched.size()) continue;
        matches.push_back(i + 1 - matched);
        matched = overlapping ? needle.borders.back() : 0;
    }
    return matches;
}

bool FoldedText::Replace(const Needle& needle, StringView replacement, Int64 most)
{
    const std::vector<std::size_t> matches = Matches(needle, false);
    const std::size_t length = needle.folded.size(), newLength = replacement.size();
    const std::size_t newSize = text_.size() - matches.size() * length + matches.size() * newLength;
    if (std::cmp_greater(newSize, most)) return false;
    if (matches.empty()) return true;

    const auto replaced = [&](const String& before, StringView put) {
        String after;
        after.reserve(newSize);
        std::size_t done = 0;
        for (const std::size_t match : matches) {
            after.append(before, done, match - done).append(put);
            done = match + length;
        }
        return after.append(before, done);
    };
    text_ = replaced(text_, replacement);
    folded_ = replaced(folded_, FoldCase(replacement));
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const std::size_t put = matches[i] + i * newLength - i * length;
        Sketch(put - std::min(put, tripleLength - 1), put + newLength);
    }
    return true;
}
