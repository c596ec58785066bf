#include "base/number.h"

#include "base/currency.h"
#include "error_of.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale kGreek{QLocale(u"el_GR"_s)};

} // namespace

TEST(Val, StopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(val(u"12"), 12);
    EXPECT_EQ(val(u"   -3.5x"), -3.5);
    EXPECT_EQ(val(u"1.234,50"), 1.234);
    EXPECT_EQ(val(u"1.2.3"), 1.2);
    EXPECT_EQ(val(u"1e3"), 1000);
    EXPECT_EQ(val(u"1e"), 1);
    EXPECT_EQ(val(u".5"), 0.5);
    EXPECT_EQ(val(u"12 34"), 12);
}

TEST(Val, NeverFails) {
    EXPECT_EQ(val(u""), 0);
    EXPECT_EQ(val(u"αβγ"), 0);
    EXPECT_EQ(val(u"-"), 0);
    EXPECT_EQ(val(u"."), 0);
    EXPECT_EQ(val(u"\t5"), 0);
}

TEST(ToNumber, ReadsTheLocalesSigns) {
    EXPECT_EQ(toNumber(u"1.234,50", kGreek), 1234.5);
    EXPECT_EQ(toNumber(u" -7 ", kGreek), -7);
    EXPECT_EQ(toNumber(u",5", kGreek), 0.5);
    EXPECT_EQ(toNumber(u"1e3", kGreek), 1000);
    // A point groups in Greek, wherever it stands.
    EXPECT_EQ(toNumber(u"1.5", kGreek), 15);
}

TEST(ToNumber, RefusesWhatIsNotWhollyANumber) {
    for (const QStringView text :
         std::initializer_list<QStringView>{u"", u" ", u"-", u"12x", u"x12", u"1,2,3", u"1 2", u".", u"12-"})
        EXPECT_FALSE(toNumber(text, kGreek).has_value()) << text.toString().toStdString();
}

TEST(RoundHalfEven, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundHalfEven(0.5), 0);
    EXPECT_EQ(roundHalfEven(1.5), 2);
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(-2.5), -2);
    EXPECT_EQ(roundHalfEven(0.125, 2), 0.12);
}

TEST(WholeNumbers, RoundHalfToEvenAndRefuseWhatDoesNotFit) {
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(3.5), 4);
    EXPECT_EQ(toInt16(u"12"_s), 12);
    EXPECT_EQ(toInt16(true), -1);
    EXPECT_EQ(toInt16(QVariant::fromValue(Currency{15'000})), 2);
    EXPECT_EQ(test::errorNumber([] { toInt16(32768); }), kErrOverflow);
    EXPECT_EQ(test::errorNumber([] { toInt32(3e9); }), kErrOverflow);
    EXPECT_EQ(test::errorNumber([] { toInt16(u"NULL"_s); }), kErrTypeMismatch);
    EXPECT_EQ(test::errorNumber([] { toInt16(QVariant()); }), kErrTypeMismatch);
}
