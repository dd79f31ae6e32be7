#include "preferences/Preferences.h"

#include <array>
#include <cmath>

namespace {

constexpr StringView separator = U" :@: ";
constexpr StringView tab = U"\t";

bool ReadBoolean(StringView value) { return SameText(value, U"True"); }

/// The number at the start of the value, truncated toward zero; one that no 64-bit integer holds counts as 0.
Int64 ReadInteger(StringView value)
{
    constexpr double limit = 9.0e18;
    const double number = std::trunc(Val(value));
    return std::abs(number) < limit ? static_cast<Int64>(number) : 0;
}

Int16 ReadInt16(StringView value) { return static_cast<Int16>(ReadInteger(value)); }

std::vector<String> ReadList(StringView value)
{
    if (value.empty()) return {};
    const std::vector<StringView> elements = Split(value, tab);
    return {elements.begin(), elements.end()};
}

void ReadGeometry(WindowGeometry& geometry, StringView value)
{
    const auto field = [value](Int64 number) { return ReadInt16(NthField(value, U",", number)); };
    geometry = {field(1), field(2), field(3), field(4)};
}

void ReadSourceModel(Preferences& preferences, StringView value)
{
    const Int64 index = ReadInteger(value);
    if (index == 0 || index == 1)
        preferences.sourceModel = static_cast<int>(index);
    else
        preferences.sourceModelRefused = true;
}

struct Key {
    StringView name;
    void (*read)(Preferences& preferences, StringView value);
};

constexpr std::array keys = {
    Key{U"Afficher Bouton Special A", [](Preferences& p, StringView value) { p.DrapAffBtnSpecA = ReadBoolean(value); }},
    Key{U"Volume Sonore", [](Preferences& p, StringView value) { p.volume = ReadInt16(value); }},
    Key{U"Fenetre WinMain", [](Preferences& p, StringView value) { ReadGeometry(p.geometry, value); }},
    Key{U"Source Model", [](Preferences& p, StringView value) { ReadSourceModel(p, value); }},
    Key{U"SourceFile_Path", [](Preferences& p, StringView value) { p.modelFile = value; }},
    Key{U"SourceUrl", [](Preferences& p, StringView value) { p.modelUrl = value; }},
    Key{U"Archiv Old File", [](Preferences& p, StringView value) { p.archive = ReadBoolean(value); }},
    Key{U"ArchivFolder_Path", [](Preferences& p, StringView value) { p.archiveFolder = value; }},
    Key{U"SceneryPack_Path", [](Preferences& p, StringView value) { p.spackFile = value; }},
    Key{U"WspecAheight", [](Preferences& p, StringView value) { p.WspecAheight = ReadInt16(value); }},
    Key{U"PathSpecA", [](Preferences& p, StringView value) { p.PathSpecA = value; }},
    Key{U"TabSpecAorg", [](Preferences& p, StringView value) { p.TabSpecAorg = ReadList(value); }},
    Key{U"TabSpecAdest1", [](Preferences& p, StringView value) { p.TabSpecAdest1 = ReadList(value); }},
    Key{U"TabSpecAdest2", [](Preferences& p, StringView value) { p.TabSpecAdest2 = ReadList(value); }},
};

/// Of this key, which is no longer written, the first line counts.
bool ReadAffHelpTag(std::span<const String> lines)
{
    constexpr StringView prefix = U"Afficher HelpTag :@: ";
    for (const String& line : lines)
        if (BeginsWith(line, prefix)) return ReadBoolean(Middle(line, std::ssize(prefix)));
    return true;
}

void ReadLine(Preferences& preferences, StringView line)
{
    const Int64 end = IndexOf(line, separator);
    if (end < 0) return;
    for (const Key& key : keys)
        if (SameText(key.name, Left(line, end)))
            return key.read(preferences, Middle(line, end + std::ssize(separator)));
}

} // namespace

Preferences ReadPreferences(std::span<const String> lines)
{
    Preferences preferences;
    preferences.AffHelpTag = ReadAffHelpTag(lines);
    for (const String& line : lines)
        ReadLine(preferences, line);
    return preferences;
}

WindowGeometry FitToScreen(const WindowGeometry& stored, int minimumWidth, int minimumHeight, int screenWidth,
                           int screenHeight)
{
    constexpr int topMargin = 48;
    const bool fits = stored.left >= 0 && stored.top >= topMargin && stored.width >= minimumWidth &&
                      stored.height >= minimumHeight && stored.left + stored.width <= screenWidth &&
                      stored.top + stored.height <= screenHeight;
    if (fits) return stored;
    return {30, 60, static_cast<Int16>(screenWidth - 60), static_cast<Int16>(screenHeight - 60)};
}
