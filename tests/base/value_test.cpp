#include "base/value.h"

#include "base/currency.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(NullTo, ReplacesNullOnly) {
    EXPECT_EQ(NullTo(QVariant(), 5), QVariant(5));
    EXPECT_EQ(NullTo(u""_s, u"x"_s), QVariant(u""_s));
    EXPECT_EQ(NullTo(0, 5), QVariant(0));
}

TEST(ToDouble, GivesTheNumberOrTheSixteenBitZero) {
    const ReportLocale greek(QLocale(u"el_GR"_s));
    EXPECT_EQ(ToDouble(u"1.234,5"_s, greek), QVariant(1234.5));
    EXPECT_EQ(ToDouble(7LL, greek), QVariant(7.0));
    EXPECT_EQ(ToDouble(QVariant::fromValue(Currency{25'000}), greek), QVariant(2.5));
    for (const QVariant& value : {QVariant(u"αβγ"_s), QVariant(), QVariant(u""_s)}) {
        EXPECT_EQ(ToDouble(value, greek).typeId(), QMetaType::Short);
        EXPECT_EQ(ToDouble(value, greek).toInt(), 0);
    }
}
