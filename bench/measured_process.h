#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zkp::bench {

using Words = std::vector<std::string>;

/// What one process cost from its start to its end.
struct Sample {
    double seconds = 0;
    double processor = 0; ///< seconds of processor time, which other programs disturb less
    double peak = 0;      ///< bytes
};

/// Runs this program again as a process of its own, which finds the words behind "--measure"; ends the
/// program when that process fails.
Sample measure(const Words& words);

/// Each value's own median.
Sample medians(const std::vector<Sample>& samples);

/// How one measurement compares with its yardstick: in seconds, and in seconds of processor time.
struct Ratio {
    double seconds;
    double processor;
};
Ratio operator/(const Sample& sample, const Sample& yardstick);
Ratio operator/(const Ratio& ratio, const Ratio& other);

/// The `main` of a program of such measurements. With "--measure" it does `work`, which gives the exit
/// code; otherwise `measureAll` for so many rows (at least 10) and runs.
int benchMain(int argc, char** argv, const std::function<int(const Words&)>& work,
              const std::function<void(int rows, int runs)>& measureAll);

} // namespace zkp::bench
