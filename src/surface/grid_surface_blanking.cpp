#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr std::size_t kMaxLayouts = 0xFFFF;

bool showsAny(const std::vector<CellBinding>& layout, const std::vector<ColumnId>& columns) {
    for (const ColumnId column : columns)
        if (column < layout.size() && layout[column].format != CellFormat::Blank)
            return true;
    return false;
}

} // namespace

bool GridSurface::Data::blankColumns(const CellRange& block) {
    const bool whole = block.top == fixedRows && block.bottom == order.size() - 1;
    if (!whole || layouts.size() > kMaxLayouts / 2)
        return false;
    std::vector<ColumnId> blanked;
    for (int col = block.left; col <= block.right; ++col)
        blanked.push_back(columns.id(col));
    const FixedCells kept = fixedCells(blanked);
    for (const ColumnId column : blanked)
        texts.dropColumn(column);
    unbindColumns(blanked);
    for (const auto& [row, column, text] : kept.texts)
        texts.write(row, column, text);
    for (const auto& [row, layout] : kept.layouts)
        rows.write(row).layout = layout;
    return true;
}

/// What the fixed rows show in some columns.
GridSurface::Data::FixedCells GridSurface::Data::fixedCells(const std::vector<ColumnId>& of) const {
    FixedCells cells;
    for (int row = 0; row < std::min(fixedRows, order.realSize()); ++row) {
        const RowId id = order.at(row);
        if (rows.at(id).layout != 0)
            cells.layouts.push_back({id, rows.at(id).layout});
        for (const ColumnId column : of)
            if (const std::optional<QString> text = texts.text(id, column))
                cells.texts.push_back({id, column, *text});
    }
    return cells;
}

/// The rows take layouts of their own that show nothing in these columns. The old ones stay as they are,
/// since a load that is under way goes on binding rows with them.
void GridSurface::Data::unbindColumns(const std::vector<ColumnId>& gone) {
    std::vector<std::uint16_t> instead(layouts.size() + 1, 0); // 0: not met yet
    const auto blankOne = [&](std::uint16_t number) -> std::uint16_t {
        if (!showsAny(layouts[number - 1u], gone))
            return number;
        Layout layout = layouts[number - 1u];
        for (const ColumnId column : gone)
            if (column < layout.size())
                layout[column] = {};
        layouts.push_back(std::move(layout));
        return static_cast<std::uint16_t>(layouts.size());
    };
    rows.changeLayouts([&](std::uint16_t number) {
        if (instead[number] == 0)
            instead[number] = blankOne(number);
        return instead[number];
    });
}

} // namespace zkp
