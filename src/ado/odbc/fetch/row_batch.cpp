#include "ado/odbc/fetch/row_batch.h"

namespace zkp::ado::odbc {

void RowBatch::clear() {
    rows = 0;
    isLast = false;
    failure.reset();
    for (PackedColumn& column : columns_)
        column.clear();
}

void RowBatch::appendTo(std::vector<store::ColumnBuilder>& builders) {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_[i].appendTo(builders[i]);
}

} // namespace zkp::ado::odbc
