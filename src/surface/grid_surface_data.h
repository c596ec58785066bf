#pragma once

#include "surface/grid_surface.h"
#include "surface/own_texts.h"
#include "surface/row_sequence.h"
#include "surface/row_sort.h"
#include "surface/row_table.h"
#include "surface/style_layers.h"
#include "surface/surface_columns.h"
#include "surface/surface_cursor.h"

#include <span>
#include <tuple>
#include <unordered_set>

namespace zkp {

/// The parts of a surface, and the few steps that need several of them.
struct GridSurface::Data {
    explicit Data(GridSurface& owner)
        : surface(owner) {}

    using Layout = std::vector<CellBinding>; // by column id

    GridSurface& surface;
    ReportLocale locale;

    RowSequence order;
    RowTable rows;
    SurfaceColumns columns;
    OwnTexts texts;
    StyleLayers styles;
    std::vector<Layout> layouts; // LayoutId - 1
    std::unordered_set<RowId> mergedRows;
    SurfaceCursor cursor;
    int fixedRows = 1;
    int fixedCols = 0;
    static constexpr int kRowHeight = 255; // twips
    int rowHeight = kRowHeight;            // of rows without a height of their own
    int visibleRows = 0;
    int mergeCells = 0;
    int fillStyle = 0;
    int mouseRow = -1;
    int mouseCol = -1;
    bool redraw = true;
    bool changePending = false;
    bool sorting = false;
    std::uint64_t orderChanges = 0; // counts whatever moves, adds or removes rows

    CellStyle own; // colours of the body and font as set on the surface, whatever cells were given since
    Color fixedBack = systemColor(kSysButtonFace);
    Color fixedFore = systemColor(kSysButtonText);
    Look look;
    Place place;
    mutable Costs costs;

    SurfaceShape shape() const { return {order.size(), columns.size(), fixedRows, fixedCols}; }
    void checkRow(int row) const {
        if (static_cast<unsigned>(row) >= static_cast<unsigned>(order.size()))
            failRow(row);
    }
    void checkCol(int col) const {
        if (static_cast<unsigned>(col) >= static_cast<unsigned>(columns.size()))
            failCol(col);
    }
    [[noreturn]] static void failRow(int row);
    [[noreturn]] static void failCol(int col);

    /// The row's id; a trailing blank (and the blanks before it) become rows with an id.
    RowId touch(int row);
    RowId idOf(int row) const {
        checkRow(row);
        return order.at(row);
    }
    const RowRecord& recordOf(int row) const;
    /// What the cell shows of its record; nullptr when nothing.
    const CellBinding* bindingOf(const RowRecord& record, ColumnId column) const;

    QString cellText(int row, int col) const;
    QString textOf(RowId id, ColumnId column) const;
    /// The number that the cell's text is in the locale.
    std::optional<double> numberOf(RowId id, ColumnId column) const;
    bool isCellBlank(RowId id, ColumnId column) const;

    using RowIds = std::span<const RowId>;
    template <class F>
    static void forEachInMemoryOrder(RowIds ids, F f);
    SortKeys columnNumbers(RowIds ids, ColumnId column) const;
    std::optional<SortKeys> numbersOfAll(RowIds ids, ColumnId column) const;
    DistinctTexts columnTexts(RowIds ids, ColumnId column) const;
    SortKeys sortKeys(int code, RowIds ids, int col) const;
    std::vector<int> customOrder(const CellRange& block);
    void writeText(int row, int col, const QString& text);
    /// Empties whole columns of the body without a write for each cell; false when the block is none.
    bool blankColumns(const CellRange& block);
    struct FixedCells {
        std::vector<std::tuple<RowId, ColumnId, QString>> texts;
        std::vector<std::pair<RowId, std::uint16_t>> layouts;
    };
    FixedCells fixedCells(const std::vector<ColumnId>& of) const;
    void unbindColumns(const std::vector<ColumnId>& gone);
    void applyPiece(const StylePiece& piece, const StylePatch& patch, StyleOrigin origin);
    CellRange filledBlock() const;

    void setRowCount(int count);
    void dropBody();
    void removeRows(int first, int count);
    void forgetRun(const RowRun& run);
    void dropUnusedLayouts();

    /// Puts the cursor there and tells whoever listens what really moved.
    void moveCursor(const SurfaceCursor& next);
    void changed();
    void rowChanged(int row) {
        if (redraw)
            tellRow(row);
        else
            changePending = true;
    }
    void tellRow(int row);
    void scrolled();

    /// Calls a copy, since the function may put another one in its place while it runs.
    template <class F, class... Args>
    static void raise(F function, Args&&... args) {
        if (function)
            function(args...);
    }
};

} // namespace zkp
