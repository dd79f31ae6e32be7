#include "engine/Checks.h"

#include "engine/Folders.h"
#include "engine/ManyTexts.h"
#include "localisation/Localisation.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

/// Adds a section to a report, if it has any item: a title, and the name of one item a line.
template <class Items, class Name>
void AppendSection(String& report, StringView title, const Items& items, Name name)
{
    if (items.empty()) return;
    if (!report.empty()) report.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
    report.append(title);
    for (const auto& item : items)
        report.append(EndOfLine::Native).append(U" - ").append(std::invoke(name, item));
}

/// The second of the names wherever several are the same, in sorted order.
std::vector<StringView> Repeated(std::span<const Listing> listings)
{
    std::vector<StringView> names;
    std::ranges::transform(listings, std::back_inserter(names), &Listing::name);
    const std::vector<std::size_t> numbers = TextNumbers(names);
    std::vector<std::size_t> met(numbers.size());
    std::vector<StringView> seconds, sorted;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (++met[numbers[i]] == 2) seconds.push_back(names[i]);
    }
    for (const std::size_t place : SortedOrder(seconds))
        sorted.push_back(seconds[place]);
    return sorted;
}

} // namespace

String TestModelScen(std::span<const SceneryLine> lignes)
{
    String report;
    AppendSection(report, Localisation::Txt_ScenPlusDuneFois(), Repeated(ListingsOf(lignes)), std::identity{});
    return report;
}

String TestFolderScen(std::span<const SceneryLine> lignes, const FolderItem& dossier)
{
    const FolderFindings findings = CompareFolders(lignes, dossier);
    const auto bothSpellings = [](const Misspelling& misspelling) {
        return String(misspelling.listing.name) + U" (" + misspelling.folder + U")";
    };
    String report;
    AppendSection(report, Localisation::Txt_DossDsDossPasDsScen(), findings.unlisted, std::identity{});
    AppendSection(report, Localisation::Txt_ScenDsScenIniPasDsDoss(), findings.missing, &Listing::name);
    AppendSection(report, Localisation::Txt_ScenAutreCasse(), findings.misspelled, bothSpellings);
    return report;
}
