#pragma once

#include "base/report_locale.h"

#include <span>

namespace zkp::chart {

/// A value axis: its ends and its ticks, which stand at multiples of a step of 1, 2 or 5 times a power of
/// ten. The ends are ticks themselves.
class AxisScale {
public:
    /// From 0 to 1, as an axis without values shows.
    AxisScale() = default;
    /// The finest scale with `mostTicks` ticks at the most (3 at the least, since an axis may reach to both
    /// sides of zero) on which all values find room. With `withZero` the zero line belongs to it, as bars and
    /// areas stand on it. What is not finite is left out; a single value gets room on both sides.
    AxisScale(std::span<const double> values, int mostTicks, bool withZero);

    double low() const { return tick(0); }
    double high() const { return tick(tickCount() - 1); }
    int tickCount() const { return static_cast<int>(last_ - first_) + 1; }
    /// The value at a tick, counted from 0 at the low end.
    double tick(int index) const;
    /// The tick's value with as many decimals as the step has, in the locale's signs; grouped.
    QString tickText(int index, const ReportLocale& locale) const;
    /// Where a value stands: 0 at the low end, 1 at the high end. Values outside, and those that are not
    /// finite, stand at the nearer end (at 0 those that are no number).
    double place(double value) const;

private:
    bool takeStep(double least, double most, int power, int digit, int mostTicks);

    double first_ = 0; ///< the low end, in steps; whole
    double last_ = 1;
    int digit_ = 1; ///< the step is digit_ × 10^power_
    int power_ = 0;
};

} // namespace zkp::chart
