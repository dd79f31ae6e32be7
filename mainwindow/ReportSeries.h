/// Many reports in a row, told one by one as long as a person can be asked to answer each.
#pragma once

#include "engine/CreerSpack.h"

/// Shows the first reports of each kind one at a time. What comes after them is shown as one report at the end, so that
/// a file with many faults doesn't ask again and again. Reports with the same message are of one kind.
class ReportSeries {
public:
    explicit ReportSeries(Report show)
        : show_(std::move(show))
    {
    }

    void Add(const String& message, const String& explanation);
    /// Shows what was gathered.
    void Finish() const;

    /// All reports, each message above its explanations.
    [[nodiscard]] String All() const { return Text(0); }
    [[nodiscard]] Int64 Count() const { return count_; }

    /// How many reports of a kind are shown one by one.
    static constexpr std::size_t Single = 3;

private:
    struct Kind {
        String message;
        std::vector<String> explanations;
    };
    /// The reports from number `first` of each kind on.
    [[nodiscard]] String Text(std::size_t first) const;

    Report show_;
    std::vector<Kind> kinds_;
    Int64 count_ = 0;
};
