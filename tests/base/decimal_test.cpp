#include "base/decimal.h"

#include "base/format.h"
#include "print_qt.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale kGreek{QLocale(u"el_GR"_s)};

QString plain(double value) {
    return Decimal(value).plainText(kGreek);
}

QString sumOf(const QStringList& texts) {
    Decimal sum;
    for (const QString& text : texts)
        sum += Decimal::fromText(text, kGreek).value();
    return sum.plainText(kGreek);
}

} // namespace

TEST(Decimal, TakesAnAmountAsItIs) {
    EXPECT_EQ(Decimal(Currency{12'345'600}).plainText(kGreek), u"1234,56"_s);
    EXPECT_EQ(Decimal(Currency{-1}).plainText(kGreek), u"-0,0001"_s);
    EXPECT_EQ(Decimal(Currency{std::numeric_limits<std::int64_t>::min()}).plainText(kGreek),
              u"-922337203685477,5808"_s);
}

TEST(Decimal, TakesADoubleByItsFifteenDigits) {
    EXPECT_EQ(plain(0), u"0"_s);
    EXPECT_EQ(plain(0.1 + 0.2), u"0,3"_s);
    EXPECT_EQ(plain(-1234.5), u"-1234,5"_s);
    EXPECT_EQ(plain(1e20), u"100000000000000000000"_s);
    EXPECT_EQ(plain(1.23456789012345e20), u"123456789012345000000"_s);
    EXPECT_EQ(plain(0.0000000001), u"0,0000000001"_s);
}

TEST(Decimal, WhatIsTooLargeOrTooFineStaysADouble) {
    EXPECT_EQ(plain(1e300), u"1E+300"_s);
    EXPECT_EQ(plain(1.0 / 3), u"0,333333333333333"_s);
    EXPECT_FALSE(Decimal(1e-12).isZero());
    EXPECT_FALSE(Decimal(1e300).units().has_value());
}

TEST(Decimal, WhatIsNotFiniteCountsAsZero) {
    EXPECT_TRUE(Decimal(std::numeric_limits<double>::infinity()).isZero());
    EXPECT_TRUE(Decimal(std::numeric_limits<double>::quiet_NaN()).isZero());
}

TEST(Decimal, ReadsTextsDigitByDigit) {
    EXPECT_EQ(sumOf({u"9.007.199.254.740.993,00"_s}), u"9007199254740993"_s);
    EXPECT_EQ(sumOf({u"99.999.999.999.999,99"_s}), u"99999999999999,99"_s);
    EXPECT_EQ(sumOf({u" -5,25 "_s, u"+0,25"_s}), u"-5"_s);
    EXPECT_EQ(sumOf({u"1E3"_s}), u"1000"_s);
    EXPECT_FALSE(Decimal::fromText(u"abc"_s, kGreek).has_value());
    EXPECT_FALSE(Decimal::fromText(u""_s, kGreek).has_value());
    EXPECT_FALSE(Decimal::fromText(u"1,5 x"_s, kGreek).has_value());
}

TEST(Decimal, FiguresThatNetToZeroAreZero) {
    Decimal sum;
    for (int i = 0; i < 100'000; ++i)
        sum += Decimal(Currency{1000});
    sum += Decimal(-10'000.0);
    EXPECT_TRUE(sum.isZero());
    EXPECT_EQ(sumOf({u"0,1"_s, u"0,2"_s, u"-0,3"_s}), u"0"_s);
}

TEST(Decimal, AnOverflowGoesOnAsADouble) {
    Decimal sum(1e27);
    for (int i = 0; i < 40; ++i)
        sum += Decimal(1e27);
    EXPECT_NEAR(sum.toDouble() / 41e27, 1, 1e-12);
}

TEST(Decimal, FormatsHalfAwayFromZero) {
    const auto format = [](const QString& text, NumberFormat how) {
        return formatNumber(Decimal::fromText(text, kGreek).value(), how, kGreek);
    };
    EXPECT_EQ(format(u"1,005"_s, NumberFormat::Grouped2), u"1,01"_s);
    EXPECT_EQ(format(u"-1,005"_s, NumberFormat::Grouped2), u"-1,01"_s);
    EXPECT_EQ(format(u"2,5"_s, NumberFormat::Grouped0), u"3"_s);
    EXPECT_EQ(format(u"-0,004"_s, NumberFormat::Grouped2), u"0,00"_s);
    EXPECT_EQ(format(u"9007199254740993"_s, NumberFormat::Grouped2), u"9.007.199.254.740.993,00"_s);
    EXPECT_EQ(format(u"0"_s, NumberFormat::Grouped0), u"0"_s);
}
