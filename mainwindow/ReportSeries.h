/// Many reports in a row, told one by one as long as a person can be asked to answer each.
#pragma once

#include "toolkit/core/Text.h"

#include <functional>

/// Shows the first reports one at a time. What comes after them is gathered, and shown as one report at the end, so
/// that a file with thousands of faults doesn't ask thousands of times.
class ReportSeries {
public:
    using Show = std::function<void(const String& message, const String& explanation)>;

    explicit ReportSeries(Show show)
        : show_(std::move(show))
    {
    }

    void Add(const String& message, const String& explanation = {});
    /// Shows what was gathered.
    void Finish();

    /// How many reports are shown one by one.
    static constexpr int Single = 20;

private:
    Show show_;
    int shown_ = 0;
    String gathered_;
};
