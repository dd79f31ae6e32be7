#include "mainwindow/ReportSeries.h"

void ReportSeries::Add(const String& message, const String& explanation)
{
    if (shown_ < Single) {
        ++shown_;
        return show_(message, explanation);
    }
    if (std::ssize(gathered_) > MostGathered) return;
    for (const StringView piece : {StringView(message), StringView(explanation)})
        if (!piece.empty()) gathered_.append(piece).append(EndOfLine::Native);
    gathered_.append(EndOfLine::Native);
    if (std::ssize(gathered_) > MostGathered) gathered_.append(U"…");
}

void ReportSeries::Finish()
{
    if (!gathered_.empty()) show_(gathered_, {});
    gathered_.clear();
}
