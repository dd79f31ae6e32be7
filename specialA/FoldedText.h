/// A text that is searched for many others, without regard to case.
#pragma once

#include "toolkit/core/Text.h"

#include <bitset>

/// A searched text, not empty, made ready for the search.
struct Needle {
    explicit Needle(StringView text);

    String folded;
    /// The triples of its characters, as numbers; see FoldedText.
    std::vector<std::size_t> triples;
    /// For each length of its beginning, the longest shorter beginning that it ends with: where a search goes on after
    /// a character that doesn't match, so that no text is read twice.
    std::vector<std::size_t> borders;
};

/// A text beside its folding, and a sketch of it that tells nearly always that a needle isn't there without a search:
/// the triples of characters that follow each other somewhere in it.
class FoldedText {
public:
    explicit FoldedText(StringView text);

    [[nodiscard]] const String& Text() const { return text_; }

    /// How often the needle is there; matches may overlap.
    [[nodiscard]] Int64 Count(const Needle& needle) const { return std::ssize(Matches(needle, true)); }

    /// Replaces the needle from left to right, without overlap. False, with the text as it was, when the result would
    /// have more than `most` characters.
    bool Replace(const Needle& needle, StringView replacement, Int64 most);

private:
    /// Where the needle begins.
    [[nodiscard]] std::vector<std::size_t> Matches(const Needle& needle, bool overlapping) const;
    /// Brings the triples that begin in a range of the text into the sketch. Those that are gone stay in it.
    void Sketch(std::size_t from, std::size_t to);

    String text_, folded_;
    /// By 16 bits each; some triples share a place.
    std::bitset<std::size_t{1} << 16U> triples_;
};
