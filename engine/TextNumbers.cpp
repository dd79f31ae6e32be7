#include "engine/TextNumbers.h"

#include "engine/FoldedBytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>

namespace {

/// How many texts are under way at the same time.
constexpr std::size_t blockSize = 32;

} // namespace

void TextNumbers::Key::Set(StringView text)
{
    FoldIntoBytes(text, folded);
    hash = std::hash<std::string_view>{}(folded);
}

TextNumbers::TextNumbers(std::size_t most)
    : shift_(64 - static_cast<int>(std::bit_width(2 * most + 1)))
    , slots_(std::size_t{1} << (64 - shift_))
{
    begins_.reserve(most + 1);
}

std::string_view TextNumbers::Folded(Number number) const
{
    return std::string_view(folded_).substr(begins_[number], begins_[number + 1] - begins_[number]);
}

std::size_t TextNumbers::SlotOf(const Key& key) const
{
    const auto isOther = [&](const Slot& slot) {
        return slot.number != None && (slot.check != key.Check() || Folded(slot.number) != key.folded);
    };
    std::size_t index = Home(key);
    while (isOther(slots_[index]))
        index = (index + 1) % slots_.size();
    return index;
}

/// Has the memory brought up that the look-ups will read; each step finds there what the one before has asked for.
void TextNumbers::ReadAhead(std::span<const Key> keys) const
{
    for (const Key& key : keys)
        __builtin_prefetch(&slots_[Home(key)]);
    for (const Key& key : keys) {
        if (const Slot& slot = slots_[Home(key)]; slot.number != None) __builtin_prefetch(&begins_[slot.number]);
    }
    for (const Key& key : keys) {
        const Slot& slot = slots_[Home(key)];
        if (slot.number != None && slot.check == key.Check()) __builtin_prefetch(Folded(slot.number).data());
    }
}

/// Calls `use` with each text's index and key, and its slot or the free slot where it belongs.
template <class Use>
void TextNumbers::ForEachSlot(std::span<const StringView> texts, Use use) const
{
    std::array<Key, blockSize> keys;
    for (std::size_t first = 0; first < texts.size(); first += blockSize) {
        const std::span<Key> block(keys.data(), std::min(blockSize, texts.size() - first));
        for (std::size_t i = 0; i < block.size(); ++i)
            block[i].Set(texts[first + i]);
        ReadAhead(block);
        for (std::size_t i = 0; i < block.size(); ++i)
            use(first + i, block[i], SlotOf(block[i]));
    }
}

std::vector<TextNumbers::Number> TextNumbers::Add(std::span<const StringView> texts)
{
    std::vector<Number> numbers(texts.size());
    ForEachSlot(texts, [&](std::size_t index, const Key& key, std::size_t slot) {
        if (slots_[slot].number == None) {
            slots_[slot] = {key.Check(), static_cast<Number>(Count())};
            folded_ += key.folded;
            begins_.push_back(folded_.size());
        }
        numbers[index] = slots_[slot].number;
    });
    return numbers;
}

std::vector<TextNumbers::Number> TextNumbers::Find(std::span<const StringView> texts) const
{
    std::vector<Number> numbers(texts.size());
    ForEachSlot(texts, [&](std::size_t index, const Key&, std::size_t slot) { numbers[index] = slots_[slot].number; });
    return numbers;
}
