/// A run over two accepted texts, by the engine and as plainly as can be.
#pragma once

#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"

#include <gtest/gtest.h>
#include <utility>

/// All that a run gives.
struct Outcome {
    String text;
    std::vector<Int64> modelMarks, resultMarks;
    /// Message and explanation of each report.
    std::vector<std::pair<String, String>> reports;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

inline Outcome RunEngine(StringView model, StringView source, const FolderItem& dossier)
{
    Outcome outcome;
    SceneryTexts texts{String(model), String(source), {}, {}, {}};
    CreerSpack(texts, dossier, [&outcome](const String& message, const String& explanation) {
        outcome.reports.emplace_back(message, explanation);
    });
    EXPECT_TRUE(texts.TextModel == model && texts.TextSrcSpack == source) << "a run changed what it only reads";
    outcome.text = std::move(texts.TextDestSpack);
    outcome.modelMarks = std::move(texts.CoulModSpack);
    outcome.resultMarks = std::move(texts.CoulDestSpack);
    return outcome;
}

/// The reordering once more, as slow and as plain as can be: arrays that are searched from end to end.
Outcome RunNaively(StringView model, StringView source, const std::vector<String>& folders);
