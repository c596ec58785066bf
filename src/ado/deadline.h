#pragma once

#include <chrono>

namespace zkp::ado {

/// The moment at which a statement has used up its time; none by default.
class Deadline {
public:
    using Clock = std::chrono::steady_clock;

    Deadline() = default;
    /// 0 is no bound.
    static Deadline in(int seconds) {
        Deadline deadline;
        if (seconds > 0)
            deadline.moment_ = Clock::now() + std::chrono::seconds(seconds);
        return deadline;
    }

    Clock::time_point moment() const { return moment_; }
    bool isSet() const { return moment_ != Clock::time_point::max(); }
    bool isOver() const { return Clock::now() >= moment_; }

private:
    Clock::time_point moment_ = Clock::time_point::max();
};

} // namespace zkp::ado
