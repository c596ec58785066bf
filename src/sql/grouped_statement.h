#pragma once

#include "sql/dictionary.h"
#include "sql/hierarchy.h"

namespace zkp {

/// The totals statement over the source's own column names: one row a group, aggregates by the
/// dictionary's flags, percentages by correlated subqueries against the group one level up.
class GroupedStatement {
public:
    GroupedStatement(BuilderInputs& inputs, Dictionary& dictionary, Hierarchy& hierarchy)
        : inputs_(inputs)
        , dictionary_(dictionary)
        , hierarchy_(hierarchy) {}

    /// Empty when `Groupby` is blank. Raises `HasPercentColumns`, never lowers it. The subqueries carry
    /// no rights: a percentage's denominator covers all rows of the parent group. Failures reach the caller.
    QString GroupedSQL();

private:
    QString orderText() const;
    QString wantedColumns();
    QString correlation(const QString& alias) const;
    QString parentFilter(const QString& alias) const;
    QString countPercentage() const;
    void addAggregates(QString& select, const QString& wanted, ado::Recordset& row) const;

    BuilderInputs& inputs_;
    Dictionary& dictionary_;
    Hierarchy& hierarchy_;
};

/// Whether a dictionary row is one of the loss-ratio columns, by its exact name.
bool isLossRatioKey(const QString& key);

} // namespace zkp
