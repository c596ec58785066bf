#include "surface/grid_surface.h"

#include "base/error.h"
#include "base/text.h"
#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

void GridSurface::Data::failRow(int row) {
    throw Error(kErrInvalidRow, QStringLiteral("There is no row %1").arg(row));
}

void GridSurface::Data::failCol(int col) {
    throw Error(kErrInvalidColumn, QStringLiteral("There is no column %1").arg(col));
}

void GridSurface::Data::failLayout(LayoutId layout) {
    throw Error(kErrInvalidCall, QStringLiteral("There is no layout %1").arg(layout));
}

void GridSurface::Data::resized() {
    cursor.keepInside(shape());
    news.changed();
}

GridSurface::GridSurface()
    : d(std::make_unique<Data>(*this)) {
    d->rows.setCount(2, d->fixedRows, {});
    d->columns.append();
    d->columns.append();
}

GridSurface::~GridSurface() = default;

void GridSurface::setLocale(const ReportLocale& locale) {
    d->cells.locale = locale;
    d->news.changed();
}

const ReportLocale& GridSurface::locale() const {
    return d->cells.locale;
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
    d->news.changed();
}

const GridSurface::Place& GridSurface::place() const {
    return d->place;
}

void GridSurface::setPlace(const Place& place) {
    if (place == d->place)
        return;
    d->place = place;
    d->news.changed();
}

// --- Drawing

bool GridSurface::Redraw() const {
    return d->news.Redraw();
}

void GridSurface::setRedraw(bool on) {
    d->news.setRedraw(on);
}

void GridSurface::Refresh() {
    d->news.changed();
}

void GridSurface::SetFocus() {
    views.tell([](const SurfaceView& view) {
        if (view.focusWanted)
            view.focusWanted();
    });
}

int GridSurface::roomInViews() const {
    int room = 0;
    views.tell([&](const SurfaceView& view) {
        if (view.room)
            room = std::max(room, view.room());
    });
    return room;
}

// --- For the tests

GridSurface::Costs GridSurface::takeCosts() {
    return {.rowsTouched = d->rows.takeTouched(),
            .styleWrites = d->styles.takeWrites(),
            .textsMade = d->cells.takeTextsMade(),
            .rowsCopied = d->rows.takeCopied()};
}

QString GridSurface::inconsistency() const {
    if (!d->columns.isConsistent())
        return QStringLiteral("a column stands nowhere or twice");
    if (!d->cursor.isInside(d->shape()))
        return QStringLiteral("the current cell, selection or scroll position lies outside");
    if (const QString wrong = d->cells.inconsistency(); !wrong.isEmpty())
        return wrong;
    return d->styles.inconsistency();
}

} // namespace zkp
