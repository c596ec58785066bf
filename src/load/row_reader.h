#pragma once

#include "core/column_properties.h"
#include "core/events.h"
#include "core/report_state.h"
#include "load/cell_plan.h"
#include "load/load_hooks.h"
#include "platform/grid_surface.h"
#include "platform/host.h"

#include <optional>

namespace zkp {

/// `LoadRows`: reads the open recordset from the first record to the last, one grid row a record, and
/// drives the group rows record by record. The hot loop of the system: rows that nobody hears about
/// and nobody sums are bound in one go.
class RowReader {
public:
    RowReader(ReportState& state, ColumnProperties& properties, const ColumnList& columns,
              GridSurface& surface, Events& events, Host& host, const LoadHooks& hooks)
        : state_(state)
        , properties_(properties)
        , columns_(columns)
        , surface_(surface)
        , events_(events)
        , host_(host)
        , hooks_(hooks) {}

    /// Any failure but a missing field ends the loop with a box; the rows read so far stay, and
    /// `StopFillIng` is raised all the same.
    void LoadRows();

private:
    void readRecords(const ado::RecordsetPtr& records);
    void readRecord(const ado::RecordsetPtr& records, double& r);
    void sumRecord(ado::Recordset& records, double& r);
    bool canBindTheRest(double r) const;
    void bindTheRest(ado::Recordset& records, double r);
    void makePlan(ado::Recordset& records);
    void finishTotals(double r);
    void removeBlankRows();
    bool isBlankRow(int row) const;

    ReportState& state_;
    ColumnProperties& properties_;
    const ColumnList& columns_;
    GridSurface& surface_;
    Events& events_;
    Host& host_;
    const LoadHooks& hooks_;
    std::optional<CellPlan> plan_;
};

} // namespace zkp
