#include "widgets/tools/fetch_figures.h"

#include "base/texts/tools.h"
#include "print_qt.h"

#include <gtest/gtest.h>

namespace {

using zkp::FetchFigures;
namespace texts = zkp::texts;

TEST(FetchFigures, TheRateIsThatSinceTheFirstReport) {
    FetchFigures figures;
    figures.note(10'000, 500);
    EXPECT_EQ(figures.rate(), 0) << "how long the first rows took is not known";
    EXPECT_EQ(figures.text(), texts::rowsRead(QStringLiteral("10.000")));
    figures.note(20'000, 510);
    EXPECT_EQ(figures.rate(), 1'000'000);
    figures.note(1'010'000, 2500);
    EXPECT_EQ(figures.rate(), 500'000);
    EXPECT_EQ(figures.text(), texts::rowsReadAtRate(QStringLiteral("1.010.000"), QStringLiteral("500.000")));
}

TEST(FetchFigures, FewerRowsAreAnotherFetch) {
    FetchFigures figures;
    figures.note(10'000, 0);
    figures.note(50'000, 100);
    figures.note(10'000, 5000);
    EXPECT_EQ(figures.rate(), 0);
    figures.note(30'000, 5100);
    EXPECT_EQ(figures.rate(), 200'000);
}

TEST(FetchFigures, AReportWithinTheSameMillisecondTellsNoRate) {
    FetchFigures figures;
    figures.note(10'000, 7);
    figures.note(20'000, 7);
    EXPECT_EQ(figures.rate(), 0);
    EXPECT_EQ(figures.rows(), 20'000);
}

} // namespace
