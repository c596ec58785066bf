#include "ado/odbc/session/canceller.h"

namespace zkp::ado::odbc {

namespace {

/// What the driver gets to end the statement by itself: two who cancel could hit the next statement.
constexpr auto kGrace = std::chrono::milliseconds(700);
constexpr auto kCancelAgain = std::chrono::milliseconds(200);

} // namespace

Canceller::~Canceller() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void Canceller::watch(SQLHSTMT statement, Deadline deadline) {
    if (!deadline.isSet())
        return;
    const std::lock_guard lock(mutex_);
    statement_ = statement;
    const bool earlier = deadline.moment() + kGrace < due_;
    due_ = deadline.moment() + kGrace;
    if (!thread_.joinable())
        thread_ = std::thread(&Canceller::run, this);
    else if (earlier)
        changed_.notify_all();
}

void Canceller::rest() {
    const std::lock_guard lock(mutex_);
    statement_ = SQL_NULL_HSTMT;
}

void Canceller::run() {
    std::unique_lock lock(mutex_);
    while (!ends_) {
        if (statement_ == SQL_NULL_HSTMT)
            due_ = Deadline::Clock::time_point::max();
        if (due_ == Deadline::Clock::time_point::max()) {
            changed_.wait(lock);
        } else if (Deadline::Clock::now() >= due_) {
            SQLCancel(statement_);
            due_ = Deadline::Clock::now() + kCancelAgain;
        } else {
            changed_.wait_until(lock, due_);
        }
    }
}

} // namespace zkp::ado::odbc
