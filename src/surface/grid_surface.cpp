#include "surface/grid_surface.h"

#include "base/text.h"
#include "surface/grid_surface_data.h"

#include <algorithm>
#include <utility>

namespace zkp {

GridSurface::GridSurface()
    : d(std::make_unique<Data>(*this)) {
    d->order.setBlanks(2);
    d->columns.append();
    d->columns.append();
}

GridSurface::~GridSurface() = default;

void GridSurface::setLocale(const ReportLocale& locale) {
    d->locale = locale;
    d->changed();
}

const ReportLocale& GridSurface::locale() const {
    return d->locale;
}

// --- Merging

int GridSurface::MergeCells() const {
    return d->mergeCells;
}

void GridSurface::setMergeCells(int mode) {
    d->mergeCells = mode;
    d->changed();
}

bool GridSurface::MergeCol(int col) const {
    d->checkCol(col);
    return d->columns.at(col).merge;
}

void GridSurface::setMergeCol(int col, bool merge) {
    d->checkCol(col);
    d->columns.at(col).merge = merge;
    d->changed();
}

bool GridSurface::MergeRow(int row) const {
    const RowId id = d->idOf(row);
    return id != kNoRow && d->mergedRows.count(id) != 0;
}

void GridSurface::setMergeRow(int row, bool merge) {
    d->checkRow(row);
    if (merge)
        d->mergedRows.insert(d->touch(row));
    else
        d->mergedRows.erase(d->order.at(row));
    d->changed();
}

CellRange GridSurface::mergedRange(int row, int col, int fromRow, int toRow) const {
    d->checkRow(row);
    d->checkCol(col);
    CellRange block{row, col, row, col};
    const bool down = d->columns.at(col).merge;
    if (d->mergeCells == 0 || (!down && !MergeRow(row)))
        return block;
    const QString text = d->cellText(row, col);
    if (isBlank(text))
        return block;
    const auto equal = [&](int otherRow, int otherCol) { return d->cellText(otherRow, otherCol) == text; };
    const bool fixed = row < d->fixedRows;
    const int first = std::max(fromRow, fixed ? 0 : d->fixedRows);
    const int last = std::min(toRow, (fixed ? d->fixedRows : d->order.size()) - 1);
    if (down) {
        while (block.top > first && equal(block.top - 1, col))
            --block.top;
        while (block.bottom < last && equal(block.bottom + 1, col))
            ++block.bottom;
        return block;
    }
    while (block.left > 0 && equal(row, block.left - 1))
        --block.left;
    while (block.right < d->columns.size() - 1 && equal(row, block.right + 1))
        ++block.right;
    return block;
}

// --- Plain settings

int GridSurface::FillStyle() const {
    return d->fillStyle;
}

void GridSurface::setFillStyle(int style) {
    d->fillStyle = style;
}

const GridSurface::Look& GridSurface::look() const {
    return d->look;
}

void GridSurface::setLook(const Look& look) {
    if (look == d->look)
        return;
    d->look = look;
    d->changed();
}

const GridSurface::Place& GridSurface::place() const {
    return d->place;
}

void GridSurface::setPlace(const Place& place) {
    if (place == d->place)
        return;
    d->place = place;
    d->changed();
}

// --- Drawing

bool GridSurface::Redraw() const {
    return d->redraw;
}

void GridSurface::setRedraw(bool on) {
    d->redraw = on;
    if (on && d->changePending)
        d->changed();
}

void GridSurface::Refresh() {
    d->changed();
}

void GridSurface::SetFocus() {
    views.tell([](const SurfaceView& view) { Data::raise(view.focusWanted); });
}

void GridSurface::Data::changed() {
    changePending = !redraw;
    if (redraw)
        surface.views.tell([](const SurfaceView& view) { raise(view.changed); });
}

void GridSurface::Data::tellRow(int row) {
    surface.views.tell([row](const SurfaceView& view) {
        if (view.rowChanged)
            view.rowChanged(row);
        else
            raise(view.changed);
    });
}

void GridSurface::Data::scrolled() {
    if (!redraw) {
        changePending = true;
        return;
    }
    surface.views.tell([](const SurfaceView& view) { raise(view.scrolled ? view.scrolled : view.changed); });
}

// --- For the tests

GridSurface::Costs GridSurface::takeCosts() {
    Costs costs = std::exchange(d->costs, {});
    costs.styleWrites = d->styles.takeWrites();
    costs.rowsCopied = d->order.takeMoved();
    return costs;
}

QString GridSurface::inconsistency() const {
    if (const QString wrong = d->order.inconsistency(); !wrong.isEmpty())
        return wrong;
    if (!d->columns.isConsistent())
        return QStringLiteral("a column stands nowhere or twice");
    if (!d->cursor.isInside(d->shape()))
        return QStringLiteral("the current cell, selection or scroll position lies outside");
    std::vector<bool> seen(d->rows.limit(), false);
    for (const RowRun& run : d->rows.freeRuns())
        for (int i = 0; i < run.count; ++i)
            seen.at(run.first + static_cast<RowId>(i)) = true;
    for (int row = 0; row < d->order.realSize(); ++row) {
        const RowId id = d->order.at(row);
        if (id >= d->rows.limit() || seen[id])
            return QStringLiteral("row %1 has an id that is free or stands twice").arg(row);
        seen[id] = true;
        if (d->rows.at(id).layout > d->layouts.size())
            return QStringLiteral("row %1 has no layout").arg(row);
    }
    if (d->rows.used() != d->order.realSize())
        return QStringLiteral("%1 ids for %2 rows").arg(d->rows.used()).arg(d->order.realSize());
    if (d->texts.anyRowFrom(d->rows.limit()))
        return QStringLiteral("a row that is gone has a text");
    return d->styles.inconsistency(d->rows.limit());
}

} // namespace zkp
