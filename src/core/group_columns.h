#pragma once

#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/group_factors.h"
#include "core/reporting.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "host/pointer.h"
#include "surface/grid_surface.h"

namespace zkp {

/// Puts the group factors' columns at the left of the surface, in their stated order.
class GroupColumns {
public:
    GroupColumns(const GroupingState& grouping, const Lifetime& lifetime, ColumnList& columns,
                 ColumnProperties& properties, GroupFactorFlags& flags, GridSurface& surface,
                 Pointer& pointer, const Reporting& reporting, ControlSetters& setters)
        : grouping_(grouping)
        , lifetime_(lifetime)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , surface_(surface)
        , pointer_(pointer)
        , reporting_(reporting)
        , setters_(setters) {}

    /// Makes an empty column at a position (from 0). A failure shows the error box.
    void InsertColumn(int whereisit);

    /// Rebuilds `Groupby` from the flags. With no flag at all a text that the host gave since the last
    /// rebuild stands instead, and goes on standing until its columns are made.
    void recallFactors();

    /// Makes or moves the factors' columns to the front and merges their equal neighbours.
    void MakeFixedForGroup();

private:
    void insertEmptyColumn(int position);
    void placeFactor(int position, const QString& factor);

    const GroupingState& grouping_;
    const Lifetime& lifetime_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupFactorFlags& flags_;
    GridSurface& surface_;
    Pointer& pointer_;
    Reporting reporting_;
    ControlSetters& setters_;
};

} // namespace zkp
