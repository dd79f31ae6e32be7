#include "engine/SceneryText.h"

#include "localisation/Localisation.h"

#include <algorithm>

namespace {

constexpr std::size_t starsOfError = 89;
constexpr StringView keyword = U"SCENERY_PACK";
constexpr StringView customPacks[] = {U"SCENERY_PACK Custom Scenery/", U"SCENERY_PACK_DISABLED Custom Scenery/"};

String MissingHeader(StringView refused)
{
    String error(ErrorMarker);
    error.append(U"  Content should begin with :").append(EndOfLine::Native);
    error.append(TxtDebSpack).append(EndOfLine::Native).append(EndOfLine::Native);
    error.append(starsOfError, U'*').append(EndOfLine::Native);
    return error.append(refused);
}

StringView UpToSlash(StringView path)
{
    const std::size_t end = path.find(U'/');
    return end == StringView::npos ? StringView() : path.substr(0, end);
}

LineState StateOf(StringView line)
{
    for (const LineState state : {LineState::Enabled, LineState::Disabled}) {
        if (BeginsWith(line, PrefixOf(state))) return state;
    }
    return LineState::Other;
}

} // namespace

Acceptance AcceptSceneryText(StringView raw)
{
    if (raw.empty()) return {String(ErrorMarker) + U"  empty", false};
    if (!BeginsWith(raw, TxtDebSpack)) return {MissingHeader(raw), false};
    return {ReplaceLineEndings(raw, TxtEoF), true};
}

String ReasonOfRefusal(StringView raw)
{
    if (raw.empty()) return Localisation::Dit_Vide();
    if (raw.starts_with(U'\uFEFF')) return Localisation::Dit_Bom();
    if (BeginsWith(raw, ErrorMarker)) {
        const StringView error = NthField(Middle(raw, std::ssize(ErrorMarker)), U"\n", 1);
        return String(error.substr(std::min(error.find_first_not_of(U"0123456789 "), error.size())));
    }
    const bool differsInLineEnds = BeginsWith(ReplaceAll(Left(raw, 2 * LgTxtDebSpack), U"\r\n", U"\n"), TxtDebSpack);
    return differsInLineEnds ? Localisation::Dit_FinsWindows() : Localisation::Dit_SansEntete();
}

StringView RetScenLigne(StringView ligne)
{
    for (Int64 found = IndexOf(ligne, keyword); found >= 0; found = IndexOf(ligne, keyword, found + 1)) {
        const StringView pack = Middle(ligne, found);
        for (const StringView beginning : customPacks) {
            if (BeginsWith(pack, beginning)) return UpToSlash(pack.substr(beginning.size()));
        }
    }
    return {};
}

std::vector<SceneryLine> LinesOf(StringView text)
{
    std::vector<SceneryLine> lines;
    lines.reserve(1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), TxtEoF.front())));
    for (std::size_t end = text.find(TxtEoF); end != StringView::npos; end = text.find(TxtEoF)) {
        lines.push_back({text.substr(0, end), StateOf(text.substr(0, end))});
        text.remove_prefix(end + TxtEoF.size());
    }
    lines.push_back({text, StateOf(text)});
    return lines;
}

std::vector<SceneryLine> LinesWithoutBlankEnd(StringView text)
{
    std::vector<SceneryLine> lines = LinesOf(text);
    while (!lines.empty() && lines.back().text.empty())
        lines.pop_back();
    return lines;
}

Int64 LongTxtTab(std::span<const SceneryLine> lignes)
{
    Int64 length = 0;
    for (const SceneryLine& ligne : lignes)
        length += std::ssize(ligne.text) + LgTxtEoF;
    return length;
}
