#pragma once

#include "sql/hierarchy.h"

namespace zkp {

/// The detail statement over the source's own column names: no dictionary, no joins, no translation.
class NormalStatement {
public:
    NormalStatement(BuilderInputs& inputs, Hierarchy& hierarchy)
        : inputs_(inputs)
        , hierarchy_(hierarchy) {}

    /// A blank `Filter` becomes " true ". A failure shows a box and gives what was built.
    QString NormalSQL();

private:
    QString selectList() const;
    QString orderList() const;
    bool isProductOfCode151() const;

    BuilderInputs& inputs_;
    Hierarchy& hierarchy_;
};

} // namespace zkp
