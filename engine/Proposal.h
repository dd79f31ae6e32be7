/// A first model, made from what the packs are.
#pragma once

#include "engine/SceneryText.h"
#include "toolkit/core/FolderItem.h"

/// What a pack shows of itself.
struct PackFacts {
    enum class Tile { None, Overlay, Base };

    bool airports = false, library = false, plugins = false;
    Tile tile = Tile::None;
    /// For the user, why it can't be told what the pack is; else "".
    String doubt;
};

/// A line of a `scenery_packs.ini`, or one for a folder that it doesn't list, and what its pack shows.
struct Pack {
    String line;
    PackFacts facts;
    /// False for a folder whose name fits no line; `line` is its name then.
    bool fitsLine = true;
};

/// What a proposal is made of, not looked at yet: the folders in `dossier` that `text` doesn't list, by name, and then
/// the lines of `text` that aren't blank.
std::vector<Pack> PacksToPropose(StringView text, const FolderItem& dossier);

struct Proposal {
    /// An accepted text.
    String model;
    /// The names of each kind, with their number, and of what could not be told the reason.
    String report;
    /// Whether it could be told what each pack is, and each line got into the model.
    bool complete = true;
};

/// Orders the packs by their kinds; within a kind they stay as they come. Behind the header are as many blank lines as
/// `text` has in all, so that a run finds the same number on both sides.
///
/// Of several lines for one scenery only one gets into the model, which would be refused otherwise: the first of those
/// for the folder itself, or else the first. The report tells what was left out.
Proposal ProposeModel(StringView text, std::span<const Pack> packs);
