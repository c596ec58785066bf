#pragma once

#include "base/error.h"
#include "core/state/source_state.h"

#include <vector>

namespace zkp {

/// What the record source still lacks before a load, in the order of the checks. A missing command
/// does not end the checks: a source of that kind can fail twice. Kinds of 4 and more pass unchecked.
std::vector<Error> failedSourceChecks(const SourceState& given);

} // namespace zkp
