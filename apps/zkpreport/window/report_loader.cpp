#include "window/report_loader.h"

#include "base/text.h"
#include "window/texts.h"
#include "window/totals_columns.h"

#include <QFontMetricsF>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace zkp::app {

namespace {

const QString kAscending = QStringLiteral(" ASC");
const QString kDescending = QStringLiteral(" DESC");
constexpr double kTwipsPerPixel = 15;
constexpr double kHeadingEnds = 11; // pixels around the text of a heading

ado::RecordsetPtr recordsOf(const ZkpGrid& grid) {
    return grid.RecordSource().value<ado::RecordsetPtr>();
}

/// A failed load of a detail report leaves no recordset that could tell its statement.
QString builtStatement(ZkpGrid& grid, const ado::RecordsetPtr& records) {
    if (records)
        return records->Source();
    return grid.SqlOnRunTime() ? grid.SQLRun().toString() : grid.NormalSQL();
}

/// The order of a detail report within its groups: the user's, else the first field that is no factor.
/// A totals report has none: its groups stand in their order.
QString orderOf(ZkpGrid& grid, const ColumnSort& sort) {
    QString first;
    for (int c = grid.Cols() - 1; c >= 0; --c) {
        if (!grid.ColForTot(c))
            first = grid.ColDataField(c);
        if (sort.field.isEmpty() || !sameName(grid.ColDataField(c), sort.field))
            continue;
        QString tables;
        const QString expression = grid.makefldSql(sort.field, tables, false);
        if (!isBlank(expression))
            return expression + (sort.isDescending ? kDescending : kAscending);
    }
    // Over a source that stands by itself the first four columns sort.
    return grid.SqlOnRunTime() ? first : QString();
}

/// Twips that a text needs in the heading row.
double headingWidth(const ZkpGrid& grid, const QString& text) {
    QFont font(grid.FixedFontName());
    font.setPointSizeF(grid.FixedFontSize());
    font.setBold(grid.FixedFontBold());
    return std::ceil(QFontMetricsF(font).horizontalAdvance(text) + kHeadingEnds) * kTwipsPerPixel;
}

template <class Load>
LoadRecord watchedLoad(ZkpGrid& grid, LoadWatch& watch, const QString& filter, Load load) {
    grid.setFilter(filter); // the builders write the translated one, with the rights, over it
    watch.begin(grid.Cn());
    load();
    watch.end();

    const ado::RecordsetPtr records = recordsOf(grid);
    const bool isOpen = records && records->State() == ado::adStateOpen;
    LoadRecord record;
    record.isLoaded = isOpen && !watch.sawBox();
    record.sent = watch.statementSent();
    record.statementMs = watch.statementMs();
    record.wholeMs = watch.wholeMs();
    record.built = builtStatement(grid, records);
    record.records = isOpen ? static_cast<int>(records->RecordCount()) : 0;
    if (record.isLoaded && grid.TotalForm())
        formatFigures(grid);
    return record;
}

} // namespace

void prepareReport(ZkpGrid& grid, const ado::ConnectionPtr& connection, const ReportEntry& report,
                   const std::vector<DictionaryField>& fields, const ReportShape& shape,
                   const QString& userId) {
    grid.setLocale(QLocale(QLocale::Greek, QLocale::Greece));
    grid.setclmns(report.dictionary);
    layColumns(grid, reportColumns(fields, shape));
    grid.setSqlOnRunTime(!isBlank(report.masterTable));
    grid.setTotalForm(shape.isTotals);
    grid.setLossRatio(shape.isTotals && hasLossRatio(fields));
    grid.Fill(connection, report.source, ZKP_Table_QUERY, userId);
    if (!shape.isTotals)
        grid.setOrderBy(orderOf(grid, shape.sort));
}

LoadRecord loadReport(ZkpGrid& grid, LoadWatch& watch, const QString& filter) {
    return watchedLoad(grid, watch, filter, [&] { grid.refresh(); });
}

LoadRecord sortReport(ZkpGrid& grid, LoadWatch& watch, const QString& filter, ColumnSort& sort) {
    const QString order = grid.OrderBy();
    const QString previous = order.endsWith(kAscending) ? order.chopped(kAscending.size()) : QString();
    const QString field = grid.ColDataField(grid.MSFlexGrid1().Col());
    const LoadRecord record = watchedLoad(grid, watch, filter, [&] { grid.SortByColumn(previous); });
    sort = {field, grid.OrderBy().endsWith(kDescending, Qt::CaseInsensitive)};
    return record;
}

void showSort(ZkpGrid& grid, const ColumnSort& sort) {
    for (int c = 0; c < grid.Cols(); ++c) {
        const bool isSorted =
            !sort.field.isEmpty() && !grid.ColForTot(c) && sameName(grid.ColDataField(c), sort.field);
        QString heading = grid.ColCaption(c);
        if (isSorted) {
            heading = texts::sortedHeading(heading, sort.isDescending);
            grid.setColWidth(c, std::max(grid.ColWidth(c), headingWidth(grid, heading)));
        }
        grid.setTextMatrix(0, c, heading);
    }
}

} // namespace zkp::app
