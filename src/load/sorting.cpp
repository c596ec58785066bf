#include "load/sorting.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "base/value.h"
#include "core/enums.h"
#include "core/keep_alive.h"
#include "core/paint_scopes.h"

#include <algorithm>

namespace zkp {

namespace {

/// Fields that a totals report works out itself; the statement knows them by these names.
bool isAggregate(const QString& field) {
    const QString prefix = upper(field.left(4));
    return prefix == u"POS_" || prefix == u"SUM_" || prefix == u"AVG_" || prefix == u"MIN_" ||
           prefix == u"MAX_";
}

} // namespace

// --- In place

void RowSorting::SortGrid(int mv) {
    reporting_.passOver([this] { marking_.redrawMarkedRow(); });
    reporting_.passOver([&] { surface_.setSort(mv); });
}

void RowSorting::Sort(int mv) {
    const bool redraw = surface_.Redraw();
    const ScopeGuard restore([&] { surface_.setRedraw(redraw); });
    surface_.setRedraw(false); // a view hears once of all that happens here
    reporting_.passOver([this] { marking_.redrawMarkedRow(); });
    sorting_.sortOut = true; // for good, as wanted
    {
        const SelectionQuiet quiet(notices_); // the mark goes on once the rows stand
        sortAllButLast(mv);
    }
    surface_.Refresh();
    reporting_.passOver([this] { marking_.Selectrow(); });
    reporting_.passOver([this] { numberRows(); });
}

void RowSorting::sortAllButLast(int mv) {
    reporting_.passOver([this] { setters_.setRow(1); });
    reporting_.passOver([this] {
        if (sorting_.SortColumn)
            surface_.setCol(*sorting_.SortColumn);
    });
    reporting_.passOver([this] { setters_.setRow(1); });
    reporting_.passOver([this] { surface_.setRowSel(surface_.Rows() - 2); });
    // With one row selected the surface would take the whole body, the last row with it.
    if (surface_.RowSel() != surface_.Row())
        reporting_.passOver([&] { surface_.setSort(mv); });
}

/// A row without any text keeps its old number.
void RowSorting::numberRows() {
    int found = surface_.Cols() - 1;
    while (found >= 0 && !properties_.Colcnt(found))
        --found;
    if (found < 0)
        return;
    for (int row = 1; row <= surface_.Rows() - 2; ++row)
        if (showsText(row, found))
            surface_.setTextMatrix(row, found, QString::number(row));
}

bool RowSorting::showsText(int row, int butColumn) const {
    for (int c = 0; c < surface_.Cols(); ++c)
        if (c != butColumn && !surface_.TextMatrix(row, c).isEmpty())
            return true;
    return false;
}

void RowSorting::setDirection(bool descending) {
    sorting_.SortDescending = descending ? -1 : 0;
    sorting_.SortAscending = descending ? 0 : -1;
}

// --- By the database

void RowSorting::SortByColumn(const QString& previous) {
    sortAndTell([&](const QString& expr) { return expr == previous; });
}

void RowSorting::SortByDirection() {
    sortAndTell([descending = sorting_.SortDescending == -1](const QString&) { return descending; });
}

void RowSorting::sortAndTell(const IsDescending& isDescending) {
    const ScopeGuard restore([this] { pointer_.setPointer(kPointerDefault); });
    reporting_.run([&] { sortAndLoad(isDescending); });
}

void RowSorting::sortAndLoad(const IsDescending& isDescending) {
    const int column = surface_.Col();
    sorting_.SortColumn = column;
    Q_EMIT events_.StartSorting();
    lifetime_.throwIfDestroyed();
    pointer_.setPointer(kPointerHourglass);
    marking_.redrawMarkedRow();
    if (!data_.TotalForm && data_.SqlOnRunTime)
        orderDetailReport(column, isDescending);
    else
        orderOtherReport(column, isDescending);
    driver_.FillGrid();
    lifetime_.throwIfDestroyed();
    setters_.setRow(1);
    lifetime_.throwIfDestroyed();
    pointer_.setPointer(kPointerDefault);
    Q_EMIT events_.StopSorting();
    lifetime_.throwIfDestroyed();
}

void RowSorting::orderDetailReport(int column, const IsDescending& isDescending) {
    const QString expr = expressionOf(properties_.ColDataField(column));
    if (!isBlank(expr))
        statements_.inputs.setOrderBy(
            expr + (isDescending(expr) ? QStringLiteral(" DESC") : QStringLiteral(" ASC")));
}

/// The small letters of " desc" belong to this road, as wanted. An aggregate that no statement can be
/// sorted by leaves the report as it was, as wanted; only a field of no text at all is sorted here; and the
/// load undoes a custom sort, unless `RefreshOnChange` holds the rows.
void RowSorting::orderOtherReport(int column, const IsDescending& isDescending) {
    const QString field = properties_.ColDataField(column);
    sorting_.OrderByAlias = field;
    sorting_.OrderByPhysical = field.size() >= 6 ? mid(field, 5) : QString();
    const QString expr = data_.SqlOnRunTime && isAggregate(field) ? field : expressionOf(field);
    if (field.isEmpty())
        surface_.setSort(kSortCustom);
    else if (isBlank(expr))
        statements_.inputs.setOrderBy({});
    else
        statements_.inputs.setOrderBy(
            expr + (isDescending(expr) ? QStringLiteral(" desc") : QStringLiteral(" ASC")));
    lifetime_.throwIfDestroyed();
    if (source_.SourceType == ZKP_RecordSet) {
        if (!source_.ReportRecordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"),
                        QStringLiteral("RecordSource"));
        source_.ReportRecordset->setSort(data_.OrderBy);
    }
}

QString RowSorting::expressionOf(const QString& field) {
    QString tables;
    return statements_.fields.makefldSql(field, tables, false);
}

// --- The custom sort

void RowSorting::connect(const std::weak_ptr<void>& owner) {
    surface_.notifications.compare = [this, owner](int firstRow, int lastRow) -> RowCompare {
        const std::shared_ptr<void> alive = owner.lock();
        if (!alive || lifetime_.destroyed)
            return {};
        sorting_.SortColumn = surface_.Col();
        if (!sorting_.sortOut)
            return ownOrder(firstRow, lastRow);
        return [this, owner](int row1, int row2) {
            const std::shared_ptr<void> stillAlive = owner.lock();
            if (!stillAlive || lifetime_.destroyed)
                return 0; // a handler has destroyed the control; the surface sorts on to its end
            const ScopeGuard release([&] {
                if (lifetime_.destroyed)
                    releaseLater(stillAlive);
            });
            return askHost(row1, row2);
        };
    };
}

/// An answer that is no number counts as 0.
int RowSorting::askHost(int row1, int row2) {
    CompareArgs args{row1, row2, 0};
    Q_EMIT events_.Compare(args);
    const double answer = ToDouble(args.Cmp, surface_.locale()).toDouble();
    return answer > 0 ? 1 : answer < 0 ? -1 : 0;
}

/// Keys and values are worked out once for each row, not for each comparison.
RowCompare RowSorting::ownOrder(int firstRow, int lastRow) const {
    return [rows = sortRows(firstRow, lastRow), firstRow,
            descending = sorting_.SortDescending != 0](int row1, int row2) {
        return compareRows(rows[static_cast<std::size_t>(row1 - firstRow)],
                           rows[static_cast<std::size_t>(row2 - firstRow)], descending);
    };
}

std::vector<SortRow> RowSorting::sortRows(int firstRow, int lastRow) const {
    const int count = lastRow - firstRow + 1;
    const int factors =
        std::clamp(grouping_.GroupFactorCount - (data_.TotalForm ? 1 : 0), 0, surface_.Cols());
    const DistinctTexts keys = distinctTexts(count, [&](int i) {
        QStringList cells;
        for (int c = 0; c < factors; ++c)
            cells << surface_.TextMatrix(firstRow + i, c);
        return groupKey(cells);
    });
    const std::vector<int> places = groupPlaces(keys.texts, surface_.locale());

    const int column = *sorting_.SortColumn;
    const QString field = properties_.ColDataField(column);
    const DistinctTexts texts =
        distinctTexts(count, [&](int i) { return surface_.TextMatrix(firstRow + i, column); });
    const SortKeys values = sortValues(sortValueOf(field, fieldType(field)), texts, surface_.locale());

    std::vector<SortRow> rows;
    rows.reserve(values.size());
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        rows.push_back(
            {surface_.RowData(firstRow + i), places[static_cast<std::size_t>(keys.ofRow[at])], values[at]});
    }
    return rows;
}

std::optional<int> RowSorting::fieldType(const QString& field) const {
    const ado::RecordsetPtr records = source_.ReportRecordset;
    if (!records || records->State() == ado::adStateClosed)
        return std::nullopt;
    const int index = records->Fields().indexOf(field);
    return index < 0 ? std::nullopt : std::optional(records->Fields().Item(index).Type());
}

} // namespace zkp
