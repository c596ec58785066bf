#pragma once

namespace zkp {

/// The events that wait while the control works. These wait on.
class PendingEvents {
public:
    virtual ~PendingEvents() = default;

    /// Lets them run once.
    virtual void runPendingEvents() {}
};

} // namespace zkp
