#include "surface/grid_surface.h"

#include "base/error.h"
#include "surface/grid_surface_data.h"

namespace zkp {

namespace {

constexpr int kMaxCols = 32767; // hosts count columns in 16 bits

} // namespace

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
        d->cells.forgetColumn(gone);
        d->styles.forgetColumn(gone);
    }
    d->resized();
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
    d->resized();
}

#define ZKP_READ(Type, Name, member)                                                                         \
    Type GridSurface::Name(int col) const {                                                                  \
        d->checkCol(col);                                                                                    \
        return d->columns.at(col).member;                                                                    \
    }
ZKP_GRIDSURFACE_OF_COLUMN(ZKP_READ)
#undef ZKP_READ

/// No view shows it.
void GridSurface::setColData(int col, const QVariant& tag) {
    d->checkCol(col);
    d->columns.at(col).tag = tag;
}

void GridSurface::setColDataType(int col, int type) {
    d->checkCol(col);
    if (d->columns.at(col).dataType == type)
        return;
    d->columns.at(col).dataType = type;
    d->news.changed();
}

void GridSurface::setColWidth(int col, int twips) {
    d->setColumn(col, &SurfaceColumn::width, twips < 0 ? SurfaceColumn::kDefaultWidth : twips);
}

void GridSurface::setColHidden(int col, bool hidden) {
    d->setColumn(col, &SurfaceColumn::hidden, hidden);
}

void GridSurface::setColAlignment(int col, int alignment) {
    d->setColumn(col, &SurfaceColumn::alignment, alignment);
}

void GridSurface::setFixedAlignment(int col, int alignment) {
    d->setColumn(col, &SurfaceColumn::fixedAlignment, alignment);
}

void GridSurface::setMergeCol(int col, bool merge) {
    d->setColumn(col, &SurfaceColumn::merge, merge);
}

void GridSurface::setColPosition(int col, int newPosition) {
    d->checkCol(col);
    d->checkCol(newPosition);
    d->columns.move(col, newPosition);
    d->news.changed();
}

} // namespace zkp
