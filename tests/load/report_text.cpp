#include "report_text.h"

#include "core/enums.h"

#include <algorithm>

namespace zkp::reportcases {

using namespace Qt::StringLiterals;

namespace {

QString kindOf(const GridSurface& surface, int row) {
    if (row < surface.FixedRows())
        return QStringLiteral("heading");
    switch (surface.RowData(row)) {
    case ZKPSingleRow:
        return QStringLiteral("record");
    case ZKPSubTotals:
        return QStringLiteral("subtotal");
    case ZKPTotals:
        return QStringLiteral("totals");
    case 0:
        return QStringLiteral("blank");
    default:
        return QString::number(surface.RowData(row));
    }
}

TextRow cellsOfRow(const GridSurface& surface, int row) {
    TextRow cells;
    for (int c = 0; c < surface.Cols(); ++c)
        cells << withVisibleBlanks(surface.TextMatrix(row, c));
    return cells;
}

/// The first cell that is not the same in both; the shorter row ends too early.
QString differenceInRow(const TextRow& wanted, const TextRow& actual) {
    for (qsizetype c = 0; c < std::max(wanted.size(), actual.size()); ++c) {
        const bool both = c < wanted.size() && c < actual.size();
        if (both && wanted[c] == actual[c])
            continue;
        const auto shown = [c](const TextRow& row) {
            return c < row.size() ? u'"' + row[c] + u'"' : QStringLiteral("no cell");
        };
        return QStringLiteral("cell %1: wanted %2, stands %3").arg(c).arg(shown(wanted), shown(actual));
    }
    return {};
}

} // namespace

TextRows rowsWithKinds(const GridSurface& surface, int firstRow) {
    TextRows rows;
    for (int r = firstRow; r < surface.Rows(); ++r)
        rows.push_back(TextRow{kindOf(surface, r)} + cellsOfRow(surface, r));
    return rows;
}

TextRows cellsOfAllRows(const GridSurface& surface) {
    TextRows rows;
    for (int r = 0; r < surface.Rows(); ++r)
        rows.push_back(cellsOfRow(surface, r));
    return rows;
}

QString aligned(const TextRows& rows, int marked) {
    std::vector<qsizetype> widths;
    for (const TextRow& row : rows)
        for (std::size_t c = 0; c < static_cast<std::size_t>(row.size()); ++c) {
            widths.resize(std::max(widths.size(), c + 1));
            widths[c] = std::max(widths[c], row[static_cast<qsizetype>(c)].size());
        }
    QString text;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        QStringList cells;
        for (qsizetype c = 0; c < rows[r].size(); ++c)
            cells << rows[r][c].leftJustified(widths[static_cast<std::size_t>(c)]);
        text += (static_cast<int>(r) == marked ? u"> "_s : u"  "_s) + cells.join(u" | "_s) + u'\n';
    }
    return text;
}

QString firstDifference(const TextRows& wanted, const TextRows& actual) {
    std::size_t r = 0;
    while (r < wanted.size() && r < actual.size() && wanted[r] == actual[r])
        ++r;
    QString what;
    if (r < wanted.size() && r < actual.size())
        what = QStringLiteral("row %1, ").arg(r + 1) + differenceInRow(wanted[r], actual[r]);
    else if (r < wanted.size())
        what = QStringLiteral("row %1 is missing: ").arg(r + 1) + wanted[r].join(u" | "_s);
    else if (r < actual.size())
        what = QStringLiteral("row %1 is one too many").arg(r + 1);
    else
        return {};
    return what + QStringLiteral("\nwhat stands there:\n") + aligned(actual, static_cast<int>(r));
}

} // namespace zkp::reportcases
