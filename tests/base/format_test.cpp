#include "base/format.h"
#include "print_qt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale kGreek{QLocale(u"el_GR"_s)};
const ReportLocale kEnglish{QLocale(u"en_US"_s)};

struct Case {
    double value;
    NumberFormat format;
    QStringView text;
};

} // namespace

TEST(FormatNumber, DoublesRoundHalfAwayFromZeroOnFifteenDigits) {
    const Case cases[] = {
        {0, NumberFormat::Grouped2, u"0,00"},
        {1.005, NumberFormat::Grouped2, u"1,01"},
        {-1.005, NumberFormat::Grouped2, u"-1,01"},
        {2.5, NumberFormat::Grouped0, u"3"},
        {3.5, NumberFormat::Grouped0, u"4"},
        {-2.5, NumberFormat::Grouped0, u"-3"},
        {0.5, NumberFormat::Grouped0, u"1"},
        {0.49, NumberFormat::Grouped0, u"0"},
        {0.004, NumberFormat::Grouped2, u"0,00"},
        {0.005, NumberFormat::Grouped2, u"0,01"},
        {0.0049999, NumberFormat::Grouped2, u"0,00"},
        {1e-300, NumberFormat::Grouped2, u"0,00"},
        {999.995, NumberFormat::Grouped2, u"1.000,00"},
        {1234567.891, NumberFormat::Grouped2, u"1.234.567,89"},
        {1234567.891, NumberFormat::Grouped0, u"1.234.568"},
        {123, NumberFormat::Grouped0, u"123"},
        {1000, NumberFormat::Grouped0, u"1.000"},
        {1e15, NumberFormat::Grouped2, u"1.000.000.000.000.000,00"},
        {33.333333, NumberFormat::Plain2, u"33,33"},
        {1234.5, NumberFormat::Plain2, u"1234,50"},
        {1234.5, NumberFormat::PlainPercent, u"1234,50"},
        {0.1, NumberFormat::PlainPercent, u"0,10"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(formatNumber(c.value, c.format, kGreek), c.text.toString()) << c.value;
}

TEST(FormatNumber, AFigureThatRoundsToZeroHasNoMinusSign) {
    EXPECT_EQ(formatNumber(-0.001, NumberFormat::Grouped2, kGreek), u"0,00"_s);
    EXPECT_EQ(formatNumber(-0.0, NumberFormat::Grouped0, kGreek), u"0"_s);
    EXPECT_EQ(formatNumber(Currency{-49}, NumberFormat::Grouped2, kGreek), u"0,00"_s);
}

TEST(FormatNumber, AmountsAreExact) {
    EXPECT_EQ(formatNumber(Currency{10'050}, NumberFormat::Grouped2, kGreek), u"1,01"_s);
    EXPECT_EQ(formatNumber(Currency{10'049}, NumberFormat::Grouped2, kGreek), u"1,00"_s);
    EXPECT_EQ(formatNumber(Currency{500}, NumberFormat::Grouped2, kGreek), u"0,05"_s);
    EXPECT_EQ(formatNumber(Currency{12'345'678'900}, NumberFormat::Grouped2, kGreek), u"1.234.567,89"_s);
    EXPECT_EQ(formatNumber(Currency{-12'345'678'900}, NumberFormat::Grouped0, kGreek), u"-1.234.568"_s);
    EXPECT_EQ(
        formatNumber(Currency{std::numeric_limits<std::int64_t>::min()}, NumberFormat::Grouped2, kGreek),
        u"-922.337.203.685.477,58"_s);
}

TEST(FormatNumber, IntegersBeyondDoublePrecisionStayWhole) {
    EXPECT_EQ(formatNumber(std::int64_t{9'007'199'254'740'993}, NumberFormat::Grouped0, kGreek),
              u"9.007.199.254.740.993"_s);
    EXPECT_EQ(formatNumber(std::int64_t{-1}, NumberFormat::Grouped2, kGreek), u"-1,00"_s);
    EXPECT_EQ(formatNumber(std::int64_t{0}, NumberFormat::Grouped2, kGreek), u"0,00"_s);
}

TEST(FormatNumber, FollowsTheLocalesSigns) {
    EXPECT_EQ(formatNumber(1234.5, NumberFormat::Grouped2, kEnglish), u"1,234.50"_s);
}

TEST(FormatNumber, WhatIsNoNumberStillShows) {
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), NumberFormat::Grouped2, kGreek), u"∞"_s);
    EXPECT_EQ(formatNumber(std::nan(""), NumberFormat::Grouped2, kGreek), u"NaN"_s);
}
