#pragma once

#include "load/record_statistics.h"

namespace zkp {

/// Makes the list of fields that the user may pick anew from the dictionary's rows: one entry a row for
/// a plain report, one for each aggregate for a totals report.
void buildFieldList(ado::Recordset& dictionary, bool totals, StatFieldList& fields);

/// The four computed columns of loss-ratio reports, at the end of the list.
void appendLossRatioFields(StatFieldList& fields);

} // namespace zkp
