#include "engine/SceneryText.h"

namespace {

constexpr std::size_t starsOfError = 89;
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

} // namespace

Acceptance AcceptSceneryText(StringView raw)
{
    if (raw.empty()) return {String(ErrorMarker) + U"  empty", false};
    if (!BeginsWith(raw, TxtDebSpack)) return {MissingHeader(raw), false};
    return {ReplaceLineEndings(raw, TxtEoF), true};
}

std::vector<StringView> LinesOf(StringView text) { return Split(text, TxtEoF); }

StringView RetScenLigne(StringView ligne)
{
    for (; !ligne.empty(); ligne.remove_prefix(1)) {
        for (const StringView customPack : customPacks) {
            if (BeginsWith(ligne, customPack)) return UpToSlash(ligne.substr(customPack.size()));
        }
    }
    return {};
}

Int64 LongTxtTab(std::span<const StringView> lignes, Int64 lgEoF, Int64 dernier)
{
    Int64 length = 0;
    for (Int64 k = 0; k <= dernier; ++k)
        length += std::ssize(lignes[static_cast<std::size_t>(k)]) + lgEoF;
    return length;
}

SceneryLine ParseLine(StringView line)
{
    const auto cut = [line](LineState state, std::size_t prefix) {
        return SceneryLine{state, line.substr(0, prefix), line.substr(prefix)};
    };
    if (BeginsWith(line, DisabledPrefix)) return cut(LineState::Disabled, DisabledPrefix.size());
    if (BeginsWith(line, EnabledPrefix)) return cut(LineState::Enabled, EnabledPrefix.size());
    return cut(LineState::Other, 0);
}

SceneryLine TwinOf(const SceneryLine& line)
{
    if (line.state == LineState::Disabled) return {LineState::Enabled, EnabledPrefix, line.rest};
    return {LineState::Disabled, DisabledPrefix, line.rest};
}
