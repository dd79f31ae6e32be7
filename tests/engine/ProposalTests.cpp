#include "engine/Checks.h"
#include "engine/Proposal.h"
#include "tests/TemporaryFolder.h"
#include "tests/engine/RunLaws.h"

#include <map>
#include <random>

namespace {

constexpr StringView head = U"I\n1000 version\nSCENERY\n";

/// Each pack is what the last letter of its name says, a folder or not.
std::vector<Pack> Look(std::vector<Pack> packs)
{
    using Tile = PackFacts::Tile;
    static const std::map<char32_t, PackFacts> kinds = {
        {U'a', {.airports = true, .library = true, .doubt = {}}},
        {U'o', {.library = true, .tile = Tile::Overlay, .doubt = {}}},
        {U'm', {.plugins = true, .tile = Tile::Base, .doubt = {}}},
        {U'l', {.library = true, .plugins = true, .doubt = {}}},
        {U'p', {.plugins = true, .doubt = {}}},
    };
    for (Pack& pack : packs) {
        const auto kind = kinds.find(*(pack.line.end() - 2));
        pack.facts = kind == kinds.end() ? PackFacts{.doubt = U"doubt"} : kind->second;
    }
    return packs;
}

TEST(Proposal, TellsTheKindsInTheirOrder)
{
    const std::vector<Pack> packs = Look({{U"a\nb", {}, false},
                                          {U"SCENERY_PACK Custom Scenery/m/", {}},
                                          {U"SCENERY_PACK Custom Scenery/l/", {}},
                                          {U"SCENERY_PACK Custom Scenery/p/", {}},
                                          {U"# x/", {}},
                                          {U"SCENERY_PACK_DISABLED /far/o/", {}},
                                          {U"scenery_pack *global_airports*", {}},
                                          {U"SCENERY_PACK Custom Scenery/Global Airports/", {}},
                                          {U"#SCENERY_PACK Custom Scenery/a/", {}},
                                          {U"SCENERY_PACK Custom Scenery/A/deeper/", {}},
                                          {U"SCENERY_PACK Custom Scenery/a/", {}},
                                          {U"SCENERY_PACK_DISABLED Custom Scenery/a/", {}},
                                          {U"SCENERY_PACK /far/o/", {}},
                                          {U"SCENERY_PACK Custom Scenery/Xo/", {}}});
    const Proposal proposal = ProposeModel(String(head) + U"\na\n\n", packs);
    EXPECT_EQ(proposal.model, String(head) + U"\nSCENERY_PACK Custom Scenery/a/\n"
                                             U"scenery_pack *global_airports*\n"
                                             U"SCENERY_PACK Custom Scenery/Global Airports/\n"
                                             U"SCENERY_PACK_DISABLED /far/o/\n"
                                             U"SCENERY_PACK Custom Scenery/Xo/\n"
                                             U"# x/\n"
                                             U"SCENERY_PACK Custom Scenery/p/\n"
                                             U"SCENERY_PACK Custom Scenery/l/\n"
                                             U"SCENERY_PACK Custom Scenery/m/\n");
    EXPECT_EQ(proposal.report, U"Aéroports : 1\n - a\n \n"
                               U"Aéroports de X-Plane : 2\n - *global_airports*\n - Global Airports\n \n"
                               U"Surcouches (overlays) : 2\n - /far/o/\n - Xo\n \n"
                               U"Inconnus : 1\n - # x/ (doubt)\n \n"
                               U"Greffons (plugins) : 1\n - p\n \n"
                               U"Bibliothèques : 1\n - l\n \n"
                               U"Maillages et tuiles photo : 1\n - m\n \n"
                               U"Omis, une autre ligne nommant la même scène : 4\n - a\n - A\n - a\n - /far/o/\n \n"
                               U"Omis, aucune ligne ne pouvant tenir le nom : 1\n - a\u23CEb");
}

TEST(Proposal, IsAModelForTheTextThatItIsMadeOf)
{
    TemporaryFolder temporary;
    for (const char* folder : {"1a", "2o", "3m", "4l", "5p", "6x", "11a", "0m"})
        temporary.Folder(folder);
    const FolderItem dossier(temporary.Path());
    std::mt19937 random(17);
    std::vector<StringView> rests =
        Split(U"Custom Scenery/1a/|Custom Scenery/2o/|Custom Scenery/3m/|Custom Scenery/4l/|Custom Scenery/5p/|Custom "
              U"Scenery/6x/|Custom Scenery/7a/|Custom Scenery/9m/|Custom Scenery/10x/|Custom Scenery/Global "
              U"Airports/|Custom Scenery/éa/|/far/11o/|*GLOBAL_AIRPORTS*|||",
              U"|");
    for (int run = 0; run < 200; ++run) {
        std::ranges::shuffle(rests, random);
        String text(head);
        for (const StringView rest : std::span(rests).first(random() % rests.size()))
            text.append(rest.empty()       ? rest
                        : random() % 3 > 0 ? EnabledPrefix
                                           : DisabledPrefix)
                .append(rest)
                .append(TxtEoF);
        const std::vector<Pack> packs = Look(PacksToPropose(text, dossier));
        const Proposal proposal = ProposeModel(text, packs);

        std::vector<String> wanted, got;
        for (const Pack& pack : packs)
            wanted.push_back(pack.line);
        std::ranges::stable_sort(wanted, {}, [](StringView line) {
            const bool isOwn = IndexOf(line, U"global") >= 0; // with a star or an "s" at the place of the letter
            return StringView(U"aGoxplm").find(isOwn ? U'G' : *(line.end() - 2));
        });
        const std::vector<SceneryLine> modelLines = LinesWithoutBlankEnd(proposal.model);
        for (const SceneryLine& line : std::span(modelLines).subspan(HeaderLines))
            if (!line.text.empty()) got.emplace_back(line.text);
        EXPECT_EQ(got, wanted) << "each line once, the kinds apart, the order within a kind as it was";

        const Outcome outcome = RunEngine(proposal.model, text, dossier);
        const String folders = TestFolderScen(LinesOf(text), dossier);
        std::vector<std::pair<String, String>> reports;
        if (!folders.empty()) reports.emplace_back(folders, String());
        EXPECT_EQ(outcome.reports, reports);
        EXPECT_TRUE(outcome.resultMarks.empty());
        EXPECT_EQ(RunEngine(proposal.model, outcome.text, dossier).text, outcome.text);
        EXPECT_EQ(ProposeModel(outcome.text, Look(PacksToPropose(outcome.text, dossier))).model, proposal.model);
    }
}

} // namespace
