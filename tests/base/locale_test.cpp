#include "base/currency.h"
#include "base/report_locale.h"
#include "base/value.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale kGreek{QLocale(u"el_GR"_s)};

QDateTime moment(int y, int m, int d, QTime time = QTime(0, 0)) {
    return {QDate(y, m, d), time};
}

} // namespace

TEST(DateText, IsTheShortFormWithFourDigitsOfYear) {
    EXPECT_EQ(kGreek.dateText(moment(2026, 11, 20)), u"20/11/2026"_s);
    EXPECT_EQ(kGreek.dateText(moment(1999, 3, 5)), u"5/3/1999"_s);
}

TEST(DateText, ShowsTheTimeWhenNotMidnight) {
    EXPECT_EQ(kGreek.dateText(moment(2026, 11, 20, QTime(9, 5, 7))), u"20/11/2026 9:05:07"_s);
    EXPECT_EQ(kGreek.dateText(moment(2026, 11, 20, QTime(0, 0, 1))), u"20/11/2026 0:00:01"_s);
}

TEST(ValueText, EachKindHasItsOwn) {
    EXPECT_EQ(valueText(QVariant(), kGreek), u""_s);
    EXPECT_EQ(valueText(QVariant(true), kGreek), u"True"_s);
    EXPECT_EQ(valueText(QVariant(false), kGreek), u"False"_s);
    EXPECT_EQ(valueText(QVariant(1234567LL), kGreek), u"1234567"_s);
    EXPECT_EQ(valueText(QVariant(1234.5), kGreek), u"1234,5"_s);
    EXPECT_EQ(valueText(QVariant(0.1 + 0.2), kGreek), u"0,3"_s);
    EXPECT_EQ(valueText(QVariant::fromValue(Currency{12'345}), kGreek), u"1,2345"_s);
    EXPECT_EQ(valueText(QVariant(u"Άρτα"_s), kGreek), u"Άρτα"_s);
    EXPECT_EQ(valueText(QVariant(moment(2024, 2, 29)), kGreek), u"29/2/2024"_s);
}
