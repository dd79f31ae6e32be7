#include "engine/Checks.h"

#include "engine/Sorting.h"
#include "engine/TextNumbers.h"
#include "localisation/Localisation.h"

#include <algorithm>
#include <deque>

namespace {

using Numbers = std::vector<TextNumbers::Number>;

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

std::vector<StringView> NamesOf(std::span<const Listing> listings)
{
    std::vector<StringView> names;
    names.reserve(listings.size());
    for (const Listing& listing : listings)
        names.push_back(listing.name);
    return names;
}

std::vector<String> FolderNames(const FolderItem& dossier)
{
    std::vector<String> names;
    for (const FolderItem& child : dossier.Children()) {
        if (child.IsFolder()) names.push_back(Fncts::Naff(child.Name(), true, true));
    }
    return names;
}

/// How many there are of each number below `count`.
std::vector<std::size_t> CountEach(const Numbers& numbers, std::size_t count)
{
    std::vector<std::size_t> counts(count);
    for (const TextNumbers::Number number : numbers) {
        if (number != TextNumbers::None) ++counts[number];
    }
    return counts;
}

/// Adds a section to a report, if it has any name: a title, and one name a line.
void AppendSection(String& report, StringView title, std::span<const StringView> names)
{
    constexpr StringView bullet = U" - ";
    if (names.empty()) return;
    if (!report.empty()) report.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
    std::size_t length = report.size() + title.size();
    for (const StringView name : names)
        length += EndOfLine::Native.size() + bullet.size() + name.size();
    report.reserve(length);
    report.append(title);
    for (const StringView name : names)
        report.append(EndOfLine::Native).append(bullet).append(name);
}

/// The second of the names wherever several are the same, in sorted order.
std::vector<StringView> Repeated(std::span<const StringView> names)
{
    TextNumbers numbers(names.size());
    const Numbers ofName = numbers.Add(names);
    if (numbers.Count() == names.size()) return {};
    std::vector<std::uint32_t> met(numbers.Count());
    std::vector<StringView> seconds, sorted;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (++met[ofName[i]] == 2) seconds.push_back(names[i]);
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
    TextNumbers names_;
    Numbers ofFolder_, ofListing_;
    std::vector<std::size_t> folderCounts_, listingCounts_;
};

Pairing::Pairing(std::span<const String> folders, std::span<const Listing> listings)
    : folders_(folders)
    , listings_(listings)
    , names_(folders.size())
    , ofFolder_(names_.Add(std::vector<StringView>(folders.begin(), folders.end())))
{
    std::deque<String> changed;
    std::vector<StringView> names = NamesOf(listings);
    for (StringView& name : names) {
        if (String form = CanonicalForm(name); form != name) name = changed.emplace_back(std::move(form));
    }
    ofListing_ = names_.Find(names);
    folderCounts_ = CountEach(ofFolder_, names_.Count());
    listingCounts_ = CountEach(ofListing_, names_.Count());
}

std::vector<StringView> Pairing::UnlistedFolders() const
{
    std::vector<std::size_t> listings = listingCounts_;
    std::vector<StringView> unlisted;
    for (std::size_t i = 0; i < folders_.size(); ++i) {
        std::size_t& left = listings[ofFolder_[i]];
        if (left > 0)
            --left;
        else
            unlisted.push_back(folders_[i]);
    }
    return unlisted;
}

std::vector<StringView> Pairing::ListedWithoutFolder() const
{
    // Only where lines remain does it matter which of them stands first: all others need no sorting.
    std::vector<std::size_t> remaining;
    std::vector<StringView> lines;
    for (std::size_t i = 0; i < listings_.size(); ++i) {
        const TextNumbers::Number name = ofListing_[i];
        if (name != TextNumbers::None && listingCounts_[name] <= folderCounts_[name]) continue;
        remaining.push_back(i);
        lines.push_back(listings_[i].line);
    }
    std::vector<std::size_t> folders = folderCounts_;
    std::vector<StringView> names;
    for (const std::size_t place : SortedOrder(lines)) {
        const std::size_t i = remaining[place];
        const TextNumbers::Number name = ofListing_[i];
        if (name != TextNumbers::None && folders[name] > 0)
            --folders[name];
        else
            names.push_back(listings_[i].name);
    }
    return names;
}

} // namespace

String TestModelScen(std::span<const SceneryLine> lignes)
{
    String report;
    AppendSection(report, Localisation::Txt_ScenPlusDuneFois(), Repeated(NamesOf(ListingsOf(lignes))));
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
