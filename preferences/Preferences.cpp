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
        ++preferences.sourceModelRefused;
}

void ReadField(std::optional<String>& field, StringView value)
{
    constexpr std::size_t longest = 65'536;
    if (value.size() <= longest) field = value;
}

String WriteBoolean(bool value) { return value ? U"True" : U"False"; }

/// A pasted line end would break the file into other lines.
String WriteLine(const std::optional<String>& text) { return ReplaceLineEndings(text.value_or(String()), U""); }

String WriteList(const std::vector<String>& elements)
{
    const std::vector<StringView> views(elements.begin(), elements.end());
    return Join(views, tab);
}

String WriteGeometry(const WindowGeometry& geometry)
{
    return ToText(geometry.left) + U"," + ToText(geometry.top) + U"," + ToText(geometry.width) + U"," +
           ToText(geometry.height);
}

struct Key {
    StringView name;
    void (*read)(Preferences& preferences, StringView value);
    String (*write)(const Preferences& preferences);
};

/// In the order in which they are written.
constexpr std::array keys = {
    Key{U"Afficher Bouton Special A", [](Preferences& p, StringView value) { p.DrapAffBtnSpecA = ReadBoolean(value); },
        [](const Preferences& p) { return WriteBoolean(p.DrapAffBtnSpecA); }},
    Key{U"Volume Sonore", [](Preferences& p, StringView value) { p.volume = ReadInt16(value); },
        [](const Preferences& p) { return ToText(p.volume); }},
    Key{U"Fenetre WinMain", [](Preferences& p, StringView value) { ReadGeometry(p.geometry, value); },
        [](const Preferences& p) { return WriteGeometry(p.geometry); }},
    Key{U"Source Model", [](Preferences& p, StringView value) { ReadSourceModel(p, value); },
        [](const Preferences& p) { return ToText(p.sourceModel.value_or(0)); }},
    Key{U"SourceFile_Path", [](Preferences& p, StringView value) { ReadField(p.modelFile, value); },
        [](const Preferences& p) { return WriteLine(p.modelFile); }},
    Key{U"SourceUrl", [](Preferences& p, StringView value) { ReadField(p.modelUrl, value); },
        [](const Preferences& p) { return WriteLine(p.modelUrl); }},
    Key{U"Archiv Old File", [](Preferences& p, StringView value) { p.archive = ReadBoolean(value); },
        [](const Preferences& p) { return WriteBoolean(p.archive.value_or(false)); }},
    Key{U"ArchivFolder_Path", [](Preferences& p, StringView value) { ReadField(p.archiveFolder, value); },
        [](const Preferences& p) { return WriteLine(p.archiveFolder); }},
    Key{U"SceneryPack_Path", [](Preferences& p, StringView value) { ReadField(p.spackFile, value); },
        [](const Preferences& p) { return WriteLine(p.spackFile); }},
    Key{U"WspecAheight", [](Preferences& p, StringView value) { p.WspecAheight = ReadInt16(value); },
        [](const Preferences& p) { return ToText(p.WspecAheight); }},
    Key{U"PathSpecA", [](Preferences& p, StringView value) { p.PathSpecA = value; },
        [](const Preferences& p) { return p.PathSpecA; }},
    Key{U"TabSpecAorg", [](Preferences& p, StringView value) { p.TabSpecAorg = ReadList(value); },
        [](const Preferences& p) { return WriteList(p.TabSpecAorg); }},
    Key{U"TabSpecAdest1", [](Preferences& p, StringView value) { p.TabSpecAdest1 = ReadList(value); },
        [](const Preferences& p) { return WriteList(p.TabSpecAdest1); }},
    Key{U"TabSpecAdest2", [](Preferences& p, StringView value) { p.TabSpecAdest2 = ReadList(value); },
        [](const Preferences& p) { return WriteList(p.TabSpecAdest2); }},
};

} // namespace

void ReadPreference(Preferences& preferences, StringView line)
{
    const Int64 end = IndexOf(line, separator);
    if (end < 0) return;
    const StringView name = Left(line, end), value = Middle(line, end + std::ssize(separator));
    if (SameText(name, U"Afficher HelpTag") && !preferences.AffHelpTag) preferences.AffHelpTag = ReadBoolean(value);
    for (const Key& key : keys)
        if (SameText(key.name, name)) return key.read(preferences, value);
}

String WritePreferences(const Preferences& preferences)
{
    String text;
    for (const Key& key : keys)
        text.append(key.name).append(separator).append(key.write(preferences)).append(EndOfLine::Native);
    return text;
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
