#pragma once

#include "ado/provider.h"
#include "ado/records/row_index.h"

#include <QHash>

namespace zkp::ado {

/// The fields and records that a recordset and its clones share.
struct Records {
    explicit Records(Result result);

    /// -1 when there is none.
    int indexOf(QStringView name) const;
    /// Replaces the columns after a record was written.
    void setTable(store::Table changed);

    std::vector<FieldInfo> fields;
    store::Table table;
    RowIndex index;
    std::uint64_t version = 0;
    std::uint64_t rowsWalked = 0; ///< by filters, one by one

private:
    QHash<QString, int> byName_;
};

} // namespace zkp::ado
