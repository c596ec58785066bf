#pragma once

#include "script/event_handlers.h"
#include "zkp_grid.h"

#include <QPointer>

#include <memory>

namespace zkp::script {

/// One control that a script made, or that the host offers, with the script's handlers. The objects that
/// stand for its parts share it, so that a part that the script still holds never outlives its control.
class ScriptControl {
public:
    ScriptControl(Bridge& bridge, std::shared_ptr<Host> host)
        : bridge_(bridge)
        , own_(std::make_unique<ZkpGrid>(std::move(host)))
        , grid_(own_.get())
        , handlers_(std::make_unique<EventHandlers>(bridge, grid_->events())) {}
    /// A control of the host's.
    ScriptControl(Bridge& bridge, ZkpGrid& grid)
        : bridge_(bridge)
        , grid_(&grid)
        , handlers_(std::make_unique<EventHandlers>(bridge, grid.events())) {}

    Bridge& bridge() { return bridge_; }
    /// Error kErrObjectNotSet when the control has been destroyed.
    ZkpGrid& grid();
    EventHandlers& handlers();
    /// Ends a control of the script's at once, also from within one of its events; lets go of the host's.
    void destroy();
    bool isDestroyed() const { return !grid_; }
    /// Whether it lives and a script made it.
    bool isScripts() const { return own_ != nullptr; }

private:
    Bridge& bridge_;
    std::unique_ptr<ZkpGrid> own_; ///< null of a control of the host's
    QPointer<ZkpGrid> grid_;
    std::unique_ptr<EventHandlers> handlers_; ///< gone before the events that it is bound to
};

using ScriptControlPtr = std::shared_ptr<ScriptControl>;

} // namespace zkp::script
