#pragma once

#include <memory>

namespace zkp {

/// Keeps the parts of a control that ended in the middle of its own work until that work has unwound:
/// until the event loop comes round, or to the end of the process where there is none.
void releaseLater(std::shared_ptr<void> parts);

} // namespace zkp
