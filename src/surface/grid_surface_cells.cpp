#include "surface/grid_surface.h"

#include "base/error.h"
#include "surface/grid_surface_data.h"

namespace zkp {

QString GridSurface::TextMatrix(int row, int col) const {
    d->checkCell(row, col);
    return d->cells.text(row, col);
}

void GridSurface::setTextMatrix(int row, int col, const QString& text) {
    d->checkCell(row, col);
    d->cells.write(row, col, text);
    d->news.rowChanged(row);
}

std::optional<Decimal> GridSurface::shownNumber(int row, int col) const {
    d->checkCell(row, col);
    return d->cells.shownNumber(row, col);
}

bool GridSurface::IsRowBlank(int row) const {
    d->checkRow(row);
    return d->cells.isRowBlank(row);
}

namespace {

/// Row and column of a flat index.
std::pair<int, int> cellOf(int index, const GridSurface& surface) {
    const std::int64_t cells = std::int64_t{surface.Rows()} * surface.Cols();
    if (index < 0 || index >= cells)
        throw Error(kErrInvalidArrayIndex, QStringLiteral("There is no cell %1").arg(index));
    return {index / surface.Cols(), index % surface.Cols()};
}

} // namespace

QString GridSurface::TextArray(int index) const {
    const auto [row, col] = cellOf(index, *this);
    return TextMatrix(row, col);
}

void GridSurface::setTextArray(int index, const QString& text) {
    const auto [row, col] = cellOf(index, *this);
    setTextMatrix(row, col, text);
}

QString GridSurface::Text() const {
    return TextMatrix(d->cursor.row, d->cursor.col);
}

void GridSurface::setText(const QString& text) {
    const CellRange block = d->filledBlock();
    d->checkCell(block.bottom, block.right);
    if (text.isEmpty() && d->cells.blankColumns(block, d->fixedRows)) {
        d->news.changed();
        return;
    }
    for (int row = block.top; row <= block.bottom; ++row)
        for (int col = block.left; col <= block.right; ++col)
            d->cells.write(row, col, text);
    d->news.rowsChanged(block.top, block.bottom);
}

CellRange GridSurface::Data::filledBlock() const {
    if (fillStyle == 1)
        return cursor.selection();
    return {cursor.row, cursor.col, cursor.row, cursor.col};
}

void GridSurface::Clear() {
    d->cells.clear();
    d->news.changed();
}

// --- Records

GridSurface::LayoutId GridSurface::addLayout(std::vector<CellBinding> bindings) {
    return d->cells.addLayout(std::move(bindings));
}

void GridSurface::bindRow(int row, LayoutId layout, std::uint32_t tableRow, int rowData) {
    d->checkLayout(layout);
    d->checkRow(row);
    d->cells.bindRow(row, layout, tableRow, rowData);
    d->news.rowChanged(row);
}

void GridSurface::bindRows(int firstRow, int count, LayoutId layout,
                           const std::function<std::uint32_t(int)>& tableRow, int rowData) {
    d->checkLayout(layout);
    if (count <= 0)
        return;
    d->checkRow(firstRow);
    if (count > d->rows.size() - firstRow)
        Data::failRow(d->rows.size());
    d->cells.bindRows(firstRow, count, layout, tableRow, rowData);
    d->news.changed();
}

} // namespace zkp
