#pragma once

#include "grid/interaction_parts.h"
#include "template/template_store.h"
#include "zkp_grid.h"

namespace zkp {

/// The parts of one control, assembled in a few steps, each built with what it may touch of the steps before.
/// Operations hold a reference of their own while they run, so that a handler may destroy the control under
/// them.
struct ZkpGrid::Parts {
    explicit Parts(std::shared_ptr<Host> givenHost);

    std::function<void(const Error&)> errorSink;

    CoreParts core;
    StatementParts statements;
    LoadParts load;
    InteractionParts interaction;
    SavedProperties savedProperties;
    TemplateStore templates;
};

template <class Operation>
auto ZkpGrid::run(Operation operation) const {
    const std::shared_ptr<Parts> parts = parts_;
    try {
        return operation(*parts);
    } catch (const ControlDestroyed&) {
        return decltype(operation(*parts))();
    }
}

} // namespace zkp
