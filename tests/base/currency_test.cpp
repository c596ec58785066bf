#include "base/currency.h"
#include "print_qt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using zkp::Currency;

TEST(Currency, KeepsFourDecimalsExactly) {
    EXPECT_EQ(Currency::fromDouble(12.34)->scaled, 123'400);
    EXPECT_EQ(Currency::fromDouble(-0.0001)->scaled, -1);
    EXPECT_EQ(Currency::fromWhole(7).scaled, 70'000);
}

TEST(Currency, RefusesWhatItCannotHold) {
    EXPECT_FALSE(Currency::fromDouble(std::nan("")).has_value());
    EXPECT_FALSE(Currency::fromDouble(std::numeric_limits<double>::infinity()).has_value());
    EXPECT_FALSE(Currency::fromDouble(1e15).has_value());
}

TEST(Currency, PlainTextHasNoTrailingZeros) {
    EXPECT_EQ((Currency{123'400}).toPlainText(), u"12.34"_s);
    EXPECT_EQ((Currency{-5}).toPlainText(), u"-0.0005"_s);
    EXPECT_EQ((Currency{70'000}).toPlainText(), u"7"_s);
    EXPECT_EQ((Currency{std::numeric_limits<std::int64_t>::min()}).toPlainText(), u"-922337203685477.5808"_s);
}
