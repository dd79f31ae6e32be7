/// File locations as text: the form in which paths are shown and kept.
///
/// A path names the volume first and separates names by ":"; a ":" inside a name is written "/". Names are in canonical
/// form. A path that ends in ":" is a folder's. Example: "Macintosh HD:Users:me:scenery_packs.ini".
#pragma once

#include "toolkit/core/FolderItem.h"

namespace Fncts {

/// The path form of `item`; with `folderMark` that of a folder ends in ":".
///
/// What lies on another volume begins with that volume's own name, as in "Data:X-Plane 12:", unless this shorter path
/// would lead elsewhere. `GetFitemAbsPath` finds the same item again, but for names that are no UTF-8 and for one of
/// two names in one folder that differ in nothing but their canonical form (`ComesBack`).
String AbsPath_f(const FolderItem& item, bool folderMark);

/// The item that a path form names. It need not exist, but the folders above it must; nothing when they don't, when no
/// such volume is there, or for an empty path. With `followAlias` an alias at the end of the path is resolved.
///
/// Of two volumes of one name the one that holds the item is taken, or else the first that holds its folder.
std::optional<FolderItem> GetFitemAbsPath(StringView path, bool followAlias);

/// Whether its path form leads back to this very item: not where its name is no UTF-8, or where it has a twin.
bool ComesBack(const FolderItem& item);

/// The path form of what a typed text names natively, as "/home/me/model.ini", "~/model.ini" or a "file://" address;
/// the text itself where it names nothing.
String PathOfTyped(StringView text);

} // namespace Fncts
