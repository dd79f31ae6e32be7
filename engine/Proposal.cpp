#include "engine/Proposal.h"

#include "engine/Folders.h"
#include "engine/Sections.h"
#include "localisation/Localisation.h"

#include <array>
#include <set>

namespace {

/// The kinds of packs in the order of a model: each hides what lies below it. What stands last doesn't get into it.
enum Kind : std::size_t { Airports, OwnAirports, Overlays, Unknown, Plugins, Libraries, Meshes, Repeated };
constexpr std::array titles = {
    &Localisation::Txt_PropAeroports, &Localisation::Txt_PropAeroportsXP, &Localisation::Txt_PropOverlays,
    &Localisation::Txt_PropInconnus,  &Localisation::Txt_PropPlugins,     &Localisation::Txt_PropBibliotheques,
    &Localisation::Txt_PropMaillages, &Localisation::Txt_PropDoublons,
};

/// What the user knows a pack by: its scenery's name, or what stands behind its prefix.
StringView NameOf(const Pack& pack)
{
    const StringView name = RetScenLigne(pack.line);
    return name.empty() ? LinesOf(pack.line).front().Rest() : name;
}

/// Only the two names that X-Plane gives its own airports decide anything, and they do so before what the pack holds.
Kind KindOf(const Pack& pack)
{
    const PackFacts& facts = pack.facts;
    if (SameText(NameOf(pack), U"*GLOBAL_AIRPORTS*") || SameText(NameOf(pack), U"Global Airports")) return OwnAirports;
    if (facts.airports) return Airports;
    if (facts.tile != PackFacts::Tile::None) return facts.tile == PackFacts::Tile::Overlay ? Overlays : Meshes;
    if (!facts.doubt.empty()) return Unknown;
    return facts.library ? Libraries : Plugins;
}

} // namespace

std::vector<String> LinesToPropose(StringView text, const FolderItem& dossier)
{
    const String unlisted = UnlistedLines(text, dossier);
    std::vector<String> lines;
    for (const StringView line : Split(unlisted, TxtEoF))
        if (!line.empty()) lines.emplace_back(line);
    const std::vector<SceneryLine> present = LinesOf(text);
    for (std::size_t i = HeaderLines; i < present.size(); ++i)
        if (!present[i].text.empty()) lines.emplace_back(present[i].text);
    return lines;
}

Proposal ProposeModel(StringView text, std::span<const Pack> packs)
{
    std::array<String, titles.size()> lines;
    std::array<std::vector<String>, titles.size()> names;
    std::set<String> met;
    for (const Pack& pack : packs) {
        // No name holds a "/": a path is never taken for a scenery of the same name.
        const bool isScenery = !RetScenLigne(pack.line).empty();
        const Kind kind = met.insert(FoldCase(isScenery ? String(NameOf(pack)) : U"/" + String(NameOf(pack)))).second
                              ? KindOf(pack)
                              : Repeated;
        lines[kind].append(pack.line).append(TxtEoF);
        names[kind].emplace_back(NameOf(pack));
        if (kind == Unknown) names[kind].back().append(U" (").append(pack.facts.doubt).append(U")");
    }
    const auto blanks = std::ranges::count(LinesWithoutBlankEnd(text), StringView(), &SceneryLine::text);
    Proposal proposal{String(TxtDebSpack).append(static_cast<std::size_t>(1 + blanks), TxtEoF.front()),
                      {},
                      names[Unknown].empty() && names[Repeated].empty()};
    for (std::size_t kind = 0; kind < titles.size(); ++kind) {
        if (kind != Repeated) proposal.model.append(lines[kind]);
        const String title = Localisation::Filled((*titles[kind])(), {ToText(std::ssize(names[kind]))});
        AppendSection(proposal.report, title, names[kind]);
    }
    return proposal;
}
