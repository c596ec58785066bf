#pragma once

#include <QString>

/// What stands in a report's cells beside its data, and the message at its last row.
namespace zkp::texts {

/// What a column's heading becomes when the statement has no such field: "#" caption and this.
inline QString missingFieldSuffix() {
    return QStringLiteral("# (Λάθος)");
}
/// Stands in the group factor cells of detail rows that have no text of their own.
inline QString repeatedValue() {
    return QStringLiteral("----");
}
inline QString hitBottom() {
    return QStringLiteral("HitBottom");
}

} // namespace zkp::texts
