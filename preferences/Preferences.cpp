#include "preferences/Preferences.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace {

constexpr StringView separator = U" :@: ";
constexpr StringView tab = U"\t";

/// The number at the start of the value, truncated toward zero; one that no 64-bit integer holds counts as 0.
Int64 Integer(StringView value)
{
    constexpr double limit = 9.0e18;
    const double number = std::trunc(Val(value));
    return std::abs(number) < limit ? static_cast<Int64>(number) : 0;
}

// Each gives the field its value, and is false for one that is passed over.

bool Read(bool& field, StringView value)
{
    field = SameText(value, U"True");
    return true;
}

bool Read(Int16& field, StringView value)
{
    field = static_cast<Int16>(Integer(value));
    return true;
}

bool Read(String& field, StringView value)
{
    field = value;
    return true;
}

bool Read(std::vector<String>& field, StringView value)
{
    field.clear();
    if (value.empty()) return true;
    for (const StringView element : Split(value, tab))
        field.emplace_back(element);
    return true;
}

bool Read(WindowGeometry& field, StringView value)
{
    Int64 number = 0;
    for (Int16* const part : {&field.left, &field.top, &field.width, &field.height})
        Read(*part, NthField(value, U",", ++number));
    return true;
}

/// The source of the model.
bool Read(std::optional<int>& field, StringView value)
{
    const Int64 index = Integer(value);
    if (index != 0 && index != 1) return false;
    field = static_cast<int>(index);
    return true;
}

bool Read(std::optional<String>& field, StringView value)
{
    constexpr std::size_t longest = 65'536;
    if (value.size() > longest) return false;
    field = value;
    return true;
}

String Write(bool field) { return field ? U"True" : U"False"; }
String Write(Int16 field) { return ToText(field); }
/// A line end in it would break the file into other lines.
String Write(const String& field) { return ReplaceLineEndings(field, U""); }
String Write(const std::vector<String>& field)
{
    return Write(Join(std::vector<StringView>(field.begin(), field.end()), tab));
}
String Write(const std::optional<int>& field) { return ToText(field.value_or(0)); }
String Write(const std::optional<String>& field) { return Write(field.value_or(String())); }
String Write(const WindowGeometry& field)
{
    return Join({{ToText(field.left), ToText(field.top), ToText(field.width), ToText(field.height)}}, U",");
}

struct Key {
    StringView name;
    bool (*read)(Preferences& preferences, StringView value);
    String (*write)(const Preferences& preferences);
    void (*copy)(const Preferences& from, Preferences& to);
    /// A setting of the replacement table, whose columns go together.
    bool isOfTable;

    [[nodiscard]] bool Differs(const Preferences& left, const Preferences& right) const
    {
        return write(left) != write(right);
    }
};

template <auto Field>
constexpr Key Setting(StringView name)
{
    return {name, [](Preferences& preferences, StringView value) { return Read(preferences.*Field, value); },
            [](const Preferences& preferences) { return Write(preferences.*Field); },
            [](const Preferences& from, Preferences& to) { to.*Field = from.*Field; }, name.starts_with(U"TabSpecA")};
}

/// In the order in which they are written.
constexpr std::array keys = {
    Setting<&Preferences::DrapAffBtnSpecA>(U"Afficher Bouton Special A"),
    Setting<&Preferences::volume>(U"Volume Sonore"),
    Setting<&Preferences::geometry>(U"Fenetre WinMain"),
    Setting<&Preferences::sourceModel>(U"Source Model"),
    Setting<&Preferences::modelFile>(U"SourceFile_Path"),
    Setting<&Preferences::modelUrl>(U"SourceUrl"),
    Setting<&Preferences::archive>(U"Archiv Old File"),
    Setting<&Preferences::archiveFolder>(U"ArchivFolder_Path"),
    Setting<&Preferences::spackFile>(U"SceneryPack_Path"),
    Setting<&Preferences::WspecAheight>(U"WspecAheight"),
    Setting<&Preferences::PathSpecA>(U"PathSpecA"),
    Setting<&Preferences::TabSpecAorg>(U"TabSpecAorg"),
    Setting<&Preferences::TabSpecAdest1>(U"TabSpecAdest1"),
    Setting<&Preferences::TabSpecAdest2>(U"TabSpecAdest2"),
};

} // namespace

bool ReadPreference(Preferences& preferences, StringView line)
{
    const Int64 end = IndexOf(line, separator);
    if (end < 0) return true;
    const StringView name = Left(line, end), value = Middle(line, end + std::ssize(separator));
    if (SameText(name, U"Afficher HelpTag") && !preferences.AffHelpTag) Read(preferences.AffHelpTag.emplace(), value);
    const auto* const key = std::ranges::find_if(keys, [name](const Key& each) { return SameText(each.name, name); });
    return key == keys.end() || key->read(preferences, value);
}

namespace {

constexpr std::array tableColumns = {&Preferences::TabSpecAorg, &Preferences::TabSpecAdest1,
                                     &Preferences::TabSpecAdest2};

/// Whether the rows of the table differ. What stands before the first of them is no row, but a file's name.
bool RowsDiffer(const Preferences& some, const Preferences& others)
{
    const auto rows = [](const std::vector<String>& column) { return std::span(column).subspan(!column.empty()); };
    return std::ranges::any_of(
        tableColumns, [&](const auto column) { return !std::ranges::equal(rows(some.*column), rows(others.*column)); });
}

} // namespace

bool TablesClash(const Preferences& ours, const Preferences& oursBefore, const Preferences& theirs,
                 const Preferences& theirsBefore)
{
    return RowsDiffer(ours, oursBefore) && RowsDiffer(theirs, theirsBefore) && RowsDiffer(ours, theirs);
}

Preferences MergedPreferences(const Preferences& ours, const Preferences& oursBefore, const Preferences& theirs,
                              const Preferences& theirsBefore)
{
    const auto isOurs = [&](const Key& key) { return key.Differs(ours, oursBefore); };
    const auto isTheirs = [&](const Key& key) { return key.Differs(theirs, theirsBefore); };
    const bool rowsAreTheirs = !RowsDiffer(ours, oursBefore) && RowsDiffer(theirs, theirsBefore);
    Preferences merged = ours;
    for (const Key& key : keys)
        if (!key.isOfTable && isTheirs(key) && !isOurs(key)) key.copy(theirs, merged);
    for (const auto column : tableColumns) {
        const auto name = [column](const Preferences& settings) {
            return (settings.*column).empty() ? String() : (settings.*column).front();
        };
        const bool nameIsTheirs = name(theirs) != name(theirsBefore) && name(ours) == name(oursBefore);
        const String chosen = name(nameIsTheirs ? theirs : ours);
        if (rowsAreTheirs) merged.*column = theirs.*column;
        if (!(merged.*column).empty()) (merged.*column).front() = chosen;
    }
    return merged;
}

String WritePreferences(const Preferences& preferences)
{
    String text;
    for (const Key& key : keys)
        text.append(key.name).append(separator).append(key.write(preferences)).append(EndOfLine::Native);
    return text;
}

namespace {

constexpr int topMargin = 48;

} // namespace

WindowGeometry FitToScreen(const WindowGeometry& stored, int minimumWidth, int minimumHeight, int screenWidth,
                           int screenHeight)
{
    const bool fits = stored.left >= 0 && stored.top >= topMargin && stored.width >= minimumWidth &&
                      stored.height >= minimumHeight && stored.left + stored.width <= screenWidth &&
                      stored.top + stored.height <= screenHeight;
    if (fits) return stored;
    return {30, 60, static_cast<Int16>(screenWidth - 60), static_cast<Int16>(screenHeight - 60)};
}

WindowGeometry WithinScreen(int left, int top, int width, int height, int screenWidth, int screenHeight)
{
    width = std::min(width, screenWidth);
    height = std::min(height, screenHeight - topMargin);
    const auto points = [](int length) { return static_cast<Int16>(length); };
    return {points(std::clamp(left, 0, screenWidth - width)), points(std::clamp(top, topMargin, screenHeight - height)),
            points(width), points(height)};
}
