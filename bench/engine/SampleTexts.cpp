#include "bench/engine/SampleTexts.h"

#include "engine/SceneryText.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace {

/// What stands behind the prefix of each line, by the line's number.
std::vector<String> MakeRests(Shape shape, std::size_t count)
{
    const bool twice = shape == Shape::EveryLineTwice;
    std::vector<String> rests;
    // No other character has this one or those above it as its other case, as long as it folds to itself.
    for (char32_t last = 0x11000; shape == Shape::LastCharacter && rests.size() < count; ++last) {
        if (FoldCase(last) != last) continue;
        rests.push_back(String(U"Custom Scenery/Orthophotos of a region, zoom 17, tile ") + last + U'/');
    }
    while (rests.size() < count) {
        const auto number = static_cast<Int64>(twice ? rests.size() / 2 : rests.size());
        rests.push_back((twice ? U"/Volumes/Data/Airport " : U"Custom Scenery/Airport ") + ToText(number) +
                        U" (roads)/");
    }
    return rests;
}

/// Every seventh pack is in the other state than the rest.
void AppendLine(String& text, StringView rest, std::size_t number, bool disabled)
{
    text.append(TxtEoF).append((number % 7 == 0) == disabled ? EnabledPrefix : DisabledPrefix).append(rest);
}

std::size_t UnknownLines(Shape shape, std::size_t lines)
{
    if (shape == Shape::NothingKnown) return lines;
    return shape == Shape::FirstHalfUnknown ? lines / 2 : 0;
}

} // namespace

Sample MakeSample(Shape shape, std::size_t lines)
{
    const std::size_t unknown = UnknownLines(shape, lines);
    const std::vector<String> rests = MakeRests(shape, lines + unknown);
    std::vector<std::size_t> order(lines);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::shuffle(order.begin(), order.end(), std::mt19937{42});

    Sample sample{String(TxtDebSpack), String(TxtDebSpack)};
    for (std::size_t number = 0; number < lines; ++number)
        AppendLine(sample.model, rests[number], number, false);
    for (std::size_t place = 0; place < lines; ++place) {
        const std::size_t number = place < unknown ? lines + place : order[place];
        AppendLine(sample.source, rests[number], number, shape == Shape::Inverted);
    }
    return sample;
}
