#pragma once

#include "base/error.h"

namespace zkp {

/// The exception being handled, whatever its type, as the system's own. Only inside a catch block.
Error errorInFlight();

} // namespace zkp
