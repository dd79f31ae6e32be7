#include "engine/Proposal.h"

#include "engine/Folders.h"
#include "engine/Sections.h"
#include "localisation/Localisation.h"

#include <array>
#include <map>

namespace {

/// The kinds of packs in the order of a model: each hides what lies below it. What stands last doesn't get into it.
enum Kind : std::size_t { Airports, OwnAirports, Overlays, Unknown, Plugins, Libraries, Meshes, Repeated, Unfit };
constexpr std::array titles = {
    &Localisation::Txt_PropAeroports, &Localisation::Txt_PropAeroportsXP, &Localisation::Txt_PropOverlays,
    &Localisation::Txt_PropInconnus,  &Localisation::Txt_PropPlugins,     &Localisation::Txt_PropBibliotheques,
    &Localisation::Txt_PropMaillages, &Localisation::Txt_PropDoublons,    &Localisation::Txt_PropSansLigne,
};

/// What the user knows a pack by: its scenery's name, or what stands behind its prefix.
StringView NameOf(const Pack& pack)
{
    if (!pack.fitsLine) return pack.line;
    const StringView name = RetScenLigne(pack.line);
    return name.empty() ? LinesOf(pack.line).front().Rest() : name;
}

/// What one line of a model alone can stand for. No name holds a "/", and no line a line end: a path, or a name that
/// fits no line, is never taken for a scenery.
String KeyOf(const Pack& pack)
{
    if (!pack.fitsLine) return U"\n" + pack.line;
    const bool isScenery = !RetScenLigne(pack.line).empty();
    return FoldCase(isScenery ? String(NameOf(pack)) : U"/" + String(NameOf(pack)));
}

/// Only the two names that X-Plane gives its own airports decide anything, and they do so before what the pack holds.
Kind KindOf(const Pack& pack)
{
    const PackFacts& facts = pack.facts;
    if (!pack.fitsLine) return Unfit;
    if (SameText(NameOf(pack), U"*GLOBAL_AIRPORTS*") || SameText(NameOf(pack), U"Global Airports")) return OwnAirports;
    if (facts.airports) return Airports;
    if (facts.tile != PackFacts::Tile::None) return facts.tile == PackFacts::Tile::Overlay ? Overlays : Meshes;
    if (!facts.doubt.empty()) return Unknown;
    return facts.library ? Libraries : Plugins;
}

/// Whether the line names a folder of "Custom Scenery" and nothing inside of it, and isn't commented out.
bool IsForFolder(const Pack& pack)
{
    return SameText(LinesOf(pack.line).front().Rest(), String(CustomScenery).append(NameOf(pack)) + U"/");
}

/// The packs that get into the model, by what only one line can stand for.
std::map<String, const Pack*> Chosen(std::span<const Pack> packs)
{
    std::map<String, const Pack*> chosen;
    for (const Pack& pack : packs) {
        const Pack*& first = chosen.try_emplace(KeyOf(pack), &pack).first->second;
        if (IsForFolder(pack) && !IsForFolder(*first)) first = &pack;
    }
    return chosen;
}

} // namespace

std::vector<Pack> PacksToPropose(StringView text, const FolderItem& dossier)
{
    std::vector<Pack> packs;
    const std::vector<SceneryLine> present = LinesOf(text);
    for (const String& folder : CompareFolders(present, dossier).unlisted) {
        const bool fits = FitsLine(folder);
        packs.push_back({fits ? LineFor(folder) : folder, {}, fits});
    }
    for (std::size_t i = HeaderLines; i < present.size(); ++i)
        if (!present[i].text.empty()) packs.push_back({String(present[i].text), {}});
    return packs;
}

Proposal ProposeModel(StringView text, std::span<const Pack> packs)
{
    std::array<String, titles.size()> lines;
    std::array<std::vector<String>, titles.size()> names;
    const std::map<String, const Pack*> chosen = Chosen(packs);
    for (const Pack& pack : packs) {
        const Kind kind = chosen.at(KeyOf(pack)) == &pack ? KindOf(pack) : Repeated;
        lines[kind].append(pack.line).append(TxtEoF);
        names[kind].push_back(ReplaceLineEndings(NameOf(pack), U"\u23CE"));
        if (kind == Unknown) names[kind].back().append(U" (").append(pack.facts.doubt).append(U")");
    }
    const auto blanks = std::ranges::count(LinesWithoutBlankEnd(text), StringView(), &SceneryLine::text);
    Proposal proposal{String(TxtDebSpack).append(static_cast<std::size_t>(1 + blanks), TxtEoF.front()),
                      {},
                      names[Unknown].empty() && names[Repeated].empty() && names[Unfit].empty()};
    for (std::size_t kind = 0; kind < titles.size(); ++kind) {
        if (kind < Repeated) proposal.model.append(lines[kind]);
        const String title = Localisation::Filled((*titles[kind])(), {ToText(std::ssize(names[kind]))});
        AppendSection(proposal.report, title, names[kind]);
    }
    return proposal;
}
