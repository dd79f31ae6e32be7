#include "engine/Sorting.h"

#include <algorithm>

namespace {

/// A text to sort, with the two characters that are compared at the moment.
struct Item {
    std::uint64_t key;
    std::size_t index;

    friend auto operator<=>(const Item&, const Item&) = default;
};

/// The characters at `depth` and behind it, higher than 0, which stands for the end of the text.
std::uint64_t KeyAt(StringView text, std::size_t depth)
{
    const auto rank = [&](std::size_t offset) {
        return offset < text.size() ? std::uint64_t{FoldCase(text[offset])} + 1 : std::uint64_t{0};
    };
    return rank(depth) << 32 | rank(depth + 1);
}

bool IsEnd(std::uint64_t key) { return static_cast<std::uint32_t>(key) == 0; }

/// How many characters all texts have in common; at least `depth`.
std::size_t CommonLength(std::span<const StringView> texts, std::span<const Item> items, std::size_t depth)
{
    const StringView first = texts[items.front().index];
    std::size_t length = first.size();
    for (const Item& item : items) {
        const StringView text = texts[item.index];
        length = std::min(length, text.size());
        std::size_t same = depth;
        while (same < length && (text[same] == first[same] || FoldCase(text[same]) == FoldCase(first[same])))
            ++same;
        length = same;
    }
    return length;
}

/// Sorts items whose texts are the same before `depth`.
void SortFrom(std::size_t depth, std::span<const StringView> texts, std::span<Item> items)
{
    if (items.size() < 2) return;
    depth = CommonLength(texts, items, depth);
    for (Item& item : items)
        item.key = KeyAt(texts[item.index], depth);
    std::sort(items.begin(), items.end());
    for (std::size_t begin = 0, end = 0; begin < items.size(); begin = end) {
        const std::uint64_t key = items[begin].key;
        while (end < items.size() && items[end].key == key)
            ++end;
        if (!IsEnd(key)) SortFrom(depth + 2, texts, items.subspan(begin, end - begin));
    }
}

} // namespace

std::vector<std::size_t> SortedOrder(std::span<const StringView> texts)
{
    std::vector<Item> items(texts.size());
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i].index = i;
    SortFrom(0, texts, items);
    std::vector<std::size_t> order(items.size());
    std::transform(items.begin(), items.end(), order.begin(), [](const Item& item) { return item.index; });
    return order;
}
