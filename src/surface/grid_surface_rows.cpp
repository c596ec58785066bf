#include "surface/grid_surface.h"

#include "base/error.h"
#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

void GridSurface::Data::failRow(int row) {
    throw Error(kErrInvalidRow, QStringLiteral("There is no row %1").arg(row));
}

RowId GridSurface::Data::touch(int row) {
    checkRow(row);
    const int missing = row + 1 - order.realSize();
    if (missing == 1) { // what a load does with every record
        const RowId id = rows.allocateOne();
        order.appendOne(id);
        return id;
    }
    if (missing > 1)
        order.append(rows.allocate(missing));
    return order.at(row);
}

const RowRecord& GridSurface::Data::recordOf(int row) const {
    static const RowRecord blank;
    const RowId id = idOf(row);
    return id == kNoRow ? blank : rows.at(id);
}

// --- Size

int GridSurface::Rows() const {
    return d->order.size();
}

void GridSurface::setRows(int rows) {
    if (rows < 0 || rows < d->fixedRows)
        throw Error(kErrInvalidRow, QStringLiteral("Rows cannot become %1").arg(rows));
    d->setRowCount(rows);
    d->cursor.keepInside(d->shape());
    d->changed();
}

void GridSurface::Data::setRowCount(int count) {
    ++orderChanges;
    if (count == fixedRows)
        dropBody();
    const int real = order.realSize();
    if (count < real)
        removeRows(count, real - count);
    order.setBlanks(count - order.realSize());
}

/// The fixed rows usually have the lowest ids; all others then go at once and not run by run.
void GridSurface::Data::dropBody() {
    const int real = order.realSize();
    const int kept = std::min(fixedRows, real);
    for (int row = 0; row < kept; ++row)
        if (order.at(row) != static_cast<RowId>(row)) {
            removeRows(kept, real - kept);
            dropUnusedLayouts();
            return;
        }
    const RowRun gone{static_cast<RowId>(kept), static_cast<int>(rows.limit()) - kept};
    order.erase(kept, real - kept, {});
    texts.clearRows(gone);
    styles.clearRows(gone);
    rows.truncate(gone.first);
    std::erase_if(mergedRows, [&](RowId id) { return id >= gone.first; });
    dropUnusedLayouts();
}

void GridSurface::Data::removeRows(int first, int count) {
    order.erase(first, count, [this](const RowRun& run) { forgetRun(run); });
}

void GridSurface::Data::forgetRun(const RowRun& run) {
    texts.clearRows(run);
    styles.clearRows(run);
    if (!mergedRows.empty())
        for (int i = 0; i < run.count; ++i)
            mergedRows.erase(run.first + static_cast<RowId>(i));
    rows.release(run);
}

int GridSurface::FixedRows() const {
    return d->fixedRows;
}

void GridSurface::setFixedRows(int rows) {
    if (rows < 0 || rows > d->order.size())
        throw Error(kErrInvalidRow, QStringLiteral("FixedRows cannot become %1").arg(rows));
    const bool atTop = d->cursor.topRow == d->fixedRows;
    d->fixedRows = rows;
    if (atTop)
        d->cursor.topRow = rows;
    d->cursor.keepInside(d->shape());
    d->changed();
}

void GridSurface::Clear() {
    d->texts.clear();
    d->rows.unbindAll();
    d->layouts.clear();
    d->changed();
}

void GridSurface::AddItem(const QString& text, int index) {
    const int at = index == -1 ? d->order.size() : index;
    if (at < d->fixedRows || at > d->order.size())
        throw Error(kErrInvalidRow, QStringLiteral("No row can be added before row %1").arg(at));
    ++d->orderChanges;
    ++d->costs.rowsTouched;
    const int blanks = d->order.size() - d->order.realSize();
    if (at < d->order.realSize())
        d->order.insert(at, d->rows.allocate(1));
    else
        d->order.setBlanks(blanks + 1);
    if (!text.isEmpty()) {
        int col = 0;
        for (const QStringView part : QStringView(text).split(u'\t')) {
            if (col == d->columns.size())
                break;
            d->writeText(at, col++, part.toString());
        }
    }
    d->changed();
}

void GridSurface::RemoveItem(int index) {
    if (index < d->fixedRows || index >= d->order.size())
        throw Error(kErrInvalidRow, QStringLiteral("Row %1 cannot be removed").arg(index));
    ++d->orderChanges;
    ++d->costs.rowsTouched;
    const int blanks = d->order.size() - d->order.realSize();
    if (index < d->order.realSize())
        d->removeRows(index, 1);
    else
        d->order.setBlanks(blanks - 1);
    d->cursor.keepInside(d->shape());
    d->changed();
}

// --- Tags and heights

int GridSurface::RowData(int row) const {
    return d->recordOf(row).tag;
}

void GridSurface::setRowData(int row, int tag) {
    if (d->recordOf(row).tag == tag)
        return;
    d->rows.write(d->touch(row)).tag = tag;
    ++d->costs.rowsTouched;
}

int GridSurface::RowHeight(int row) const {
    const std::uint16_t height = d->recordOf(row).height;
    return height == RowRecord::kDefaultHeight ? d->rowHeight : height;
}

void GridSurface::setRowHeight(int row, int twips) {
    const int height = std::min(twips, RowRecord::kDefaultHeight - 1);
    if (row == -1) {
        d->rowHeight = height < 0 ? Data::kRowHeight : height;
        d->rows.resetHeights();
    } else {
        const std::uint16_t stored =
            height < 0 ? RowRecord::kDefaultHeight : static_cast<std::uint16_t>(height);
        d->rows.write(d->touch(row)).height = stored;
    }
    d->changed();
}

bool GridSurface::RowHidden(int row) const {
    return RowHeight(row) == 0;
}

// --- Records

GridSurface::LayoutId GridSurface::addLayout(std::vector<CellBinding> bindings) {
    if (d->layouts.size() >= 0xFFFF)
        throw Error(kErrOverflow, QStringLiteral("Too many layouts"));
    Data::Layout layout;
    const auto count = std::min(bindings.size(), static_cast<std::size_t>(d->columns.size()));
    for (std::size_t i = 0; i < count; ++i) {
        const ColumnId id = d->columns.id(static_cast<int>(i));
        if (id >= layout.size())
            layout.resize(id + 1);
        layout[id] = std::move(bindings[i]);
    }
    d->layouts.push_back(std::move(layout));
    return static_cast<LayoutId>(d->layouts.size());
}

void GridSurface::Data::dropUnusedLayouts() {
    std::size_t used = 0;
    std::vector<bool> inUse(layouts.size(), false);
    for (int row = 0; row < std::min(fixedRows, order.realSize()); ++row) {
        const std::size_t layout = rows.at(order.at(row)).layout;
        if (layout != 0)
            inUse[layout - 1] = true;
        used = std::max(used, layout);
    }
    layouts.resize(used); // the numbers of those in use stay
    for (std::size_t i = 0; i < used; ++i)
        if (!inUse[i])
            layouts[i].clear();
}

void GridSurface::bindRow(int row, LayoutId layout, std::uint32_t tableRow, int rowData) {
    if (layout == 0 || layout > d->layouts.size())
        throw Error(kErrInvalidCall, QStringLiteral("There is no layout %1").arg(layout));
    const RowId id = d->touch(row);
    d->texts.clearRow(id);
    RowRecord& record = d->rows.write(id);
    record = {tableRow, rowData, layout, record.height};
    ++d->costs.rowsTouched;
    d->rowChanged(row);
}

void GridSurface::bindRows(int firstRow, int count, LayoutId layout,
                           const std::function<std::uint32_t(int)>& tableRow, int rowData) {
    if (layout == 0 || layout > d->layouts.size())
        throw Error(kErrInvalidCall, QStringLiteral("There is no layout %1").arg(layout));
    if (count <= 0)
        return;
    d->checkRow(firstRow);
    if (count > d->order.size() - firstRow)
        Data::failRow(d->order.size());
    d->touch(firstRow + count - 1);
    std::uint32_t next = 0;
    d->order.forEachRun(firstRow, count, [&](const RowRun& run) {
        d->texts.clearRows(run);
        for (int i = 0; i < run.count; ++i, ++next) {
            const std::uint32_t source = tableRow ? tableRow(static_cast<int>(next)) : next;
            RowRecord& record = d->rows.write(run.first + static_cast<RowId>(i));
            record = {source, rowData, layout, record.height};
        }
    });
    d->costs.rowsTouched += count;
    d->changed();
}

} // namespace zkp
