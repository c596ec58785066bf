#include "surface/grid_surface.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "surface/cell_text.h"
#include "surface/grid_surface_data.h"

namespace zkp {

QString GridSurface::Data::cellText(int row, int col) const {
    const RowId id = order.at(row);
    return id == kNoRow ? QString() : textOf(id, columns.id(col));
}

QString GridSurface::Data::textOf(RowId id, ColumnId column) const {
    ++costs.textsMade;
    if (const std::optional<QString> own = texts.text(id, column))
        return *own;
    const RowRecord& record = rows.at(id);
    const CellBinding* binding = bindingOf(record, column);
    return binding ? boundText(*binding, record.record, locale) : QString();
}

std::optional<double> GridSurface::Data::numberOf(RowId id, ColumnId column) const {
    const RowRecord& record = rows.at(id);
    const CellBinding* binding = bindingOf(record, column);
    if (binding && !texts.has(id, column))
        if (const std::optional<double> number = boundNumber(*binding, record.record))
            return number;
    return toNumber(textOf(id, column), locale);
}

const CellBinding* GridSurface::Data::bindingOf(const RowRecord& record, ColumnId column) const {
    if (record.layout == 0)
        return nullptr;
    const Layout& layout = layouts[record.layout - 1u];
    return column < layout.size() ? &layout[column] : nullptr;
}

/// A blank text needs no place where nothing would show anyway.
void GridSurface::Data::writeText(int row, int col, const QString& text) {
    if (text.isEmpty() && order.at(row) == kNoRow)
        return;
    const RowId id = touch(row);
    const ColumnId column = columns.id(col);
    ++costs.rowsTouched;
    if (text.isEmpty() && rows.at(id).layout == 0)
        texts.erase(id, column);
    else
        texts.write(id, column, text);
}

QString GridSurface::TextMatrix(int row, int col) const {
    d->checkRow(row);
    d->checkCol(col);
    return d->cellText(row, col);
}

std::optional<Decimal> GridSurface::shownNumber(int row, int col) const {
    d->checkRow(row);
    d->checkCol(col);
    const RowId id = d->order.at(row);
    if (id == kNoRow)
        return std::nullopt;
    const RowRecord& record = d->rows.at(id);
    const CellBinding* binding = d->bindingOf(record, d->columns.id(col));
    if (binding && !d->texts.has(id, d->columns.id(col)))
        if (const std::optional<Currency> amount = boundAmount(*binding, record.record))
            return Decimal(*amount);
    return Decimal::fromText(d->cellText(row, col), d->locale);
}

bool GridSurface::Data::isCellBlank(RowId id, ColumnId column) const {
    if (const std::optional<QString> own = texts.text(id, column))
        return isBlank(*own);
    const RowRecord& record = rows.at(id);
    const CellBinding* binding = bindingOf(record, column);
    return !binding || isBoundBlank(*binding, record.record);
}

bool GridSurface::IsRowBlank(int row) const {
    const RowId id = d->idOf(row);
    if (id == kNoRow)
        return true;
    for (int col = 0; col < d->columns.size(); ++col)
        if (!d->isCellBlank(id, d->columns.id(col)))
            return false;
    return true;
}

void GridSurface::setTextMatrix(int row, int col, const QString& text) {
    d->checkRow(row);
    d->checkCol(col);
    d->writeText(row, col, text);
    d->rowChanged(row);
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
    d->checkRow(block.bottom);
    d->checkCol(block.right);
    if (text.isEmpty() && d->blankColumns(block)) {
        d->changed();
        return;
    }
    for (int row = block.top; row <= block.bottom; ++row)
        for (int col = block.left; col <= block.right; ++col)
            d->writeText(row, col, text);
    if (block.top == block.bottom)
        d->rowChanged(block.top);
    else
        d->changed();
}

/// What the Cell... properties and Text write to.
CellRange GridSurface::Data::filledBlock() const {
    if (fillStyle == 1)
        return cursor.selection();
    return {cursor.row, cursor.col, cursor.row, cursor.col};
}

} // namespace zkp
