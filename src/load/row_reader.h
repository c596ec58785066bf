#pragma once

#include "core/column_properties.h"
#include "core/events.h"
#include "core/reporting.h"
#include "core/selection_notices.h"
#include "core/state/data_settings.h"
#include "core/state/lifetime.h"
#include "core/state/load_state.h"
#include "core/state/source_state.h"
#include "host/message_boxes.h"
#include "host/pointer.h"
#include "load/cell_plan.h"
#include "load/group_rows.h"
#include "load/percentages.h"
#include "load/totals_rows.h"
#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

/// `LoadRows`: reads the open recordset from the first record to the last, one grid row a record, and
/// drives the group rows record by record. The hot loop of the system: where nobody hears about single
/// rows, whole runs of records are summed and bound at once.
class RowReader {
public:
    RowReader(const DataSettings& data, const SourceState& source, LoadState& load, const Lifetime& lifetime,
              SelectionNotices& notices, ColumnProperties& properties, const ColumnList& columns,
              GridSurface& surface, Events& events, MessageBoxes& boxes, Pointer& pointer,
              const Reporting& reporting, GroupRows& groups, TotalsRows& totals, Percentages& percentages)
        : data_(data)
        , source_(source)
        , load_(load)
        , lifetime_(lifetime)
        , notices_(notices)
        , properties_(properties)
        , columns_(columns)
        , surface_(surface)
        , events_(events)
        , boxes_(boxes)
        , pointer_(pointer)
        , reporting_(reporting)
        , groups_(groups)
        , totals_(totals)
        , percentages_(percentages) {}

    /// Any failure but a missing field ends the loop with a box; the rows read so far stay, and
    /// `StopFillIng` is raised all the same.
    void LoadRows();

private:
    void readRecords(const ado::RecordsetPtr& records);
    void readRecord(const ado::RecordsetPtr& records, double& r);
    void sumRecord(ado::Recordset& records, double& r);
    bool canBindTheRest(const ado::Recordset& records, int r) const;
    void bindTheRest(ado::Recordset& records, int& r);
    void sumTheRest(const ado::Recordset& records, int& r);
    void bindRun(const ado::Recordset& records, std::int64_t from, std::int64_t end, int& r);
    void makePlan(ado::Recordset& records);
    void finishTotals(int r);
    void removeBlankRows();

    const DataSettings& data_;
    const SourceState& source_;
    LoadState& load_;
    const Lifetime& lifetime_;
    SelectionNotices& notices_;
    ColumnProperties& properties_;
    const ColumnList& columns_;
    GridSurface& surface_;
    Events& events_;
    MessageBoxes& boxes_;
    Pointer& pointer_;
    Reporting reporting_;
    GroupRows& groups_;
    TotalsRows& totals_;
    Percentages& percentages_;
    std::optional<CellPlan> plan_; ///< while rows are read
    bool reading_ = false;         ///< a handler may call again; it is refused
    bool hasTotals_ = false;       ///< this load has rows for its totals
    bool unseen_ = false;          ///< and nobody sees a row before its end
};

} // namespace zkp
