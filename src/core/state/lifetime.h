#pragma once

namespace zkp {

/// Thrown when a handler has destroyed the control in the middle of an operation: the operation
/// unwinds without a word.
struct ControlDestroyed {};

/// Whether the control still stands. The front door alone ends it; whoever raised an event asks.
struct Lifetime {
    bool destroyed = false; ///< the control is gone; whoever still runs unwinds

    void throwIfDestroyed() const {
        if (destroyed)
            throw ControlDestroyed{};
    }
};

} // namespace zkp
