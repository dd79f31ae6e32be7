#include "engine/Checks.h"

#include "engine/ManyTexts.h"
#include "localisation/Localisation.h"

#include <algorithm>
#include <iterator>

namespace {

/// A line that names a scenery.
struct Listing {
    StringView line, name;
};

std::vector<Listing> ListingsOf(std::span<const SceneryLine> lines)
{
    std::vector<Listing> listings;
    listings.reserve(lines.size());
    for (const SceneryLine& line : lines) {
        if (const StringView name = RetScenLigne(line.text); !name.empty()) listings.push_back({line.text, name});
    }
    return listings;
}

std::vector<String> FolderNames(const FolderItem& dossier)
{
    std::vector<String> names;
    for (const FolderItem& child : dossier.Children()) {
        if (child.IsFolder()) names.push_back(Fncts::Naff(child.Name(), true, true));
    }
    return names;
}

/// Adds a section to a report, if it has any name: a title, and one name a line.
void AppendSection(String& report, StringView title, std::span<const StringView> names)
{
    if (names.empty()) return;
    if (!report.empty()) report.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
    report.append(title);
    for (const StringView name : names)
        report.append(EndOfLine::Native).append(U" - ").append(name);
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

/// The folders of `Custom Scenery` beside the lines that list sceneries, paired by name. Of several of one name the
/// first folder goes with the first line, and so on.
class Pairing {
public:
    Pairing(std::span<const String> folders, std::span<const Listing> listings);

    [[nodiscard]] std::vector<StringView> UnlistedFolders() const;
    [[nodiscard]] std::vector<StringView> ListedWithoutFolder() const;

private:
    std::span<const String> folders_;
    std::span<const Listing> listings_;
    /// The number of the name of each folder, then of each listing, and how many there are of each number.
    std::vector<std::size_t> names_, folderCounts_, listingCounts_;
};

Pairing::Pairing(std::span<const String> folders, std::span<const Listing> listings)
    : folders_(folders)
    , listings_(listings)
{
    std::vector<String> forms(folders.begin(), folders.end());
    for (const Listing& listing : listings)
        forms.push_back(CanonicalForm(listing.name));
    names_ = TextNumbers(std::vector<StringView>(forms.begin(), forms.end()));
    folderCounts_.resize(names_.size());
    listingCounts_.resize(names_.size());
    for (std::size_t i = 0; i < names_.size(); ++i)
        ++(i < folders.size() ? folderCounts_ : listingCounts_)[names_[i]];
}

std::vector<StringView> Pairing::UnlistedFolders() const
{
    std::vector<std::size_t> met(names_.size());
    std::vector<StringView> unlisted;
    for (std::size_t i = 0; i < folders_.size(); ++i) {
        if (++met[names_[i]] > listingCounts_[names_[i]]) unlisted.push_back(folders_[i]);
    }
    return unlisted;
}

std::vector<StringView> Pairing::ListedWithoutFolder() const
{
    // Only where lines remain does it matter which of them stands first: all others need no sorting.
    std::vector<std::size_t> remaining;
    std::vector<StringView> lines;
    for (std::size_t i = 0; i < listings_.size(); ++i) {
        const std::size_t name = names_[folders_.size() + i];
        if (listingCounts_[name] <= folderCounts_[name]) continue;
        remaining.push_back(i);
        lines.push_back(listings_[i].line);
    }
    std::vector<std::size_t> met(names_.size());
    std::vector<StringView> names;
    for (const std::size_t place : SortedOrder(lines)) {
        const std::size_t i = remaining[place];
        const std::size_t name = names_[folders_.size() + i];
        if (++met[name] > folderCounts_[name]) names.push_back(listings_[i].name);
    }
    return names;
}

} // namespace

String TestModelScen(std::span<const SceneryLine> lignes)
{
    String report;
    AppendSection(report, Localisation::Txt_ScenPlusDuneFois(), Repeated(ListingsOf(lignes)));
    return report;
}

String TestFolderScen(std::span<const SceneryLine> lignes, const FolderItem& dossier)
{
    const std::vector<String> folders = FolderNames(dossier);
    const std::vector<Listing> listings = ListingsOf(lignes);
    const Pairing pairing(folders, listings);
    String report;
    AppendSection(report, Localisation::Txt_DossDsDossPasDsScen(), pairing.UnlistedFolders());
    AppendSection(report, Localisation::Txt_ScenDsScenIniPasDsDoss(), pairing.ListedWithoutFolder());
    return report;
}
