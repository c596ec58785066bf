#pragma once

#include "ado/provider.h"
#include "store/column_builder.h"

namespace zkp::ado {

/// Makes a small result from values.
class ResultBuilder {
public:
    explicit ResultBuilder(std::vector<FieldInfo> fields);
    void addRow(const QVariantList& values);
    Result finish();

private:
    Result result_;
    std::vector<store::ColumnBuilder> builders_;
};

} // namespace zkp::ado
