#include "mainwindow/ReportSeries.h"

#include <gtest/gtest.h>

namespace {

TEST(ReportSeries, FromTheFourthOfItsKindOnTheyAreGathered)
{
    std::vector<String> shown;
    ReportSeries series(
        [&shown](const String& message, const String& explanation) { shown.push_back(message + U"|" + explanation); });
    for (const StringView line : {U"1", U"2", U"3", U"4", U"5"}) {
        series.Add(U"twice", String(line));
        if (line < StringView(U"5")) series.Add(U"both", String(line));
    }
    series.Add(U"folders", {});
    const std::vector<String> single = {U"twice|1", U"both|1", U"twice|2", U"both|2",
                                        U"twice|3", U"both|3", U"folders|"};
    EXPECT_EQ(shown, single);
    series.Finish();
    ASSERT_EQ(shown.size(), single.size() + 1);
    EXPECT_EQ(shown.back(), U"twice|4\n5\n\nboth\n4");
    EXPECT_EQ(series.All(), U"twice\n1\n2\n3\n4\n5\n\nboth\n1\n2\n3\n4\n\nfolders");
    EXPECT_EQ(series.Count(), 10);
}

TEST(ReportSeries, FewReportsGatherNothing)
{
    int shown = 0;
    ReportSeries series([&shown](const String&, const String&) { ++shown; });
    series.Finish();
    series.Add(U"folders\n - a", {});
    series.Finish();
    EXPECT_EQ(shown, 1);
}

} // namespace
