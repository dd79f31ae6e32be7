/// What a scenery text is: its line ends, its header and its kinds of lines.
#pragma once

#include "toolkit/core/Text.h"

#include <algorithm>

/// The line end of all scenery texts, and the characters that it adds to an offset.
inline constexpr StringView TxtEoF = EndOfLine::UNIX;
inline constexpr Int64 LgTxtEoF = std::ssize(TxtEoF);

/// The header: what every accepted text begins with, in whatever case.
inline constexpr StringView TxtDebSpack = U"I\n1000 version\nSCENERY";
inline constexpr Int64 LgTxtDebSpack = std::ssize(TxtDebSpack);
inline constexpr auto HeaderLines = static_cast<std::size_t>(1 + std::ranges::count(TxtDebSpack, TxtEoF.front()));

inline constexpr StringView EnabledPrefix = U"SCENERY_PACK ";
inline constexpr StringView DisabledPrefix = U"SCENERY_PACK_DISABLED ";
/// What the path of a custom pack begins with.
inline constexpr StringView CustomScenery = U"Custom Scenery/";

/// What a text begins with that takes the place of a text that was refused or couldn't be made.
inline constexpr StringView ErrorMarker = U"### Error ###";

struct Acceptance {
    String text;
    bool accepted;
};

/// The text with its line ends made `TxtEoF`, or an error text when it is empty or begins with no header.
///
/// The header is looked for in the raw text: one whose first two lines end in CR LF is refused, and the error text then
/// ends with the whole of it as it came.
Acceptance AcceptSceneryText(StringView raw);

/// Why a text as it came is no scenery text: its line ends, a byte-order mark, nothing in it, the error of the
/// connection, or another beginning.
String ReasonOfRefusal(StringView raw);

/// The folder's name in a line of a custom pack, or "": "SCENERY_PACK Custom Scenery/Alpes/Sud/" gives "Alpes".
///
/// The keyword may stand anywhere in the line, and the first one counts. A name without "/" behind it is none. The name
/// comes back as it is spelled, as a view of the line.
StringView RetScenLigne(StringView ligne);

enum class LineState : std::uint8_t { Other, Enabled, Disabled };

/// The prefix of the lines in a state; "" for `Other`.
constexpr StringView PrefixOf(LineState state)
{
    if (state == LineState::Other) return {};
    return state == LineState::Enabled ? EnabledPrefix : DisabledPrefix;
}

/// The state of a line's twin. A line that is no pack line has none, and stays what it is.
constexpr LineState TwinOf(LineState state)
{
    if (state == LineState::Other) return state;
    return state == LineState::Enabled ? LineState::Disabled : LineState::Enabled;
}

/// A line with the state that its prefix tells.
struct SceneryLine {
    StringView text;
    LineState state;

    [[nodiscard]] StringView Prefix() const { return text.substr(0, PrefixOf(state).size()); }
    /// What a pack line has in common with its twin: a path, opaque to us. All of a line that is no pack line.
    [[nodiscard]] StringView Rest() const { return text.substr(PrefixOf(state).size()); }
    /// The line of the same pack in the other state: "scenery_pack Alpes/" gives "SCENERY_PACK_DISABLED Alpes/".
    [[nodiscard]] String Twin() const { return String(PrefixOf(TwinOf(state))) += Rest(); }
};

/// The lines of a text. The views live as long as the text behind `text`.
std::vector<SceneryLine> LinesOf(StringView text);

/// The same without the blank lines at the end.
std::vector<SceneryLine> LinesWithoutBlankEnd(StringView text);

/// The characters of the lines with a line end behind each: where the line behind them begins.
Int64 LongTxtTab(std::span<const SceneryLine> lignes);
