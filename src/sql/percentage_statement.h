#pragma once

#include "sql/field_expressions.h"
#include "sql/hierarchy.h"
#include "sql/joins.h"
#include "sql/master_table.h"

namespace zkp {

/// The statement that fetches, per group, the bases of the percentage columns. For hosts: no load
/// runs it. It does not translate `Filter`.
class PercentageStatement {
public:
    PercentageStatement(BuilderInputs& inputs, MasterTableLookup& master, FieldExpressions& fields,
                        Joins& joins, Hierarchy& hierarchy)
        : inputs_(inputs)
        , master_(master)
        , fields_(fields)
        , joins_(joins)
        , hierarchy_(hierarchy) {}

    /// Empty when `Groupby` is blank. A failure shows a box and gives what was built.
    QString RunTimePosSql();

private:
    QString build();
    QString countKey() const;

    BuilderInputs& inputs_;
    MasterTableLookup& master_;
    FieldExpressions& fields_;
    Joins& joins_;
    Hierarchy& hierarchy_;
};

} // namespace zkp
