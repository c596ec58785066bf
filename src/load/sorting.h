#pragma once

#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/events.h"
#include "core/reporting.h"
#include "core/row_marking.h"
#include "core/selection_notices.h"
#include "core/state/data_settings.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/sorting_state.h"
#include "core/state/source_state.h"
#include "host/pointer.h"
#include "load/load_driver.h"
#include "load/row_comparison.h"
#include "sql/statement_parts.h"
#include "surface/grid_surface.h"

#include <functional>
#include <memory>

namespace zkp {

/// The three ways to sort a report: by the database, which loads it again (SortByColumn), and in place
/// (Sort, SortGrid). The surface's custom sort asks either the host or the control's own order.
class RowSorting {
public:
    RowSorting(const DataSettings& data, const SourceState& source, const GroupingState& grouping,
               SortingState& sorting, const Lifetime& lifetime, SelectionNotices& notices,
               StatementParts& statements, LoadDriver& driver, RowMarking& marking, ControlSetters& setters,
               ColumnProperties& properties, GridSurface& surface, Events& events, Pointer& pointer,
               const Reporting& reporting)
        : data_(data)
        , source_(source)
        , grouping_(grouping)
        , sorting_(sorting)
        , lifetime_(lifetime)
        , notices_(notices)
        , statements_(statements)
        , driver_(driver)
        , marking_(marking)
        , setters_(setters)
        , properties_(properties)
        , surface_(surface)
        , events_(events)
        , pointer_(pointer)
        , reporting_(reporting) {}

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
    /// The direction of the control's own order.
    void setDirection(bool descending);
    /// The same in that direction.
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

    const DataSettings& data_;
    const SourceState& source_;
    const GroupingState& grouping_;
    SortingState& sorting_;
    const Lifetime& lifetime_;
    SelectionNotices& notices_;
    StatementParts& statements_;
    LoadDriver& driver_;
    RowMarking& marking_;
    ControlSetters& setters_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    Events& events_;
    Pointer& pointer_;
    Reporting reporting_;
};

} // namespace zkp
