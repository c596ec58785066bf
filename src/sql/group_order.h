#pragma once

#include "ado/recordset.h"

#include <QStringList>

namespace zkp {

/// A totals statement has no order of its own: mostly the database's grouping leaves the records in order.
/// Where a group's records stand apart, they are sorted by the factors that break here. The innermost one
/// needs no order, since each record is a group of it.
void keepGroupsTogether(ado::Recordset& records, const QStringList& factors);

} // namespace zkp
