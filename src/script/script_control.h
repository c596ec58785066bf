#pragma once

#include "script/event_handlers.h"
#include "zkp_grid.h"

#include <memory>

namespace zkp::script {

/// One control that a script made, with the script's handlers. The objects that stand for its parts
/// share it, so that a part that the script still holds never outlives its control.
class ScriptControl {
public:
    ScriptControl(Bridge& bridge, std::shared_ptr<Host> host)
        : bridge_(bridge)
        , grid_(std::make_unique<ZkpGrid>(std::move(host)))
        , handlers_(std::make_unique<EventHandlers>(bridge, grid_->events())) {}

    Bridge& bridge() { return bridge_; }
    /// Error kErrObjectNotSet when the script has destroyed the control.
    ZkpGrid& grid();
    EventHandlers& handlers();
    /// Ends the control at once, also from within one of its events.
    void destroy();
    bool isDestroyed() const { return !grid_; }

private:
    Bridge& bridge_;
    std::unique_ptr<ZkpGrid> grid_;
    std::unique_ptr<EventHandlers> handlers_; ///< gone before the events that it is bound to
};

using ScriptControlPtr = std::shared_ptr<ScriptControl>;

} // namespace zkp::script
