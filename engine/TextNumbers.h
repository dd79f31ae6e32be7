/// Numbers in the place of texts, for counting what is the same text over and over.
#pragma once

#include "toolkit/core/Text.h"

/// Gives each text a number, counted from 0 in the order in which they are added. Texts that differ in nothing but case
/// have the same number.
///
/// An open hash table at most half full. It takes many texts at a time, since it can then ask for memory ahead of its
/// use: a table of a million texts lies outside the processor's caches, and waiting for each text would cost more than
/// all else. The characters of added texts must outlive the table.
class TextNumbers {
public:
    using Number = std::uint32_t;
    static constexpr Number None = UINT32_MAX;

    /// Holds up to `most` different texts.
    explicit TextNumbers(std::size_t most);

    /// The numbers of the texts in their order, new ones for texts not met before.
    std::vector<Number> Add(std::span<const StringView> texts);
    /// The numbers of the texts in their order, `None` for those that were never added.
    [[nodiscard]] std::vector<Number> Find(std::span<const StringView> texts) const;

    /// How many different texts were added; all numbers are below it.
    [[nodiscard]] std::size_t Count() const { return texts_.size(); }

private:
    struct Slot {
        /// Tells most of the texts apart that want the same slot.
        std::uint32_t check = 0;
        Number number = None;
    };

    template <class Use>
    void ForEachSlot(std::span<const StringView> texts, Use use) const;
    void ReadAhead(std::span<const std::uint64_t> hashes) const;
    [[nodiscard]] std::size_t Home(std::uint64_t hash) const { return hash >> shift_; }
    [[nodiscard]] std::size_t SlotOf(StringView text, std::uint64_t hash) const;

    int shift_;
    std::vector<Slot> slots_;
    /// The texts by their numbers.
    std::vector<StringView> texts_;
};
