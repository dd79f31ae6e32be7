#include "specialA/FoldedText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t tripleLength = 3;

} // namespace

Needle::Needle(StringView text)
    : folded_(FoldCase(text))
    , borders_{0}
{
    for (std::size_t i = 0; i + tripleLength <= folded_.size(); ++i)
        triples_.push_back(FoldedText::TripleAt(&folded_[i]));
    for (std::size_t i = 1; i < folded_.size(); ++i) {
        std::size_t border = borders_.back();
        while (border > 0 && folded_[i] != folded_[border])
            border = borders_[border - 1];
        borders_.push_back(folded_[i] == folded_[border] ? border + 1 : 0);
    }
}

std::size_t FoldedText::TripleAt(const char32_t* characters)
{
    // Odd factors spread the letters of one script, which lie close together, over the whole sketch.
    const std::uint32_t mixed = characters[0] * 0x9E3779B1U + characters[1] * 0x85EBCA77U + characters[2] * 0xC2B2AE3DU;
    return mixed >> 16U;
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

bool FoldedText::MayHold(const Needle& needle) const
{
    return std::ranges::all_of(needle.triples_, [this](std::size_t triple) { return triples_.test(triple); });
}

std::vector<std::size_t> FoldedText::Matches(const Needle& needle, bool overlapping) const
{
    std::vector<std::size_t> matches;
    if (!MayHold(needle)) return matches;
    const String& searched = needle.folded_;
    std::size_t matched = 0;
    for (std::size_t i = 0; i < folded_.size(); ++i) {
        while (matched > 0 && folded_[i] != searched[matched])
            matched = needle.borders_[matched - 1];
        if (folded_[i] == searched[matched]) ++matched;
        if (matched < searched.size()) continue;
        matches.push_back(i + 1 - matched);
        matched = overlapping ? needle.borders_.back() : 0;
    }
    return matches;
}

Int64 FoldedText::Count(const Needle& needle) const { return std::ssize(Matches(needle, true)); }

bool FoldedText::Replace(const Needle& needle, const Replacement& replacement, Int64 most)
{
    const std::vector<std::size_t> matches = Matches(needle, false);
    if (matches.empty()) return std::ssize(text_) <= most;
    const std::size_t length = needle.folded_.size(), newLength = replacement.text.size();
    const std::size_t kept = text_.size() - matches.size() * length;
    if (std::cmp_greater(kept, most)) return false;
    if (newLength > 0 && matches.size() > (static_cast<std::size_t>(most) - kept) / newLength) return false;

    const auto replaced = [&](const String& before, const String& put) {
        String after;
        after.reserve(kept + matches.size() * newLength);
        std::size_t done = 0;
        for (const std::size_t match : matches) {
            after.append(before, done, match - done).append(put);
            done = match + length;
        }
        return after.append(before, done);
    };
    text_ = replaced(text_, replacement.text);
    folded_ = replaced(folded_, replacement.folded);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const std::size_t put = matches[i] + i * newLength - i * length;
        Sketch(put - std::min(put, tripleLength - 1), put + newLength);
    }
    return true;
}
