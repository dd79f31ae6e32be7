#include "engine/Sorting.h"

#include "engine/FoldedBytes.h"

#include <algorithm>

namespace {

/// A text to sort, and the piece of it that is compared at the moment.
struct Item {
    std::uint64_t key;
    std::size_t index;

    friend bool operator<(const Item& left, const Item& right)
    {
        return left.key != right.key ? left.key < right.key : left.index < right.index;
    }
};

constexpr std::size_t bytesInKey = 7;

/// The folded texts one behind the other.
class FoldedTexts {
public:
    explicit FoldedTexts(std::span<const StringView> texts)
    {
        begins_.reserve(texts.size() + 1);
        std::string folded;
        for (const StringView text : texts) {
            FoldIntoBytes(text, folded);
            bytes_ += folded;
            begins_.push_back(bytes_.size());
        }
    }

    std::string_view operator[](std::size_t index) const
    {
        return {bytes_.data() + begins_[index], begins_[index + 1] - begins_[index]};
    }

private:
    std::string bytes_;
    std::vector<std::size_t> begins_ = {0};
};

/// The bytes behind `depth` from the highest place down, and in the lowest how many there are: of two texts that are
/// otherwise the same the shorter one comes first.
std::uint64_t KeyAt(std::string_view text, std::size_t depth)
{
    text = text.substr(depth, bytesInKey);
    std::uint64_t key = 0;
    for (std::size_t i = 0; i < bytesInKey; ++i)
        key = key << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return key << 8 | text.size();
}

bool IsEnd(std::uint64_t key) { return (key & 0xFF) < bytesInKey; }

/// How many bytes all texts have in common; at least `depth`.
std::size_t CommonLength(const FoldedTexts& texts, std::span<const Item> items, std::size_t depth)
{
    std::string_view common = texts[items.front().index];
    for (const Item& item : items) {
        const std::string_view text = texts[item.index].substr(0, common.size());
        const auto end = std::mismatch(text.begin() + depth, text.end(), common.begin() + depth).first;
        common = common.substr(0, static_cast<std::size_t>(end - text.begin()));
    }
    return common.size();
}

/// Sorts items whose texts are the same before `depth`.
void SortFrom(std::size_t depth, const FoldedTexts& texts, std::span<Item> items)
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
        if (!IsEnd(key)) SortFrom(depth + bytesInKey, texts, items.subspan(begin, end - begin));
    }
}

} // namespace

std::vector<std::size_t> SortedOrder(std::span<const StringView> texts)
{
    std::vector<Item> items(texts.size());
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i].index = i;
    SortFrom(0, FoldedTexts(texts), items);
    std::vector<std::size_t> order(items.size());
    std::transform(items.begin(), items.end(), order.begin(), [](const Item& item) { return item.index; });
    return order;
}
