#pragma once

#include "ado/recordset.h"
#include "core/stat_field.h"

#include <QString>

namespace zkp {

// Both builders read the dictionary from its first row and leave it behind its last. A null in
// `isgroup`, `isTot`, `Algn` or an aggregate's flag reads as False or 0; any other null is Error 94,
// a dictionary without one of the columns Error 3265. Whatever was added before an error stays.

/// Appends one entry for each dictionary row; an empty dictionary leaves the list as it was. A caller
/// that wants a list of its own clears it first.
void appendPlainFields(ado::Recordset& dictionary, StatFieldList& fields);

/// Makes the list anew: the two count columns, then for each dictionary row a group entry and one for
/// each aggregate that the row allows, six at the most.
void buildStatisticsFields(ado::Recordset& dictionary, StatFieldList& fields);

/// The trimmed text, with the first character of `fill` before it up to `length`. Error 5 for a text
/// that is longer than that, and for an empty `fill`.
QString PadLeft(const QString& text, int length, const QString& fill);

} // namespace zkp
