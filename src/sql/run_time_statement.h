#pragma once

#include "sql/field_expressions.h"
#include "sql/filter_translation.h"
#include "sql/hierarchy.h"
#include "sql/joins.h"

namespace zkp {

/// The detail statement of a report with a master table, composed from the dictionary, and the
/// statement that counts its rows. Both overwrite `Filter`.
class RunTimeStatement {
public:
    RunTimeStatement(BuilderInputs& inputs, FieldExpressions& fields, Joins& joins,
                     FilterTranslation& translation, Hierarchy& hierarchy)
        : inputs_(inputs)
        , fields_(fields)
        , joins_(joins)
        , translation_(translation)
        , hierarchy_(hierarchy) {}

    /// Also kept in `SQLRun`. A failure shows a box and gives what was built, usually nothing.
    QString RunTimeSQL();
    /// A failure shows a box and gives an empty text.
    QString RunTimeSQLCounter();

private:
    QString tablesAtStart() const;
    QString selectList(QString& Tables);
    void addField(QString& list, const QString& key, QString& Tables);
    QString orderList(QString& Tables);

    BuilderInputs& inputs_;
    FieldExpressions& fields_;
    Joins& joins_;
    FilterTranslation& translation_;
    Hierarchy& hierarchy_;
};

} // namespace zkp
