#include "mainwindow/ReportSeries.h"
#include "toolkit/Dialogs.h"

#include <gtest/gtest.h>

namespace {

TEST(ReportSeries, OnlyManyReportsEndInOneThatHoldsTheRest)
{
    std::vector<String> shown;
    ReportSeries series(
        [&shown](const String& message, const String& explanation) { shown.push_back(message + U"|" + explanation); });
    series.Add(U"0", U"line");
    series.Finish();
    EXPECT_EQ(shown, std::vector<String>{U"0|line"});
    for (int i = 1; i < ReportSeries::Single + 2; ++i)
        series.Add(ToText(i), U"line");
    EXPECT_EQ(std::ssize(shown), ReportSeries::Single) << "the rest waits";
    series.Finish();
    ASSERT_EQ(std::ssize(shown), ReportSeries::Single + 1);
    EXPECT_EQ(shown.back(), U"20\nline\n\n21\nline\n\n|");
}

TEST(ReportSeries, NoMoreIsGatheredThanADialogShows)
{
    String last;
    ReportSeries series([&last](const String& message, const String&) { last = message; });
    for (int i = 0; i < 50'000; ++i)
        series.Add(U"a report of forty characters, no more...");
    series.Finish();
    EXPECT_GT(std::ssize(last), MessageDialog::MostShown) << "the dialog must see that there was more";
    EXPECT_LT(std::ssize(last), MessageDialog::MostShown + 50);
}

} // namespace
