#pragma once

#include "ado/dialect/exec_call.h"

namespace zkp::ado::dialect {

/// A call's arguments as constants of standard SQL: 'it''s', 2, NULL
QString argumentTexts(const ExecCall& call);

} // namespace zkp::ado::dialect
