#pragma once

#include "base/error.h"

#include <sqlite3.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace zkp::ado::sqlite {

/// The moment at which a statement has used up its time; none by default.
class Deadline {
public:
    using Clock = std::chrono::steady_clock;

    Deadline() = default;
    /// 0 is no bound.
    static Deadline in(int seconds);

    Clock::time_point moment() const { return moment_; }
    bool isSet() const { return moment_ != Clock::time_point::max(); }
    bool isOver() const { return Clock::now() >= moment_; }

private:
    Clock::time_point moment_ = Clock::time_point::max();
};

/// Interrupts the statement that runs on a handle when its deadline is over. SQLite asks between
/// instructions; a thread watches the instructions that take long by themselves.
class Interrupter {
public:
    explicit Interrupter(sqlite3* handle);
    ~Interrupter();
    Interrupter(const Interrupter&) = delete;
    Interrupter& operator=(const Interrupter&) = delete;

    /// From now on, or never; gives the deadline before.
    Deadline set(Deadline deadline);

private:
    static int onProgress(void* self);
    void watch();

    sqlite3* handle_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Deadline deadline_;
    Deadline::Clock::time_point wakes_ = Deadline::Clock::time_point::max();
    std::atomic<Deadline::Clock::rep> due_;
    bool ends_ = false;
    std::thread watcher_; ///< started with the first deadline
};

} // namespace zkp::ado::sqlite
