#include "engine/TextNumbers.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

/// How many texts are under way at the same time.
constexpr std::size_t blockSize = 32;

/// The same for texts that differ in case only; its high bits are the best mixed.
std::uint64_t HashOf(StringView text)
{
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
    std::uint64_t hash = text.size() * odd;
    for (const char32_t character : text)
        hash = (std::rotl(hash, 5) ^ FoldCase(character)) * odd;
    return hash ^ (hash >> 32);
}

std::uint32_t CheckOf(std::uint64_t hash) { return static_cast<std::uint32_t>(hash); }

} // namespace

TextNumbers::TextNumbers(std::size_t most)
    : shift_(64 - static_cast<int>(std::bit_width(2 * most + 1)))
    , slots_(std::size_t{1} << (64 - shift_))
{
    texts_.reserve(most);
}

std::size_t TextNumbers::SlotOf(StringView text, std::uint64_t hash) const
{
    const auto isOther = [&](const Slot& slot) {
        return slot.number != None && (slot.check != CheckOf(hash) || !SameText(texts_[slot.number], text));
    };
    std::size_t index = Home(hash);
    while (isOther(slots_[index]))
        index = (index + 1) % slots_.size();
    return index;
}

/// Has the memory brought up that the look-ups will read; each step finds there what the one before has asked for.
void TextNumbers::ReadAhead(std::span<const std::uint64_t> hashes) const
{
    for (const std::uint64_t hash : hashes)
        __builtin_prefetch(&slots_[Home(hash)]);
    for (const std::uint64_t hash : hashes) {
        if (const Slot& slot = slots_[Home(hash)]; slot.number != None) __builtin_prefetch(&texts_[slot.number]);
    }
    for (const std::uint64_t hash : hashes) {
        const Slot& slot = slots_[Home(hash)];
        if (slot.number != None && slot.check == CheckOf(hash)) __builtin_prefetch(texts_[slot.number].data());
    }
}

/// Calls `use` with each text's index, its slot or the free slot where it belongs, and its hash.
template <class Use>
void TextNumbers::ForEachSlot(std::span<const StringView> texts, Use use) const
{
    std::array<std::uint64_t, blockSize> hashes{};
    for (std::size_t first = 0; first < texts.size(); first += blockSize) {
        const std::span<const StringView> block = texts.subspan(first, std::min(blockSize, texts.size() - first));
        std::transform(block.begin(), block.end(), hashes.begin(), HashOf);
        ReadAhead({hashes.data(), block.size()});
        for (std::size_t i = 0; i < block.size(); ++i)
            use(first + i, SlotOf(block[i], hashes[i]), hashes[i]);
    }
}

std::vector<TextNumbers::Number> TextNumbers::Add(std::span<const StringView> texts)
{
    std::vector<Number> numbers(texts.size());
    ForEachSlot(texts, [&](std::size_t index, std::size_t slot, std::uint64_t hash) {
        if (slots_[slot].number == None) {
            slots_[slot] = {CheckOf(hash), static_cast<Number>(texts_.size())};
            texts_.push_back(texts[index]);
        }
        numbers[index] = slots_[slot].number;
    });
    return numbers;
}

std::vector<TextNumbers::Number> TextNumbers::Find(std::span<const StringView> texts) const
{
    std::vector<Number> numbers(texts.size());
    ForEachSlot(texts,
                [&](std::size_t index, std::size_t slot, std::uint64_t) { numbers[index] = slots_[slot].number; });
    return numbers;
}
