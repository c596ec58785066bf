#pragma once

#include "surface/grid_surface.h"
#include "surface/surface_cells.h"
#include "surface/surface_columns.h"
#include "surface/surface_cursor.h"
#include "surface/surface_news.h"
#include "surface/surface_rows.h"
#include "surface/surface_styles.h"

namespace zkp {

/// The structures behind a surface, the settings that are only kept, and the few steps that need several
/// of them.
struct GridSurface::Data {
    explicit Data(GridSurface& owner)
        : surface(owner)
        , news(owner.views) {}

    GridSurface& surface;
    SurfaceRows rows;
    SurfaceColumns columns;
    SurfaceCells cells{rows, columns};
    SurfaceStyles styles{rows, columns};
    SurfaceCursor cursor;
    SurfaceNews news;

    int fixedRows = 1;
    int fixedCols = 0;
    int visibleRows = 0;
    int mergeCells = 0;
    int fillStyle = 0;
    int mouseRow = -1;
    int mouseCol = -1;
    Look look;
    Place place;
    bool sorting = false;

    SurfaceShape shape() const { return {rows.size(), columns.size(), fixedRows, fixedCols}; }
    void checkRow(int row) const {
        if (!rows.has(row))
            failRow(row);
    }
    void checkCol(int col) const {
        if (!columns.has(col))
            failCol(col);
    }
    void checkCell(int row, int col) const {
        checkRow(row);
        checkCol(col);
    }
    void checkLayout(LayoutId layout) const {
        if (!cells.hasLayout(layout))
            failLayout(layout);
    }
    [[noreturn]] static void failRow(int row);
    [[noreturn]] static void failCol(int col);
    [[noreturn]] static void failLayout(LayoutId layout);

    template <class Value>
    void setColumn(int col, Value SurfaceColumn::*member, Value value) {
        checkCol(col);
        columns.at(col).*member = value;
        news.changed();
    }
    /// What the Cell... properties and Text write to.
    CellRange filledBlock() const;
    SurfaceRows::Forget forgetRows();
    /// Rows or columns came or went: the cursor stays inside, and the views hear of it.
    void resized();
    std::vector<int> customOrder(const CellRange& block);
    std::vector<int> orderByTexts(const CellRange& block, int code, const std::vector<RowId>& ids) const;

    /// Puts the cursor there and tells whoever listens what really moved.
    void moveCursor(const SurfaceCursor& next);

    /// Calls a copy, since the function may put another one in its place while it runs.
    template <class F, class... Args>
    static void raise(F function, Args&&... args) {
        if (function)
            function(args...);
    }
};

} // namespace zkp
