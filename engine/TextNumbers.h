/// Numbers in the place of texts, for counting what is the same text over and over.
#pragma once

#include "toolkit/core/Text.h"

/// Gives each text a number, counted from 0 in the order in which they are added. Texts that differ in nothing but case
/// have the same number.
///
/// An open hash table, at most half full, beside a folded copy of each text in few bytes. It takes many texts at a
/// time, since it can then ask for memory ahead of its use: a table of a million texts lies outside the processor's
/// caches, and waiting for one text after the other would cost more than all else.
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
    [[nodiscard]] std::size_t Count() const { return begins_.size() - 1; }

private:
    struct Slot {
        /// Tells most of the texts apart that want the same slot.
        std::uint32_t check = 0;
        Number number = None;
    };
    /// A text under way.
    struct Key {
        std::string folded;
        std::size_t hash = 0;

        void Set(StringView text);
        [[nodiscard]] std::uint32_t Check() const { return static_cast<std::uint32_t>(hash); }
    };

    template <class Use>
    void ForEachSlot(std::span<const StringView> texts, Use use) const;
    void ReadAhead(std::span<const Key> keys) const;
    [[nodiscard]] std::size_t Home(const Key& key) const { return key.hash >> shift_; }
    [[nodiscard]] std::size_t SlotOf(const Key& key) const;
    [[nodiscard]] std::string_view Folded(Number number) const;

    int shift_;
    std::vector<Slot> slots_;
    /// The folded texts one behind the other, and where each begins, with the end of the last.
    std::string folded_;
    std::vector<std::size_t> begins_ = {0};
};
