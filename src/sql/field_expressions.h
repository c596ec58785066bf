#pragma once

#include "host/message_boxes.h"
#include "sql/builder_inputs.h"

namespace zkp {

/// Turns one dictionary key into a select item.
class FieldExpressions {
public:
    FieldExpressions(BuilderInputs& inputs, MessageBoxes& boxes)
        : inputs_(inputs)
        , boxes_(boxes) {}

    /// The item of a key, with " AS [KEY]" when an alias is wanted; `Tables` gains the field's table.
    /// Empty for an unknown key (or with no dictionary); one blank when the source's columns can't be
    /// read. A failure shows a box and gives the item as far as it was built.
    QString makefldSql(const QString& FieldName, QString& Tables, bool WithAlias = true);

private:
    QString itemOf(ado::Recordset& row) const;
    bool canReadSourceColumns(ado::Recordset& row) const;
    static void addTable(const QVariant& table, QString& Tables);

    BuilderInputs& inputs_;
    MessageBoxes& boxes_;
};

} // namespace zkp
