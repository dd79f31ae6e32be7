#include "engine/Checks.h"
#include "engine/Proposal.h"
#include "tests/TemporaryFolder.h"
#include "tests/engine/RunLaws.h"

#include <random>
#include <set>

namespace {

constexpr StringView head = U"I\n1000 version\nSCENERY\n";

PackFacts Facts(char32_t kind)
{
    using Tile = PackFacts::Tile;
    switch (kind) {
    case U'a':
        return {.airports = true, .library = true, .doubt = {}};
    case U'o':
        return {.library = true, .tile = Tile::Overlay, .doubt = {}};
    case U'm':
        return {.plugins = true, .tile = Tile::Base, .doubt = {}};
    case U'l':
        return {.library = true, .plugins = true, .doubt = {}};
    case U'p':
        return {.plugins = true, .doubt = {}};
    default:
        return {.doubt = U"doubt"};
    }
}

/// Each pack is what the last letter of its name says, a folder or not.
std::vector<Pack> Look(const std::vector<String>& lines)
{
    std::vector<Pack> packs;
    packs.reserve(lines.size());
    for (const String& line : lines)
        packs.push_back({line, Facts(line.size() < 2 ? U'?' : line[line.size() - 2])});
    return packs;
}

TEST(Proposal, TellsTheKindsInTheirOrder)
{
    const std::vector<Pack> packs =
        Look({U"SCENERY_PACK Custom Scenery/m/", U"SCENERY_PACK Custom Scenery/l/", U"SCENERY_PACK Custom Scenery/p/",
              U"# x/", U"SCENERY_PACK_DISABLED /far/o/", U"scenery_pack *global_airports*",
              U"SCENERY_PACK Custom Scenery/Global Airports/", U"SCENERY_PACK Custom Scenery/a/",
              U"SCENERY_PACK Custom Scenery/A/deeper/", U"SCENERY_PACK /far/o/", U"SCENERY_PACK Custom Scenery/Xo/"});
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
                               U"Omis, une ligne plus haut nommant la même scène : 2\n - A\n - /far/o/");
}

/// Sceneries of all kinds, some without a folder, in any order, with blank lines between them.
String RandomText(std::mt19937& random)
{
    std::vector<String> lines(random() % 4);
    for (const StringView name : Split(U"1a|2o|3m|4l|5p|6x|7a|8o|9m|10x|Global Airports|éa", U"|"))
        if (random() % 4 > 0)
            lines.push_back(
                String(random() % 3 > 0 ? EnabledPrefix : DisabledPrefix).append(CustomScenery).append(name) + U"/");
    lines.emplace_back(U"SCENERY_PACK *GLOBAL_AIRPORTS*");
    lines.emplace_back(U"SCENERY_PACK /far/11o/");
    std::ranges::shuffle(lines, random);
    String text(head);
    for (const String& line : lines)
        text.append(line).append(U"\n");
    return text;
}

TEST(Proposal, IsAModelForTheTextThatItIsMadeOf)
{
    TemporaryFolder temporary;
    for (const char* folder : {"1a", "2o", "3m", "4l", "5p", "6x", "11a", "0m"})
        temporary.Folder(folder);
    const FolderItem dossier(temporary.Path());
    std::mt19937 random(17);
    for (int run = 0; run < 200; ++run) {
        const String text = RandomText(random);
        const std::vector<String> lines = LinesToPropose(text, dossier);
        const Proposal proposal = ProposeModel(text, Look(lines));

        std::multiset<String> wanted(lines.begin(), lines.end()), got;
        const std::vector<SceneryLine> modelLines = LinesWithoutBlankEnd(proposal.model);
        for (const SceneryLine& line : std::span(modelLines).subspan(HeaderLines))
            if (!line.text.empty()) got.emplace(line.text);
        EXPECT_EQ(got, wanted) << "each line once";

        const Outcome outcome = RunEngine(proposal.model, text, dossier);
        const String folders = TestFolderScen(LinesOf(text), dossier);
        std::vector<std::pair<String, String>> reports;
        if (!folders.empty()) reports.emplace_back(folders, String());
        EXPECT_EQ(outcome.reports, reports);
        EXPECT_TRUE(outcome.resultMarks.empty());
        EXPECT_EQ(RunEngine(proposal.model, outcome.text, dossier).text, outcome.text);
        EXPECT_EQ(ProposeModel(outcome.text, Look(LinesToPropose(outcome.text, dossier))).model, proposal.model);
    }
}

} // namespace
