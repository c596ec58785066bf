#pragma once

#include "sql/builder_inputs.h"

namespace zkp {

/// The FROM clause: left joins from the master table to every table that fields and filter touch.
class Joins {
public:
    explicit Joins(BuilderInputs& inputs)
        : inputs_(inputs) {}

    /// The text behind " FROM " for a list of tables (", NAME , NAME "); `Tables` gains `FilterTables`.
    /// Each table but the master is joined, one that is listed twice twice. A failure shows a box.
    QString MakeFromAndJoins(QString& Tables);
    /// The condition that joins a table to the master; empty, with a box, when the dictionary has no
    /// row of that table.
    QString FindJoinON(const QString& Table);

private:
    BuilderInputs& inputs_;
};

} // namespace zkp
