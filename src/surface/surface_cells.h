#pragma once

#include "base/decimal.h"
#include "base/report_locale.h"
#include "surface/cell_binding.h"
#include "surface/cell_range.h"
#include "surface/own_texts.h"
#include "surface/surface_columns.h"
#include "surface/surface_rows.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace zkp {

/// What the cells of a surface show: values of records that rows are bound to by layouts, and over them
/// the texts that somebody wrote. Positions must be inside.
class SurfaceCells {
public:
    using LayoutId = std::uint16_t; ///< from 1; 0 is none

    SurfaceCells(SurfaceRows& rows, const SurfaceColumns& columns)
        : rows_(rows)
        , columns_(columns) {}

    ReportLocale locale;

    QString text(int row, int col) const {
        const RowId id = rows_.id(row);
        return id == kNoRow ? QString() : textOf(id, columns_.id(col));
    }
    QString textOf(RowId id, ColumnId column) const;
    /// The number that the cell's text is in the locale; of most bound cells without making the text.
    std::optional<double> numberOf(RowId id, ColumnId column) const;
    std::optional<Decimal> shownNumber(int row, int col) const;
    bool isBlank(RowId id, ColumnId column) const;
    bool isRowBlank(int row) const;
    /// Where the cell's text comes from; nullptr when it has its own, or nothing at all.
    const CellBinding* sourceOf(RowId id, ColumnId column) const {
        return texts_.has(id, column) ? nullptr : bindingOf(rows_.at(id), column);
    }

    /// The record that the row is bound to, if it is.
    std::uint32_t recordOf(RowId id) const { return rows_.at(id).record; }

    void write(int row, int col, const QString& text);
    /// Empties the columns of a block in all rows but the first `fixed`, without a write for each cell;
    /// false when the block is not all of them.
    bool blankColumns(const CellRange& block, int fixed);
    /// Empties all cells; the rows' tags go too.
    void clear();

    LayoutId addLayout(std::vector<CellBinding> bindings);
    bool hasLayout(LayoutId layout) const { return layout != 0 && layout <= layouts_.size(); }
    void bindRow(int row, LayoutId layout, std::uint32_t tableRow, int rowData) {
        const RowId id = rows_.touch(row);
        texts_.clearRow(id);
        RowRecord& record = rows_.write(id);
        record = {tableRow, rowData, layout, record.height};
        rows_.countTouched();
    }
    void bindRows(int firstRow, int count, LayoutId layout, const std::function<std::uint32_t(int)>& tableRow,
                  int rowData);
    /// Only the first `fixed` rows are left.
    void dropUnusedLayouts(int fixed);

    void forgetRows(const RowRun& run) { texts_.clearRows(run); }
    void forgetColumn(ColumnId column);

    std::int64_t takeTextsMade();
    QString inconsistency() const;

private:
    using Layout = std::vector<CellBinding>; // by column id
    struct FixedCells {
        std::vector<std::tuple<RowId, ColumnId, QString>> texts;
        std::vector<std::pair<RowId, LayoutId>> layouts;
    };

    /// What the cell shows of its record; nullptr when nothing.
    const CellBinding* bindingOf(const RowRecord& record, ColumnId column) const {
        if (record.layout == 0)
            return nullptr;
        const Layout& layout = layouts_[record.layout - 1u];
        return column < layout.size() ? &layout[column] : nullptr;
    }
    FixedCells fixedCells(const std::vector<ColumnId>& of, int fixed) const;
    void unbindColumns(const std::vector<ColumnId>& gone);

    SurfaceRows& rows_;
    const SurfaceColumns& columns_;
    OwnTexts texts_;
    std::vector<Layout> layouts_; // LayoutId - 1
    mutable std::int64_t textsMade_ = 0;
};

} // namespace zkp
