#include "surface/grid_surface.h"

#include "base/error.h"
#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr int kMaxCols = 32767; // hosts count columns in 16 bits

} // namespace

void GridSurface::Data::failCol(int col) {
    throw Error(kErrInvalidColumn, QStringLiteral("There is no column %1").arg(col));
}

int GridSurface::Cols() const {
    return d->columns.size();
}

void GridSurface::setCols(int cols) {
    if (cols < d->fixedCols || cols < 0 || cols > kMaxCols)
        throw Error(kErrInvalidColumn, QStringLiteral("Cols cannot become %1").arg(cols));
    while (d->columns.size() < cols)
        d->columns.append();
    while (d->columns.size() > cols) {
        const ColumnId gone = d->columns.removeLast();
        d->texts.dropColumn(gone);
        d->styles.dropColumn(gone);
        for (Data::Layout& layout : d->layouts)
            if (gone < layout.size())
                layout[gone] = {};
    }
    d->cursor.keepInside(d->shape());
    d->changed();
}

int GridSurface::FixedCols() const {
    return d->fixedCols;
}

void GridSurface::setFixedCols(int cols) {
    if (cols < 0 || cols > d->columns.size())
        throw Error(kErrInvalidColumn, QStringLiteral("FixedCols cannot become %1").arg(cols));
    const bool atLeft = d->cursor.leftCol == d->fixedCols;
    d->fixedCols = cols;
    if (atLeft)
        d->cursor.leftCol = cols;
    d->cursor.keepInside(d->shape());
    d->changed();
}

QVariant GridSurface::ColData(int col) const {
    d->checkCol(col);
    return d->columns.at(col).tag;
}

void GridSurface::setColData(int col, const QVariant& tag) {
    d->checkCol(col);
    d->columns.at(col).tag = tag;
}

int GridSurface::ColDataType(int col) const {
    d->checkCol(col);
    return d->columns.at(col).dataType;
}

void GridSurface::setColDataType(int col, int type) {
    d->checkCol(col);
    if (d->columns.at(col).dataType == type)
        return;
    d->columns.at(col).dataType = type;
    d->changed();
}

int GridSurface::ColWidth(int col) const {
    d->checkCol(col);
    return d->columns.at(col).width;
}

void GridSurface::setColWidth(int col, int twips) {
    d->checkCol(col);
    d->columns.at(col).width = twips < 0 ? SurfaceColumn::kDefaultWidth : twips;
    d->changed();
}

bool GridSurface::ColHidden(int col) const {
    d->checkCol(col);
    return d->columns.at(col).hidden;
}

void GridSurface::setColHidden(int col, bool hidden) {
    d->checkCol(col);
    d->columns.at(col).hidden = hidden;
    d->changed();
}

int GridSurface::ColAlignment(int col) const {
    d->checkCol(col);
    return d->columns.at(col).alignment;
}

void GridSurface::setColAlignment(int col, int alignment) {
    d->checkCol(col);
    d->columns.at(col).alignment = alignment;
    d->changed();
}

int GridSurface::FixedAlignment(int col) const {
    d->checkCol(col);
    return d->columns.at(col).fixedAlignment;
}

void GridSurface::setFixedAlignment(int col, int alignment) {
    d->checkCol(col);
    d->columns.at(col).fixedAlignment = alignment;
    d->changed();
}

void GridSurface::setColPosition(int col, int newPosition) {
    d->checkCol(col);
    d->checkCol(newPosition);
    d->columns.move(col, newPosition);
    d->changed();
}

} // namespace zkp
