#pragma once

#include "host/message_boxes.h"
#include "sql/hierarchy.h"

namespace zkp {

/// The detail statement over the source's own column names: no dictionary, no joins, no translation.
class NormalStatement {
public:
    NormalStatement(BuilderInputs& inputs, Hierarchy& hierarchy, MessageBoxes& boxes)
        : inputs_(inputs)
        , hierarchy_(hierarchy)
        , boxes_(boxes) {}

    /// A blank `Filter` becomes " true ". A failure shows a box and gives what was built.
    QString NormalSQL();

private:
    QString selectList() const;
    QString orderList() const;
    bool isProductOfCode151() const;

    BuilderInputs& inputs_;
    Hierarchy& hierarchy_;
    MessageBoxes& boxes_;
};

} // namespace zkp
