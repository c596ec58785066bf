#pragma once

#include "sql/builder_inputs.h"

#include <memory>
#include <optional>

namespace zkp {

/// Turns one dictionary key into a select item.
class FieldExpressions {
public:
    explicit FieldExpressions(BuilderInputs& inputs)
        : inputs_(inputs) {}

    /// The item of a key, with " AS [KEY]" when an alias is wanted; `Tables` gains the field's table.
    /// Empty for an unknown key (or with no dictionary); one blank when the source's columns can't be
    /// read. A failure shows a box and gives the item as far as it was built.
    QString makefldSql(const QString& FieldName, QString& Tables, bool WithAlias = true);

    /// Whether the source's columns can be read is asked again.
    void forgetSource() { readSource_.reset(); }

private:
    QString itemOf(ado::Recordset& row) const;
    bool canReadSourceColumns(ado::Recordset& row);
    static void addTable(const QVariant& table, QString& Tables);

    BuilderInputs& inputs_;

    struct Source {
        std::weak_ptr<ado::Connection> connection;
        QString text;
    };
    std::optional<Source> readSource_; ///< whose columns could be read since the last load began
};

} // namespace zkp
