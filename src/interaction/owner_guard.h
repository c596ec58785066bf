#pragma once

#include "base/scope_guard.h"
#include "core/keep_alive.h"
#include "core/state/lifetime.h"

#include <memory>

namespace zkp {

/// A handler for a model's notifications: it does nothing once the control has ended, keeps `owner` alive
/// while it runs, and ends quietly when one of its events destroys the control.
template <class Handler>
auto guardedBy(const std::weak_ptr<void>& owner, const Lifetime& lifetime, Handler handler) {
    return [owner, &lifetime, handler](auto&&... arguments) {
        const std::shared_ptr<void> alive = owner.lock();
        if (!alive || lifetime.destroyed)
            return;
        const ScopeGuard release([&] {
            if (lifetime.destroyed)
                releaseLater(alive); // the model itself is still at work below
        });
        try {
            handler(arguments...);
        } catch (const ControlDestroyed&) { // whoever moved the model finds out by itself
        }
    };
}

} // namespace zkp
