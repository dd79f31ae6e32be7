/// Checks on the names of the sceneries under `Custom Scenery`. Each gives the text of a report, or "" when all is
/// well.
#pragma once

#include "engine/SceneryText.h"
#include "toolkit/core/FolderItem.h"

/// The sceneries that the lines of a model name more than once, in whatever state or case: each is told once, in sorted
/// order, as its second line spells it.
String TestModelScen(std::span<const SceneryLine> lignes);

/// The folders in `dossier` that no line names, the sceneries that have no folder there, and those whose folder has
/// another case, which is then told in brackets (`CompareFolders`).
String TestFolderScen(std::span<const SceneryLine> lignes, const FolderItem& dossier);
