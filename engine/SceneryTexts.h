/// The texts of a run and the marks of their lines: what a run reads and makes.
#pragma once

#include "toolkit/core/Text.h"

struct SceneryTexts {
    /// The model, or an error text.
    String TextModel;
    /// The `scenery_packs.ini` as it was read, or an error text.
    String TextSrcSpack;
    /// The reordered text, or the error marker.
    String TextDestSpack;

    /// Where the lines of `TextModel` begin that the source has in neither state. Characters, ascending.
    std::vector<Int64> CoulModSpack;
    /// Where the lines of `TextDestSpack` begin that the model didn't place. Characters, ascending.
    std::vector<Int64> CoulDestSpack;
};
