#include "engine/Checks.h"

#include "engine/Folders.h"
#include "engine/ManyTexts.h"
#include "engine/Sections.h"
#include "localisation/Localisation.h"

#include <algorithm>
#include <iterator>

namespace {

/// The second of the names wherever several are the same, in sorted order.
std::vector<String> NamesTwice(std::span<const Listing> listings)
{
    std::vector<StringView> names, seconds;
    std::ranges::transform(listings, std::back_inserter(names), &Listing::name);
    const std::vector<std::size_t> numbers = TextNumbers(names);
    std::vector<std::size_t> met(numbers.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (++met[numbers[i]] == 2) seconds.push_back(names[i]);
    }
    std::vector<String> sorted;
    for (const std::size_t place : SortedOrder(seconds))
        sorted.emplace_back(seconds[place]);
    return sorted;
}

} // namespace

String TestModelScen(std::span<const SceneryLine> lignes)
{
    String report;
    AppendSection(report, Localisation::Txt_ScenPlusDuneFois(), NamesTwice(ListingsOf(lignes)));
    return report;
}

String TestFolderScen(std::span<const SceneryLine> lignes, const FolderItem& dossier)
{
    const FolderFindings findings = CompareFolders(lignes, dossier);
    std::vector<String> missing, misspelled;
    for (const Listing& listing : findings.missing)
        missing.emplace_back(listing.name);
    for (const auto& [listing, folder] : findings.misspelled)
        misspelled.push_back(String(listing.name) + U" (" + folder + U")");
    String report;
    AppendSection(report, Localisation::Txt_DossDsDossPasDsScen(), findings.unlisted);
    AppendSection(report, Localisation::Txt_ScenDsScenIniPasDsDoss(), missing);
    AppendSection(report, Localisation::Txt_ScenAutreCasse(), misspelled);
    return report;
}
