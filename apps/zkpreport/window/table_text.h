#pragma once

#include "ado/recordset.h"

namespace zkp::app {

/// A column of the current record as trimmed text; empty for a null and for a column that the table
/// lacks.
QString columnText(ado::Recordset& row, QStringView column);

/// A flag of a dictionary, Boolean or 0/1, null being False; `missing` for a column that the table lacks.
bool columnFlag(ado::Recordset& row, QStringView column, bool missing = false);

} // namespace zkp::app
