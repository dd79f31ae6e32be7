#include "engine/Folders.h"

#include "engine/ManyTexts.h"

#include <algorithm>
#include <set>

namespace {

/// As the program shows and compares them, in the order of the folder.
std::vector<String> FolderNames(const FolderItem& dossier)
{
    std::vector<String> names;
    for (const FolderItem& child : dossier.Children()) {
        if (child.LeadsToFolder()) names.push_back(Fncts::Naff(child.Name(), true, true));
    }
    return names;
}

bool IsOnDisk(StringView name, const FolderItem& dossier)
{
    const std::optional<FolderItem> child = dossier.Child(Fncts::Naff(name, false, false), false);
    return child && child->Exists();
}

/// Folders and listings with their names in the place of numbers, and how many there are of each number.
struct Pairing {
    Pairing(std::span<const String> folders, std::span<const Listing> listings);

    std::vector<std::size_t> ofFolder, ofListing, folders, listings;
};

Pairing::Pairing(std::span<const String> folderNames, std::span<const Listing> listed)
{
    std::vector<String> forms(folderNames.begin(), folderNames.end());
    for (const Listing& listing : listed)
        forms.push_back(CanonicalForm(listing.name));
    const std::vector<std::size_t> numbers = TextNumbers(std::vector<StringView>(forms.begin(), forms.end()));
    const auto behindFolders = numbers.begin() + std::ssize(folderNames);
    ofFolder.assign(numbers.begin(), behindFolders);
    ofListing.assign(behindFolders, numbers.end());
    folders.resize(numbers.size());
    listings.resize(numbers.size());
    for (const std::size_t number : ofFolder)
        ++folders[number];
    for (const std::size_t number : ofListing)
        ++listings[number];
}

void AddListings(FolderFindings& findings, std::span<const String> folders, std::span<const Listing> listings,
                 const Pairing& pairs)
{
    const std::set<StringView> spellings(folders.begin(), folders.end());
    const auto isSpelledSo = [&](const Listing& listing) { return spellings.contains(CanonicalForm(listing.name)); };
    // Which line of a name stands first matters to those told below alone: all others need no sorting.
    std::vector<std::size_t> doubtful;
    std::vector<StringView> texts;
    for (std::size_t i = 0; i < listings.size(); ++i) {
        const std::size_t name = pairs.ofListing[i];
        if (pairs.listings[name] <= pairs.folders[name] && isSpelledSo(listings[i])) continue;
        doubtful.push_back(i);
        texts.push_back(listings[i].line.text);
    }
    std::vector<std::size_t> met(pairs.folders.size());
    for (const std::size_t place : SortedOrder(texts)) {
        const Listing& listing = listings[doubtful[place]];
        const std::size_t name = pairs.ofListing[doubtful[place]];
        if (++met[name] > pairs.folders[name]) {
            findings.missing.push_back(listing);
            if (pairs.folders[name] == 0) findings.homeless.push_back(listing);
        } else if (!isSpelledSo(listing)) {
            const auto folder = std::ranges::find(pairs.ofFolder, name) - pairs.ofFolder.begin();
            findings.misspelled.push_back({listing, folders[static_cast<std::size_t>(folder)]});
        }
    }
}

} // namespace

std::vector<Listing> ListingsOf(std::span<const SceneryLine> lines)
{
    std::vector<Listing> listings;
    for (const SceneryLine& line : lines) {
        if (const StringView name = RetScenLigne(line.text); !name.empty()) listings.push_back({line, name});
    }
    return listings;
}

FolderFindings CompareFolders(std::span<const SceneryLine> lines, const FolderItem& dossier)
{
    const std::vector<String> folders = FolderNames(dossier);
    const std::vector<Listing> listings = ListingsOf(lines);
    const Pairing pairs(folders, listings);
    FolderFindings findings;
    std::vector<std::size_t> met(folders.size() + listings.size());
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const std::size_t name = pairs.ofFolder[i];
        if (++met[name] > pairs.listings[name]) findings.unlisted.push_back(folders[i]);
    }
    AddListings(findings, folders, listings, pairs);
    const bool ignoresCase =
        !findings.misspelled.empty() && IsOnDisk(findings.misspelled.front().listing.name, dossier);
    if (ignoresCase) findings.misspelled.clear();
    return findings;
}

bool FitsLine(StringView folder) { return folder.find_first_of(U"/\n\r\uFFFD") == StringView::npos; }

String LineFor(StringView folder) { return String(EnabledPrefix).append(CustomScenery).append(folder).append(U"/"); }

UnlistedFolders FindUnlisted(StringView text, const FolderItem& dossier)
{
    UnlistedFolders found;
    for (const String& folder : CompareFolders(LinesOf(text), dossier).unlisted) {
        if (FitsLine(folder))
            found.lines.append(LineFor(folder)).append(TxtEoF);
        else
            found.leftOut.push_back(folder);
    }
    return found;
}

Int64 FirstPlace(StringView text)
{
    const std::vector<SceneryLine> lines = LinesOf(text);
    const bool blank = lines.size() > HeaderLines && lines[HeaderLines].text.empty();
    const std::size_t before = std::min(HeaderLines + (blank ? 1 : 0), lines.size());
    return std::min(LongTxtTab(std::span(lines).first(before)), std::ssize(text));
}

std::vector<Int64> EnabledWithoutFolder(StringView text, const FolderItem& dossier)
{
    std::vector<Int64> starts;
    for (const Listing& listing : CompareFolders(LinesOf(text), dossier).homeless)
        if (listing.line.state == LineState::Enabled) starts.push_back(listing.line.text.data() - text.data());
    std::ranges::sort(starts);
    return starts;
}
