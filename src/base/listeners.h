#pragma once

#include "base/scope_guard.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

namespace zkp {

/// Somebody listens for as long as this lives. Movable; it may outlive what is listened to.
class Listening {
public:
    Listening() = default;
    /// Ends it now: the listener is not called again, not even in a notification that is under way.
    void stop() { listener_.reset(); }
    explicit operator bool() const { return listener_ != nullptr; }
    Listening(Listening&&) = default;
    Listening& operator=(Listening&&) = default;
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

private:
    template <class>
    friend class Listeners;
    explicit Listening(std::shared_ptr<const void> listener)
        : listener_(std::move(listener)) {}

    std::shared_ptr<const void> listener_;
};

/// Any number of listeners to one thing, told in the order in which they came. A listener is a function,
/// or a struct of several of them.
///
/// While it is told, a listener may stop itself and others, let others in (they hear of the next time),
/// tell anew, and destroy the whole list: then nobody else is told. One that throws silences nobody: the
/// others are told, then whoever told gets what was thrown first. A list to which nobody ever listened is one
/// null pointer. All of it belongs to one thread.
template <class Listener>
class Listeners {
public:
    Listeners() = default;
    ~Listeners() {
        if (shared_)
            shared_->isOver = true;
    }
    Listeners(const Listeners&) = delete;
    Listeners& operator=(const Listeners&) = delete;

    /// The listener is told until the result is destroyed.
    [[nodiscard]] Listening add(Listener listener) {
        if (!shared_)
            shared_ = std::make_shared<Shared>();
        shared_->forgetStopped();
        auto kept = std::make_shared<const Listener>(std::move(listener));
        shared_->listeners.push_back(kept);
        return Listening(std::move(kept));
    }

    bool isEmpty() const {
        return !shared_ || std::ranges::all_of(shared_->listeners,
                                               [](const auto& listener) { return listener.expired(); });
    }

    /// Calls `tellOne` with every listener.
    template <std::invocable<const Listener&> TellOne>
    void tell(TellOne tellOne) const {
        if (!shared_ || shared_->listeners.empty())
            return;
        const std::shared_ptr<Shared> shared = shared_; // this may be gone when a call returns
        const std::size_t count = shared->listeners.size();
        ++shared->rounds;
        const ScopeGuard done([&] {
            --shared->rounds;
            shared->forgetStopped();
        });
        std::exception_ptr failure;
        for (std::size_t i = 0; i < count && !shared->isOver; ++i)
            if (const std::shared_ptr<const Listener> listener = shared->listeners[i].lock()) {
                try {
                    tellOne(*listener);
                } catch (...) {
                    if (!failure)
                        failure = std::current_exception();
                }
            }
        if (failure)
            std::rethrow_exception(failure);
    }

    /// Calls every listener, where a listener is a function.
    template <class... Args>
    requires std::invocable<const Listener&, Args&...>
    void notify(Args&&... args) const {
        tell([&](const Listener& listener) { listener(args...); });
    }

private:
    struct Shared {
        std::vector<std::weak_ptr<const Listener>> listeners;
        int rounds = 0; ///< how many times it is being told now
        bool isOver = false;

        /// Not during a round, which counts by places.
        void forgetStopped() {
            if (rounds == 0)
                std::erase_if(listeners, [](const auto& listener) { return listener.expired(); });
        }
    };

    std::shared_ptr<Shared> shared_;
};

} // namespace zkp
