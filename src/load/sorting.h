#pragma once

#include "core/column_properties.h"
#include "core/events.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "host/pointer.h"
#include "load/load_hooks.h"
#include "load/row_comparison.h"
#include "sql/field_expressions.h"
#include "surface/grid_surface.h"

#include <functional>
#include <memory>

namespace zkp {

/// The three ways to sort a report: by the database, which loads it again (SortByColumn), and in place
/// (Sort, SortGrid). The surface's custom sort asks either the host or the control's own order.
class RowSorting {
public:
    /// What the sorts ask of the control: its `Row` setter and a load.
    struct Control {
        std::function<void(int)> setRow;
        std::function<void()> FillGrid;
    };

    RowSorting(BuilderInputs& inputs, FieldExpressions& fields, ColumnProperties& properties,
               GridSurface& surface, Events& events, Pointer& pointer, const Reporting& reporting,
               const LoadHooks& hooks, Control control)
        : inputs_(inputs)
        , state_(inputs.state)
        , fields_(fields)
        , properties_(properties)
        , surface_(surface)
        , events_(events)
        , pointer_(pointer)
        , reporting_(reporting)
        , hooks_(hooks)
        , control_(std::move(control)) {}

    /// Answers the surface's custom sort. `owner` keeps everything here alive while a handler runs.
    void connect(const std::weak_ptr<void>& owner);

    /// Sorts the surface in place, all rows but the last, by the column of the sort before, and numbers
    /// the rows anew. From now on the host's `Compare` decides custom sorts. Errors are passed over.
    void Sort(int mv);
    /// Sorts the surface in place as it is selected. Errors are passed over.
    void SortGrid(int mv);
    /// Sorts by the current column and loads again, descending when `previous` is the column's own
    /// expression. A failure shows the error box.
    void SortByColumn(const QString& previous);
    /// The same in the direction of `SortDescending`: descending when it is -1.
    void SortByDirection();

private:
    /// Whether the order by an expression is descending.
    using IsDescending = std::function<bool(const QString& expr)>;

    void sortAllButLast(int mv);
    void numberRows();
    bool showsText(int row, int butColumn) const;

    void sortAndTell(const IsDescending& isDescending);
    void sortAndLoad(const IsDescending& isDescending);
    void orderDetailReport(int column, const IsDescending& isDescending);
    void orderOtherReport(int column, const IsDescending& isDescending);
    QString expressionOf(const QString& field);

    int askHost(int row1, int row2);
    RowCompare ownOrder(int firstRow, int lastRow) const;
    std::vector<SortRow> sortRows(int firstRow, int lastRow) const;
    std::optional<int> fieldType(const QString& field) const;

    BuilderInputs& inputs_;
    ReportState& state_;
    FieldExpressions& fields_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    Events& events_;
    Pointer& pointer_;
    Reporting reporting_;
    const LoadHooks& hooks_;
    Control control_;
};

} // namespace zkp
