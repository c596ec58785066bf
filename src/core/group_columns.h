#pragma once

#include "core/column_properties.h"
#include "core/group_factors.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "host/pointer.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// Puts the group factors' columns at the left of the surface, in their stated order.
class GroupColumns {
public:
    /// `setCols` is the control's `Cols` setter.
    GroupColumns(ReportState& state, ColumnList& columns, ColumnProperties& properties,
                 GroupFactorFlags& flags, GridSurface& surface, Pointer& pointer, const Reporting& reporting,
                 std::function<void(int)> setCols)
        : state_(state)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , surface_(surface)
        , pointer_(pointer)
        , reporting_(reporting)
        , setCols_(std::move(setCols)) {}

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

    ReportState& state_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupFactorFlags& flags_;
    GridSurface& surface_;
    Pointer& pointer_;
    Reporting reporting_;
    std::function<void(int)> setCols_;
};

} // namespace zkp
