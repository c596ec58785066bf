#pragma once

#include <chrono>
#include <cstdint>

namespace zkp::demo {

/// A day, as stored in a column declared DATE: "2021-03-05".
using Day = std::chrono::sys_days;

/// A moment, as stored in a column declared TIMESTAMP: "2021-03-05 09:07:00".
struct Moment {
    Day day;
    int secondOfDay = 0;
};

constexpr Day day(int year, unsigned month, unsigned dayOfMonth) {
    return std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(dayOfMonth);
}

/// The same day of a later year; 29 February becomes the 28th where there is none.
constexpr Day yearsLater(Day from, int years) {
    const std::chrono::year_month_day date{from};
    const auto later = date + std::chrono::years{years};
    return later.ok() ? Day{later} : Day{later.year() / later.month() / std::chrono::last};
}

} // namespace zkp::demo
