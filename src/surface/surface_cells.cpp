#include "surface/surface_cells.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "surface/cell_text.h"

#include <algorithm>
#include <utility>

namespace zkp {

QString SurfaceCells::textOf(RowId id, ColumnId column) const {
    ++textsMade_;
    if (const std::optional<QString> own = texts_.text(id, column))
        return *own;
    const RowRecord& record = rows_.at(id);
    const CellBinding* binding = bindingOf(record, column);
    return binding ? boundText(*binding, record.record, locale) : QString();
}

std::optional<double> SurfaceCells::numberOf(RowId id, ColumnId column) const {
    if (const CellBinding* source = sourceOf(id, column))
        if (const std::optional<double> number = boundNumber(*source, rows_.at(id).record))
            return number;
    return toNumber(textOf(id, column), locale);
}

std::optional<Decimal> SurfaceCells::shownNumber(int row, int col) const {
    const RowId id = rows_.id(row);
    if (id == kNoRow)
        return std::nullopt;
    if (const CellBinding* source = sourceOf(id, columns_.id(col)))
        if (const std::optional<Currency> amount = boundAmount(*source, rows_.at(id).record))
            return Decimal(*amount);
    return Decimal::fromText(text(row, col), locale);
}

bool SurfaceCells::isBlank(RowId id, ColumnId column) const {
    if (const std::optional<QString> own = texts_.text(id, column))
        return zkp::isBlank(*own);
    const RowRecord& record = rows_.at(id);
    const CellBinding* binding = bindingOf(record, column);
    return !binding || isBoundBlank(*binding, record.record);
}

bool SurfaceCells::isRowBlank(int row) const {
    const RowId id = rows_.id(row);
    return id == kNoRow ||
           std::ranges::all_of(columns_.order(), [&](ColumnId column) { return isBlank(id, column); });
}

/// A blank text needs no place where nothing would show anyway.
void SurfaceCells::write(int row, int col, const QString& text) {
    if (text.isEmpty() && rows_.id(row) == kNoRow)
        return;
    const RowId id = rows_.touch(row);
    const ColumnId column = columns_.id(col);
    rows_.countTouched();
    if (text.isEmpty() && rows_.at(id).layout == 0)
        texts_.erase(id, column);
    else
        texts_.write(id, column, text);
}

void SurfaceCells::clear() {
    texts_.clear();
    rows_.unbindAll();
    layouts_.clear();
}

SurfaceCells::LayoutId SurfaceCells::addLayout(std::vector<CellBinding> bindings) {
    if (layouts_.size() >= 0xFFFF)
        throw Error(kErrOverflow, QStringLiteral("Too many layouts"));
    Layout layout;
    const auto count = std::min(bindings.size(), static_cast<std::size_t>(columns_.size()));
    for (std::size_t i = 0; i < count; ++i) {
        const ColumnId id = columns_.id(static_cast<int>(i));
        if (id >= layout.size())
            layout.resize(id + 1);
        layout[id] = std::move(bindings[i]);
    }
    layouts_.push_back(std::move(layout));
    return static_cast<LayoutId>(layouts_.size());
}

void SurfaceCells::dropUnusedLayouts(int fixed) {
    std::size_t used = 0;
    std::vector<bool> inUse(layouts_.size(), false);
    for (int row = 0; row < std::min(fixed, rows_.size()); ++row) {
        const std::size_t layout = rows_.recordOf(row).layout;
        if (layout != 0)
            inUse[layout - 1] = true;
        used = std::max(used, layout);
    }
    layouts_.resize(used); // the numbers of those in use stay
    for (std::size_t i = 0; i < used; ++i)
        if (!inUse[i])
            layouts_[i].clear();
}

void SurfaceCells::bindRows(int firstRow, int count, LayoutId layout,
                            const std::function<std::uint32_t(int)>& tableRow, int rowData) {
    rows_.touch(firstRow + count - 1);
    std::uint32_t next = 0;
    rows_.forEachRun(firstRow, count, [&](const RowRun& run) {
        texts_.clearRows(run);
        for (int i = 0; i < run.count; ++i, ++next) {
            const std::uint32_t source = tableRow ? tableRow(static_cast<int>(next)) : next;
            RowRecord& record = rows_.write(run.first + static_cast<RowId>(i));
            record = {source, rowData, layout, record.height};
        }
    });
    rows_.countTouched(count);
}

void SurfaceCells::forgetColumn(ColumnId column) {
    texts_.dropColumn(column);
    for (Layout& layout : layouts_)
        if (column < layout.size())
            layout[column] = {};
}

std::int64_t SurfaceCells::takeTextsMade() {
    return std::exchange(textsMade_, 0);
}

QString SurfaceCells::inconsistency() const {
    if (texts_.anyRowFrom(rows_.limit()))
        return QStringLiteral("a row that is gone has a text");
    return rows_.inconsistency(layouts_.size());
}

} // namespace zkp
