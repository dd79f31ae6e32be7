/// The reordering of a `scenery_packs.ini` after a model.
#pragma once

#include "engine/SceneryTexts.h"
#include "toolkit/core/FolderItem.h"

#include <functional>

/// Shows a message and an explanation, which may be empty, and returns when the user has answered.
using Report = std::function<void(const String& message, const String& explanation)>;

/// Makes `TextDestSpack`: the lines of `TextSrcSpack` in the order of `TextModel`, each pack in the source's state, and
/// the lines that the model doesn't know at their own line numbers.
///
/// Both texts must be accepted ones, and the result and the marks must be empty. What is found along the
/// way is reported: lines present twice, packs in both states, a result that holds other lines than the source, and
/// where there is none of that, what doesn't agree with `dossier`, the folder that holds the file. Only a model that
/// names a scenery twice stops it; the result is then the error marker. `texts` must stay as it is during a report.
void CreerSpack(SceneryTexts& texts, const FolderItem& dossier, const Report& report);
