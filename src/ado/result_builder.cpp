#include "ado/result_builder.h"

namespace zkp::ado {

ResultBuilder::ResultBuilder(std::vector<FieldInfo> fields)
    : builders_(fields.size()) {
    result_.fields = std::move(fields);
}

void ResultBuilder::addRow(const QVariantList& values) {
    for (std::size_t i = 0; i < builders_.size(); ++i)
        builders_[i].append(values.value(static_cast<qsizetype>(i)));
    ++result_.table.rows;
}

Result ResultBuilder::finish() {
    for (store::ColumnBuilder& builder : builders_)
        result_.table.columns.push_back(builder.finish());
    return std::move(result_);
}

} // namespace zkp::ado
