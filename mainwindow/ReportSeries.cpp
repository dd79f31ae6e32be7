#include "mainwindow/ReportSeries.h"

#include <algorithm>

void ReportSeries::Add(const String& message, const String& explanation)
{
    ++count_;
    auto kind = std::ranges::find(kinds_, message, &Kind::message);
    if (kind == kinds_.end()) kind = kinds_.insert(kind, {message, {}});
    kind->explanations.push_back(explanation);
    if (kind->explanations.size() <= Single) show_(message, explanation);
}

void ReportSeries::Finish() const
{
    const String rest = Text(Single);
    const Int64 end = IndexOf(rest, EndOfLine::Native);
    if (end >= 0) show_(String(Left(rest, end)), String(Middle(rest, end + std::ssize(EndOfLine::Native))));
}

String ReportSeries::Text(std::size_t first) const
{
    String text;
    for (const auto& [message, explanations] : kinds_) {
        if (explanations.size() <= first) continue;
        if (!text.empty()) text.append(EndOfLine::Native).append(EndOfLine::Native);
        text += message;
        for (const String& explanation : std::span(explanations).subspan(first))
            if (!explanation.empty()) text.append(EndOfLine::Native).append(explanation);
    }
    return text;
}
