#pragma once

#include "ado/deadline.h"

#include <sql.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace zkp::ado::odbc {

/// Cancels a statement that is still in the driver after its deadline. Drivers end statements by
/// themselves where they know how; this is for those that don't, and for fetches.
class Canceller {
public:
    Canceller() = default;
    ~Canceller();
    Canceller(const Canceller&) = delete;
    Canceller& operator=(const Canceller&) = delete;

    /// The statement that is being called from now on.
    void watch(SQLHSTMT statement, Deadline deadline);
    /// No statement; a cancellation that is under way has ended.
    void rest();

private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    SQLHSTMT statement_ = SQL_NULL_HSTMT;
    Deadline::Clock::time_point due_ = Deadline::Clock::time_point::max();
    bool ends_ = false;
    std::thread thread_; ///< started with the first deadline
};

} // namespace zkp::ado::odbc
