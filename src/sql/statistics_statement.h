#pragma once

#include "sql/dictionary.h"
#include "sql/field_expressions.h"
#include "sql/filter_translation.h"
#include "sql/hierarchy.h"
#include "sql/joins.h"

namespace zkp {

/// The totals statement over physical names and joins. It has no percentage subqueries: a "POS_"
/// column comes back as its "SUM_" base and the control works the percentage out.
class StatisticsStatement {
public:
    StatisticsStatement(BuilderInputs& inputs, Dictionary& dictionary, FieldExpressions& fields, Joins& joins,
                        FilterTranslation& translation, Hierarchy& hierarchy)
        : inputs_(inputs)
        , dictionary_(dictionary)
        , fields_(fields)
        , joins_(joins)
        , translation_(translation)
        , hierarchy_(hierarchy) {}

    /// Overwrites `Filter`, `Groupby` (physical from here on), `OrderBy` and `SQLRun`. Without group
    /// factors only `Filter`, and there is no statement. A failure shows a box and gives what was
    /// built, usually nothing.
    QString RunTimeStatsSQL();

private:
    QString build(QString& tables);
    QString groupItems(QString& tables);
    QString wantedColumns();
    QString aggregates(const QString& wanted, QString& tables);
    QString groupList(QString& tables);

    BuilderInputs& inputs_;
    Dictionary& dictionary_;
    FieldExpressions& fields_;
    Joins& joins_;
    FilterTranslation& translation_;
    Hierarchy& hierarchy_;
};

} // namespace zkp
