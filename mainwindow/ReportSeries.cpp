#include "mainwindow/ReportSeries.h"

#include "toolkit/Dialogs.h"

void ReportSeries::Add(const String& message, const String& explanation)
{
    if (shown_ < Single) {
        ++shown_;
        return show_(message, explanation);
    }
    if (std::ssize(gathered_) > MessageDialog::MostShown) return;
    for (const StringView piece : {StringView(message), StringView(explanation)})
        if (!piece.empty()) gathered_.append(piece).append(EndOfLine::Native);
    gathered_.append(EndOfLine::Native);
}

void ReportSeries::Finish()
{
    if (!gathered_.empty()) show_(gathered_, {});
    gathered_.clear();
}
