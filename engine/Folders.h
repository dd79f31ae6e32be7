/// The folders in `Custom Scenery` beside the lines of a text that list them.
#pragma once

#include "engine/SceneryText.h"
#include "toolkit/core/FolderItem.h"

/// A line that names a scenery.
struct Listing {
    SceneryLine line;
    StringView name;
};

/// The lines that name a scenery, in their order.
std::vector<Listing> ListingsOf(std::span<const SceneryLine> lines);

/// A listing, and its folder that a disk which tells upper from lower case has in another spelling alone.
struct Misspelling {
    Listing listing;
    String folder;
};

/// What doesn't agree.
struct FolderFindings {
    /// The folders that no line names, by name.
    std::vector<String> unlisted;
    /// The listings without a folder of their own, by their lines when sorted.
    std::vector<Listing> missing;
    /// Of those the ones whose name has no folder at all.
    std::vector<Listing> homeless;
    /// By their lines when sorted.
    std::vector<Misspelling> misspelled;
};

/// Compares the lines with the folders in `dossier`, among them the links that lead to a folder.
///
/// A folder answers for one line, the first of its name when sorted. Names are compared in canonical form, and case
/// doesn't count. The findings live as long as the text behind `lines`.
FolderFindings CompareFolders(std::span<const SceneryLine> lines, const FolderItem& dossier);

/// Whether a line can hold the name: not one with ":" or a line end on disk, or with bytes that are no UTF-8.
bool FitsLine(StringView folder);
/// The line that lists a folder as enabled, without a line end.
String LineFor(StringView folder);

/// The folders that a text doesn't list, by name.
struct UnlistedFolders {
    /// A line for each, enabled, with its line end.
    String lines;
    /// Those whose names fit no line.
    std::vector<String> leftOut;
};
UnlistedFolders FindUnlisted(StringView text, const FolderItem& dossier);

/// The offset behind the header and the blank line there: where unlisted lines belong. A text that ends with its
/// header has no line end there yet.
Int64 FirstPlace(StringView text);

/// Where the enabled lines begin whose scenery has no folder in `dossier`. Characters, ascending.
std::vector<Int64> EnabledWithoutFolder(StringView text, const FolderItem& dossier);
