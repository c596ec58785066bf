#include "chart/geometry/axis_scale.h"

#include "print_qt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::chart;

namespace {

QString ticksOf(const AxisScale& scale) {
    const ReportLocale greek(QLocale(u"el_GR"_s));
    QStringList texts;
    for (int i = 0; i < scale.tickCount(); ++i)
        texts += scale.tickText(i, greek);
    return texts.join(u" "_s);
}

QString ticks(std::initializer_list<double> values, int most = 6, bool withZero = true) {
    return ticksOf(AxisScale(std::span(values.begin(), values.size()), most, withZero));
}

} // namespace

TEST(AxisScale, StepsAreOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_EQ(ticks({4}), u"0 1 2 3 4"_s);
    EXPECT_EQ(ticks({7}), u"0 2 4 6 8"_s);
    EXPECT_EQ(ticks({22}), u"0 5 10 15 20 25"_s);
    EXPECT_EQ(ticks({47}), u"0 10 20 30 40 50"_s);
}

TEST(AxisScale, NumbersHaveTheLocalesSigns) {
    EXPECT_EQ(ticks({1'473'984}), u"0 500.000 1.000.000 1.500.000"_s);
    EXPECT_EQ(ticks({0.35}), u"0,0 0,1 0,2 0,3 0,4"_s);
    EXPECT_EQ(ticks({0.0004}), u"0,0000 0,0001 0,0002 0,0003 0,0004"_s);
}

TEST(AxisScale, NegativeValuesReachBelowTheZeroLine) {
    EXPECT_EQ(ticks({-30, 50}), u"-40 -20 0 20 40 60"_s);
    EXPECT_EQ(ticks({-8, -3}), u"-8 -6 -4 -2 0"_s);
}

TEST(AxisScale, WithoutTheZeroLineItStaysNearTheValues) {
    EXPECT_EQ(ticks({1002, 1007}, 7, false), u"1.002 1.003 1.004 1.005 1.006 1.007"_s);
}

TEST(AxisScale, NoValueAllZeroAndOneValueHaveAnAxisToo) {
    EXPECT_EQ(ticks({}), u"0 1"_s);
    EXPECT_EQ(ticks({0, 0}), u"0,0 0,2 0,4 0,6 0,8 1,0"_s);
    EXPECT_EQ(ticks({10}, 6, false), u"5 10 15"_s);
}

TEST(AxisScale, WhatIsNotFiniteIsLeftOut) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ticks({nothing, 4, infinite, -infinite}), u"0 1 2 3 4"_s);
    EXPECT_EQ(ticks({nothing}), u"0 1"_s);
    const AxisScale scale(std::vector<double>{4}, 6, true);
    EXPECT_EQ(scale.place(nothing), 0);
    EXPECT_EQ(scale.place(infinite), 1);
    EXPECT_EQ(scale.place(-infinite), 0);
}

TEST(AxisScale, VerySmallBesideVeryLarge) {
    const AxisScale scale(std::vector<double>{1e-9, 1e15}, 6, true);
    EXPECT_EQ(scale.low(), 0);
    EXPECT_EQ(scale.high(), 1e15);
    EXPECT_EQ(scale.place(1e15), 1);
    EXPECT_NEAR(scale.place(1e-9), 0, 1e-12);
}

TEST(AxisScale, TheLargestAndSmallestDoubles) {
    const double largest = std::numeric_limits<double>::max();
    const double smallest = std::numeric_limits<double>::denorm_min();
    for (const auto& values :
         {std::vector<double>{-largest, largest}, std::vector<double>{smallest},
          std::vector<double>{largest, smallest}, std::vector<double>{-smallest, smallest}}) {
        const AxisScale scale(values, 6, true);
        EXPECT_LE(scale.tickCount(), 6);
        EXPECT_TRUE(std::isfinite(scale.low()) && std::isfinite(scale.high()));
        EXPECT_LT(scale.low(), scale.high());
        EXPECT_FALSE(ticksOf(scale).isEmpty());
    }
}

TEST(AxisScale, EveryValueStandsOnItAndTicksAreAsManyAsAskedAtTheMost) {
    std::mt19937_64 random(20261122);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> power(-12, 15);
    for (int round = 0; round < 5000; ++round) {
        const double size = std::pow(10.0, power(random));
        std::vector<double> values;
        for (int i = 0; i < 5; ++i)
            values.push_back(mantissa(random) * size);
        const int most = 3 + round % 12;
        const AxisScale scale(values, most, round % 2 == 0);
        ASSERT_LE(scale.tickCount(), most);
        ASSERT_GE(scale.tickCount(), 2);
        for (const double value : values) {
            ASSERT_GE(value, scale.low() - size * 1e-8);
            ASSERT_LE(value, scale.high() + size * 1e-8);
        }
        for (int i = 1; i < scale.tickCount(); ++i)
            ASSERT_LT(scale.tick(i - 1), scale.tick(i));
    }
}
