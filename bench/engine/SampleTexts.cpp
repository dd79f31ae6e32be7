#include "bench/engine/SampleTexts.h"

#include "engine/SceneryText.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace {

/// Memory that is set aside and not used costs nothing; a text that is moved as it grows would count in the peak.
constexpr std::size_t mostCharactersOfLine = 100;

/// As many characters that are no other character's other case.
String LastCharacters(std::size_t count)
{
    String characters;
    for (char32_t character = 0x11000; characters.size() < count; ++character) {
        if (FoldCase(character) == character) characters += character;
    }
    return characters;
}

/// What stands behind the prefix of a line.
String RestOf(Shape shape, std::size_t number, StringView lastCharacters)
{
    if (shape == Shape::LastCharacter)
        return String(U"Custom Scenery/Orthophotos of a region, zoom 17, tile ") + lastCharacters[number] + U'/';
    const bool twice = shape == Shape::EveryLineTwice;
    return (twice ? U"/Volumes/Data/Airport " : U"Custom Scenery/Airport ") +
           ToText(static_cast<Int64>(twice ? number / 2 : number)) + U" (roads)/";
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
    const String lastCharacters = shape == Shape::LastCharacter ? LastCharacters(lines) : String();
    std::vector<std::size_t> order(lines);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::shuffle(order.begin(), order.end(), std::mt19937{42});

    Sample sample{String(TxtDebSpack), String(TxtDebSpack)};
    sample.model.reserve(lines * mostCharactersOfLine);
    sample.source.reserve(lines * mostCharactersOfLine);
    for (std::size_t number = 0; number < lines; ++number)
        AppendLine(sample.model, RestOf(shape, number, lastCharacters), number, false);
    for (std::size_t place = 0; place < lines; ++place) {
        const std::size_t number = place < unknown ? lines + place : order[place];
        AppendLine(sample.source, RestOf(shape, number, lastCharacters), number, shape == Shape::Inverted);
    }
    return sample;
}
