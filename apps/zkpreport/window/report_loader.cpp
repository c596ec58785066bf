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
LoadRecord loadWith(ZkpGrid& grid, const QString& filter, Load load) {
    grid.setFilter(filter);        // the builders write the translated one, with the rights, over it
    grid.setRefreshOnChange(true); // a change of the user's columns may have left it to us
    LoadRecord record{filter, {}};
    const Listening listening = grid.listenToLoads(
        {.begins = {}, .ended = [&](const LoadOutcome& outcome) { record.outcome = outcome; }});
    load();
    if (record.isLoaded() && grid.TotalForm())
        formatFigures(grid);
    return record;
}

} // namespace

void prepareReport(ZkpGrid& grid, const ado::ConnectionPtr& connection, const ReportEntry& report,
                   const QString& userId) {
    grid.setLocale(QLocale(QLocale::Greek, QLocale::Greece));
    grid.setclmns(report.dictionary);
    grid.setSqlOnRunTime(!isBlank(report.masterTable));
    grid.Fill(connection, report.source, ZKP_Table_QUERY, userId);
}

void layReport(ZkpGrid& grid, const std::vector<DictionaryField>& fields,
               const std::vector<ReportColumn>& columns, const ReportShape& shape) {
    grid.setGroupby({}); // the columns tell the factors
    layColumns(grid, columns);
    grid.setTotalForm(shape.isTotals);
    grid.setLossRatio(shape.isTotals && hasLossRatio(fields));
    grid.setOrderBy(shape.isTotals ? QString() : orderOf(grid, shape.sort));
}

ColumnSort sortOf(ZkpGrid& grid) {
    const QString order = grid.OrderBy();
    if (grid.TotalForm() || !(order.endsWith(kAscending) || order.endsWith(kDescending)))
        return {};
    for (int c = 0; c < grid.Cols(); ++c) {
        QString tables;
        const QString expression =
            grid.ColForTot(c) ? QString() : grid.makefldSql(grid.ColDataField(c), tables, false);
        if (!isBlank(expression) && (order == expression + kAscending || order == expression + kDescending))
            return {grid.ColDataField(c), order.endsWith(kDescending)};
    }
    return {};
}

LoadRecord loadReport(ZkpGrid& grid, const QString& filter) {
    return loadWith(grid, filter, [&] { grid.refresh(); });
}

LoadRecord sortReport(ZkpGrid& grid, const QString& filter, ColumnSort& sort) {
    const QString order = grid.OrderBy();
    const QString previous = order.endsWith(kAscending) ? order.chopped(kAscending.size()) : QString();
    const QString field = grid.ColDataField(grid.MSFlexGrid1().Col());
    const LoadRecord record = loadWith(grid, filter, [&] { grid.SortByColumn(previous); });
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
