#pragma once

#include "widgets/tools/reshape_snapshot.h"

namespace zkp {

/// What a step of reshaping was, in a few words for a menu.
QString stepName(const ReshapeSnapshot& before, const ReshapeSnapshot& after);

} // namespace zkp
