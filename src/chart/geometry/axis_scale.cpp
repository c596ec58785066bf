#include "chart/geometry/axis_scale.h"

#include <algorithm>
#include <cmath>

namespace zkp::chart {

namespace {

/// Beyond this the width of an axis would be no number.
constexpr double kLargest = 1e300;
constexpr int kSmallestPower = -300;
/// How far off a whole number a quotient of two doubles may fall and still be meant as one.
constexpr double kSlack = 1e-9;
constexpr int kSignificantDigits = 15;

struct Range {
    double least = 0;
    double most = 0;
    bool isEmpty = true;

    void take(double value) {
        value = std::clamp(value, -kLargest, kLargest);
        least = isEmpty ? value : std::min(least, value);
        most = isEmpty ? value : std::max(most, value);
        isEmpty = false;
    }
};

Range rangeOf(std::span<const double> values, bool withZero) {
    Range range;
    for (const double value : values)
        if (std::isfinite(value))
            range.take(value);
    if (range.isEmpty)
        return range;
    if (withZero)
        range.take(0);
    if (range.least == range.most) { // one value: room on both sides, a whole axis around nothing
        const double room = range.least == 0 ? 1 : std::abs(range.least) / 2;
        range.most += room;
        if (range.least != 0)
            range.least -= room;
    }
    return range;
}

/// units × 10^power, correctly rounded where a division by a power of ten is.
double scaled(double units, int power) {
    return power < 0 ? units / std::pow(10.0, -power) : units * std::pow(10.0, power);
}

} // namespace

AxisScale::AxisScale(std::span<const double> values, int mostTicks, bool withZero) {
    const Range range = rangeOf(values, withZero);
    if (range.isEmpty)
        return;
    mostTicks = std::max(mostTicks, 3);
    const double width = range.most - range.least;
    int power = std::max(static_cast<int>(std::floor(std::log10(width / mostTicks))), kSmallestPower);
    for (;; ++power)
        for (const int digit : {1, 2, 5})
            if (takeStep(range.least, range.most, power, digit, mostTicks))
                return;
}

/// False when the ends would stand too many steps of that size apart.
bool AxisScale::takeStep(double least, double most, int power, int digit, int mostTicks) {
    const double step = scaled(digit, power);
    const double first = std::floor(least / step + kSlack);
    const double last = std::max(std::ceil(most / step - kSlack), first + 1);
    // Beside a large value the finest steps can't be told apart.
    const bool areTold = std::max(std::abs(first), std::abs(last)) < std::pow(10.0, kSignificantDigits);
    if (!areTold || last - first + 1 > mostTicks)
        return false;
    first_ = first;
    last_ = last;
    digit_ = digit;
    power_ = power;
    return true;
}

double AxisScale::tick(int index) const {
    return scaled((first_ + index) * digit_, power_);
}

QString AxisScale::tickText(int index, const ReportLocale& locale) const {
    const double value = tick(index);
    if (power_ < -kSignificantDigits || std::abs(value) >= 1e21)
        return locale.locale().toString(value, 'g', 3);
    QString text = locale.locale().toString(value, 'f', std::max(0, -power_));
    return value == 0 && text.startsWith(u'-') ? text.sliced(1) : text;
}

double AxisScale::place(double value) const {
    if (std::isnan(value))
        return 0;
    // Halved, since the width of the widest axis is no number.
    const double place = (value / 2 - low() / 2) / (high() / 2 - low() / 2);
    return std::clamp(place, 0.0, 1.0);
}

} // namespace zkp::chart
