#pragma once

#include "ado/recordset.h"
#include "base/decimal.h"

#include <QHash>

#include <vector>

namespace zkp {

/// Sums of a field over the records that have given keys. Sums by the same key fields are worked out
/// once for all keys, in one walk, so that asking for each group of a report costs no walk each.
class GroupValueIndex {
public:
    struct Key {
        QString field;
        QString text; ///< as the grid shows it, trimmed
    };

    /// Sums come from these records from here on. What is known of other ones is forgotten.
    void use(const ado::RecordsetPtr& records, const ReportLocale& locale);

    /// Numbers and dates match by value, anything else by its shown text without regard to case. A blank
    /// key matches an empty text and no null. Error 3265 when the records have no such field.
    Decimal sum(const std::vector<Key>& keys, const QString& valueField);

private:
    using Sums = QHash<QString, Decimal>;

    const Sums& sumsBy(const std::vector<int>& keyFields, int valueField);
    Decimal numberAt(int field, std::size_t row) const;

    ado::RecordsetPtr records_;
    std::uint64_t revision_ = 0;
    ReportLocale locale_;
    QHash<QString, Sums> known_; // by the fields' positions
};

} // namespace zkp
