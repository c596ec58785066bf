#pragma once

#include "zkp_grid.h"

#include <QVariant>

#include <vector>

namespace zkp {

/// One column: its record, and what the surface has of it.
struct ColumnSnapshot {
    Column record;
    int width = 0; ///< twips
    bool isHidden = false;
    int alignment = 0;
    int fixedAlignment = 0;
    bool merges = false;
};

/// Everything of a report that its user reshapes: columns, colours, fonts, titles, order. Values as the
/// control has them, by the property list and the `Columns`; a saved bag would bring some back changed.
/// What a load or a host writes (filter, current cell, sizes) is not part of it.
struct ReshapeSnapshot {
    std::vector<QVariant> properties; ///< in the order of the property list
    std::vector<ColumnSnapshot> columns;
    bool refreshesOnChange = true;

    static ReshapeSnapshot of(ZkpGrid& grid);
    /// Writes back what differs. Reads no data and draws nothing.
    void restore(ZkpGrid& grid) const;

    /// Whether they are one shape. Not looked at: whether a change reads data, what a column measures.
    bool isSameShape(const ReshapeSnapshot& other) const;
    /// Whether they show the same data: columns, fields, factors and the order of the rows.
    bool hasSameRows(const ReshapeSnapshot& other) const;
    /// The one column in whose caption alone they differ; -1 when there is none such.
    int onlyCaptionOf(const ReshapeSnapshot& other) const;
};

} // namespace zkp
