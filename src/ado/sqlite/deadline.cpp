#include "ado/sqlite/deadline.h"

namespace zkp::ado::sqlite {

namespace {

/// Some 20 microseconds of work, so that asking costs nothing that can be measured.
constexpr int kInstructionsBetweenChecks = 1000;
/// An interrupt that comes before the statement's first step is forgotten, hence again and again.
constexpr auto kInterruptAgain = std::chrono::milliseconds(50);

} // namespace

Interrupter::Interrupter(sqlite3* handle)
    : handle_(handle)
    , due_(Deadline().moment().time_since_epoch().count()) {
    sqlite3_progress_handler(handle_, kInstructionsBetweenChecks, onProgress, this);
}

Interrupter::~Interrupter() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    if (watcher_.joinable())
        watcher_.join();
}

Deadline Interrupter::set(Deadline deadline) {
    const std::lock_guard lock(mutex_);
    const Deadline before = deadline_;
    deadline_ = deadline;
    due_ = deadline.moment().time_since_epoch().count();
    if (deadline.isSet() && !watcher_.joinable())
        watcher_ = std::thread(&Interrupter::watch, this);
    // The watcher looks again by itself when it wakes, so most statements need not wake it.
    if (deadline.moment() < wakes_)
        changed_.notify_all();
    return before;
}

int Interrupter::onProgress(void* self) {
    const auto due = static_cast<Interrupter*>(self)->due_.load(std::memory_order_relaxed);
    return Deadline::Clock::now().time_since_epoch().count() >= due ? 1 : 0;
}

void Interrupter::watch() {
    std::unique_lock lock(mutex_);
    while (!ends_) {
        wakes_ = deadline_.moment();
        if (deadline_.isOver()) {
            sqlite3_interrupt(handle_);
            wakes_ = Deadline::Clock::now() + kInterruptAgain;
        }
        if (wakes_ == Deadline::Clock::time_point::max())
            changed_.wait(lock);
        else
            changed_.wait_until(lock, wakes_);
    }
}

} // namespace zkp::ado::sqlite
