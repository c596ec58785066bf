#include "surface/grid_surface.h"

#include "base/error.h"
#include "surface/grid_surface_data.h"

namespace zkp {

SurfaceRows::Forget GridSurface::Data::forgetRows() {
    return [this](const RowRun& run) {
        cells.forgetRows(run);
        styles.forgetRows(run);
    };
}

int GridSurface::Rows() const {
    return d->rows.size();
}

void GridSurface::setRows(int rows) {
    if (rows < 0 || rows < d->fixedRows)
        throw Error(kErrInvalidRow, QStringLiteral("Rows cannot become %1").arg(rows));
    d->rows.setCount(rows, d->fixedRows, d->forgetRows());
    if (rows == d->fixedRows)
        d->cells.dropUnusedLayouts(rows);
    d->resized();
}

int GridSurface::FixedRows() const {
    return d->fixedRows;
}

void GridSurface::setFixedRows(int rows) {
    if (rows < 0 || rows > d->rows.size())
        throw Error(kErrInvalidRow, QStringLiteral("FixedRows cannot become %1").arg(rows));
    const bool atTop = d->cursor.topRow == d->fixedRows;
    d->fixedRows = rows;
    if (atTop)
        d->cursor.topRow = rows;
    d->resized();
}

void GridSurface::AddItem(const QString& text, int index) {
    const int at = index == -1 ? d->rows.size() : index;
    if (at < d->fixedRows || at > d->rows.size())
        throw Error(kErrInvalidRow, QStringLiteral("No row can be added before row %1").arg(at));
    d->rows.insert(at);
    if (!text.isEmpty()) {
        int col = 0;
        for (const QStringView part : QStringView(text).split(u'\t')) {
            if (col == d->columns.size())
                break;
            d->cells.write(at, col++, part.toString());
        }
    }
    d->news.changed();
}

void GridSurface::RemoveItem(int index) {
    if (index < d->fixedRows || index >= d->rows.size())
        throw Error(kErrInvalidRow, QStringLiteral("Row %1 cannot be removed").arg(index));
    d->rows.remove(index, d->forgetRows());
    d->resized();
}

int GridSurface::RowData(int row) const {
    d->checkRow(row);
    return d->rows.recordOf(row).tag;
}

void GridSurface::setRowData(int row, int tag) {
    d->checkRow(row);
    if (d->rows.recordOf(row).tag == tag)
        return;
    d->rows.write(d->rows.touch(row)).tag = tag;
    d->rows.countTouched();
}

int GridSurface::RowHeight(int row) const {
    d->checkRow(row);
    return d->rows.height(row);
}

void GridSurface::setRowHeight(int row, int twips) {
    if (row != -1)
        d->checkRow(row);
    d->rows.setHeight(row, twips);
    d->news.changed();
}

bool GridSurface::RowHidden(int row) const {
    return RowHeight(row) == 0;
}

} // namespace zkp
