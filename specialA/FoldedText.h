/// A text that is searched for many others, without regard to case.
#pragma once

#include "toolkit/core/Text.h"

#include <bitset>

/// A searched text, not empty.
class Needle {
public:
    explicit Needle(StringView text);

    [[nodiscard]] StringView Folded() const { return folded_; }

private:
    friend class FoldedText;
    String folded_;
    /// The triples of its characters, as numbers; see FoldedText.
    std::vector<std::size_t> triples_;
    /// For each length of its beginning, the longest shorter beginning that it ends with: where a search goes on after
    /// a character that doesn't match, so that no text is read twice.
    std::vector<std::size_t> borders_;
};

/// What stands in the place of a needle.
struct Replacement {
    explicit Replacement(StringView replacement)
        : text(replacement)
        , folded(FoldCase(replacement))
    {
    }

    String text, folded;
};

/// A text beside its folding, and a sketch of it that tells nearly always that a needle isn't there without a search:
/// the triples of characters that follow each other somewhere in it.
class FoldedText {
public:
    explicit FoldedText(StringView text);

    [[nodiscard]] const String& Text() const { return text_; }

    /// How often the needle is there; matches may overlap.
    [[nodiscard]] Int64 Count(const Needle& needle) const;

    /// Replaces the needle from left to right, without overlap. False, with the text as it was, when the result would
    /// have more than `most` characters.
    bool Replace(const Needle& needle, const Replacement& replacement, Int64 most);

private:
    friend class Needle;
    static constexpr std::size_t sketchSize = std::size_t{1} << 16U;
    /// The number of the triple that begins there; some triples share one.
    static std::size_t TripleAt(const char32_t* characters);

    [[nodiscard]] bool MayHold(const Needle& needle) const;
    [[nodiscard]] std::vector<std::size_t> Matches(const Needle& needle, bool overlapping) const;
    /// Brings the triples that begin in a range of the text into the sketch. Those that are gone stay in it.
    void Sketch(std::size_t from, std::size_t to);

    String text_, folded_;
    std::bitset<sketchSize> triples_;
};
