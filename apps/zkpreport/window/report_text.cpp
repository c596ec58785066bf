#include "window/report_text.h"

#include <algorithm>

namespace zkp::app {

namespace {

constexpr int kFirstRightAlignment = 6; // 6 to 8 are right, whatever their height

/// The width of a column in characters, over the rows that are shown.
qsizetype widthOf(const GridSurface& surface, int col, int rows) {
    qsizetype width = 0;
    for (int row = 0; row < rows; ++row)
        width = std::max(width, surface.TextMatrix(row, col).size());
    return width;
}

QString cellText(const GridSurface& surface, int row, int col, qsizetype width) {
    const QString text = surface.TextMatrix(row, col);
    const int alignment = surface.ColAlignment(col);
    const bool isRight = alignment >= kFirstRightAlignment && alignment < kFirstRightAlignment + 3;
    return isRight ? text.rightJustified(width) : text.leftJustified(width);
}

} // namespace

QString reportText(const GridSurface& surface, int count) {
    const int rows = std::min(surface.Rows(), surface.FixedRows() + count);
    std::vector<qsizetype> widths;
    for (int col = 0; col < surface.Cols(); ++col)
        widths.push_back(widthOf(surface, col, rows));

    QStringList lines;
    for (int row = 0; row < rows; ++row) {
        QStringList cells;
        for (int col = 0; col < surface.Cols(); ++col)
            cells.append(cellText(surface, row, col, widths[static_cast<std::size_t>(col)]));
        QString line = cells.join(QLatin1String("  "));
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        lines.append(line);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace zkp::app
