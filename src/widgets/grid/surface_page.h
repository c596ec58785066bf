#pragma once

#include "surface/grid_surface.h"
#include "widgets/grid/surface_geometry.h"

#include <QRect>
#include <QSize>

#include <vector>

namespace zkp {

/// The part of a surface that a view shows: its rows and columns in pixels.
struct PageLayout {
    Axis rowAxis;
    Axis colAxis;
    std::vector<Span> rows;
    std::vector<Span> cols;
    QSize size;

    /// Rows without a height of their own are `defaultHeight` twips high.
    static PageLayout of(const GridSurface& surface, QSize size, const TwipScale& scale);

    bool isHeading(const Span& row) const { return row.index < rowAxis.fixed; }
    bool isFixed(const Span& row, const Span& col) const {
        return row.index < rowAxis.fixed || col.index < colAxis.fixed;
    }
    int bodyTop() const;
    int bottom() const { return rows.empty() ? 0 : rows.back().end(); }
    int right() const { return cols.empty() ? 0 : cols.back().end(); }
    /// Body rows that show wholly, and those that show at all.
    int wholeRows() const { return wholeCount(rowAxis, rows); }
    int shownRows() const;
    /// Empty when the cell does not show.
    QRect cellRect(int row, int col) const;
};

/// The texts of a page, each asked for once and only when needed, and the blocks of equal neighbours
/// that show as one cell, looked for among the rows of the page.
class PageTexts {
public:
    PageTexts(const GridSurface& surface, const PageLayout& page);

    /// By positions in the page's rows and columns.
    const QString& at(std::size_t row, std::size_t col) { return slot(row, col).text; }

    struct Block {
        std::size_t first;
        std::size_t last;
    };
    Block block(std::size_t row, std::size_t col);
    bool merges(std::size_t col) const { return merged_[col]; }

private:
    bool joined(std::size_t upper, std::size_t col);

    struct Slot {
        QString text;
        qsizetype length = -1; ///< of the whole text; -1 until asked for
    };
    Slot& slot(std::size_t row, std::size_t col);

    const GridSurface& surface_;
    const PageLayout& page_;
    std::vector<Slot> slots_;
    std::vector<bool> merged_;
};

} // namespace zkp
