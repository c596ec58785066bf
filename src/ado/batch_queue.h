#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

namespace zkp::ado {

/// Batches of rows on their way between the thread that fetches and the one that stores, and back.
template <class Batch>
class BatchQueue {
public:
    using Ptr = std::unique_ptr<Batch>;

    /// Waits for a batch with rows.
    Ptr takeFilled() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !filled_.empty(); });
        return takeFirst(filled_);
    }
    /// Waits for a batch to fill; nothing when the fetch has been given up.
    Ptr takeFree() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return cancelled_ || !free_.empty(); });
        return cancelled_ ? nullptr : takeFirst(free_);
    }
    void giveFilled(Ptr batch) { give(filled_, std::move(batch)); }
    void giveFree(Ptr batch) { give(free_, std::move(batch)); }
    void cancel() {
        {
            const std::lock_guard lock(mutex_);
            cancelled_ = true;
        }
        changed_.notify_all();
    }

private:
    static Ptr takeFirst(std::deque<Ptr>& batches) {
        Ptr batch = std::move(batches.front());
        batches.pop_front();
        return batch;
    }
    void give(std::deque<Ptr>& batches, Ptr batch) {
        {
            const std::lock_guard lock(mutex_);
            batches.push_back(std::move(batch));
        }
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Ptr> filled_;
    std::deque<Ptr> free_;
    bool cancelled_ = false;
};

} // namespace zkp::ado
