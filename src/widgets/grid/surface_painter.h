#pragma once

#include "widgets/grid/glyph_batch.h"
#include "widgets/grid/surface_page.h"
#include "widgets/grid/text_cache.h"

#include <QPainter>
#include <QPalette>

#include <vector>

namespace zkp {

/// Draws a page of a surface: fills, lines, texts, selection. One pass over the cells that the dirty
/// part touches; the texts of a font and colour go to the screen in one call.
class SurfacePainter {
public:
    struct Frame {
        const GridSurface& surface;
        const PageLayout& page;
        const QPalette& palette;
        bool focused = false;
    };

    void paint(QPainter& painter, const Frame& frame, const QRect& dirty);
    /// Pixels that the widest of the column's texts on the page needs.
    int widestText(const Frame& frame, int col);
    /// Whether a cell of the page has no room for all of its text.
    bool isCut(const Frame& frame, const Span& row, const Span& col);

private:
    struct Cell {
        QRect rect;
        int firstRowHeight = 0; ///< of the block's first row
        bool fixed = false;
        QColor back;
        QColor fore;
        bool underline = false;
        bool strikethru = false;
        int alignment = 0;
        QString text;
        FontFace* face = nullptr;
    };
    struct Part; // rows and columns of the page that the dirty rectangle touches

    void readCells(const Frame& frame, const Part& part, PageTexts& texts);
    Cell readCell(const Frame& frame, PageTexts& texts, std::size_t row, std::size_t col,
                  PageTexts::Block block);
    void fillCells(QPainter& painter) const;
    void drawLines(QPainter& painter, const Frame& frame) const;
    void drawTexts(QPainter& painter);
    void drawText(QPainter& painter, const Cell& cell);

    TextCache cache_;
    GlyphBatch batch_;
    std::vector<Cell> cells_;
};

} // namespace zkp
