#pragma once

#include "ado/deadline.h"

#include <sqlite3.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace zkp::ado::sqlite {

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
