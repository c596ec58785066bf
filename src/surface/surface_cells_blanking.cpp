#include "surface/surface_cells.h"

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

bool SurfaceCells::blankColumns(const CellRange& block, int fixed) {
    const bool whole = block.top == fixed && block.bottom == rows_.size() - 1;
    if (!whole || layouts_.size() > kMaxLayouts / 2)
        return false;
    std::vector<ColumnId> blanked;
    for (int col = block.left; col <= block.right; ++col)
        blanked.push_back(columns_.id(col));
    const FixedCells kept = fixedCells(blanked, fixed);
    for (const ColumnId column : blanked)
        texts_.dropColumn(column);
    unbindColumns(blanked);
    for (const auto& [row, column, text] : kept.texts)
        texts_.write(row, column, text);
    for (const auto& [row, layout] : kept.layouts)
        rows_.write(row).layout = layout;
    return true;
}

/// What the fixed rows show in some columns.
SurfaceCells::FixedCells SurfaceCells::fixedCells(const std::vector<ColumnId>& of, int fixed) const {
    FixedCells cells;
    for (int row = 0; row < fixed && rows_.id(row) != kNoRow; ++row) {
        const RowId id = rows_.id(row);
        if (rows_.at(id).layout != 0)
            cells.layouts.push_back({id, rows_.at(id).layout});
        for (const ColumnId column : of)
            if (const std::optional<QString> text = texts_.text(id, column))
                cells.texts.push_back({id, column, *text});
    }
    return cells;
}

/// The rows take layouts of their own that show nothing in these columns. The old ones stay as they are,
/// since a load that is under way goes on binding rows with them.
void SurfaceCells::unbindColumns(const std::vector<ColumnId>& gone) {
    std::vector<LayoutId> instead(layouts_.size() + 1, 0); // 0: not met yet
    const auto blankOne = [&](LayoutId number) -> LayoutId {
        if (!showsAny(layouts_[number - 1u], gone))
            return number;
        Layout layout = layouts_[number - 1u];
        for (const ColumnId column : gone)
            if (column < layout.size())
                layout[column] = {};
        layouts_.push_back(std::move(layout));
        return static_cast<LayoutId>(layouts_.size());
    };
    rows_.changeLayouts([&](LayoutId number) {
        if (instead[number] == 0)
            instead[number] = blankOne(number);
        return instead[number];
    });
}

} // namespace zkp
