#include "widgets/grid/surface_painter.h"

#include "base/number.h"
#include "widgets/grid/palette_colors.h"
#include "widgets/grid/surface_selection.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zkp {

namespace {

constexpr int kSidePadding = 4;                // pixels left and right of a text
constexpr int kPadding = 2 * kSidePadding + 1; // and the line at the right
constexpr int kEdgePadding = 3;                // pixels between a text and the top or bottom of a tall cell
constexpr int kAlignGeneral = 9;
constexpr int kAlignLeftCentre = 1;
constexpr int kAlignRightCentre = 7;

/// Positions in the page of the spans that touch from..to.
std::pair<std::size_t, std::size_t> touched(const std::vector<Span>& spans, int from, int to) {
    std::size_t first = 0;
    while (first < spans.size() && spans[first].end() <= from)
        ++first;
    std::size_t last = first;
    while (last < spans.size() && spans[last].start <= to)
        ++last;
    return {first, last};
}

void drawFocusRect(QPainter& painter, const SurfacePainter::Frame& frame, const QRect& cell) {
    const int width = frame.surface.look().FocusRect >= 2 ? 2 : 1;
    const QColor color = frame.palette.color(frame.focused ? QPalette::Highlight : QPalette::PlaceholderText);
    const QRect inner = cell.adjusted(0, 0, -1, -1); // inside the grid lines
    painter.fillRect(inner.left(), inner.top(), inner.width(), width, color);
    painter.fillRect(inner.left(), inner.bottom() - width + 1, inner.width(), width, color);
    painter.fillRect(inner.left(), inner.top(), width, inner.height(), color);
    painter.fillRect(inner.right() - width + 1, inner.top(), width, inner.height(), color);
}

void fillBackground(QPainter& painter, const SurfacePainter::Frame& frame, const QRect& dirty) {
    // Left at its default, the empty part is as quiet as the window around it.
    const Color stored = frame.surface.look().BackColorBkg;
    const QColor color = stored == GridSurface::Look().BackColorBkg ? frame.palette.color(QPalette::Window)
                                                                    : paintedColor(stored, frame.palette);
    const int right = frame.page.right();
    const int bottom = frame.page.bottom();
    if (dirty.right() >= right)
        painter.fillRect(QRect(QPoint(std::max(right, dirty.left()), dirty.top()), dirty.bottomRight()),
                         color);
    if (dirty.bottom() >= bottom)
        painter.fillRect(QRect(QPoint(dirty.left(), std::max(bottom, dirty.top())), dirty.bottomRight()),
                         color);
}

} // namespace

struct SurfacePainter::Part {
    std::size_t firstRow, endRow;
    std::size_t firstCol, endCol;
    ShownSelection selection;
};

void SurfacePainter::paint(QPainter& painter, const Frame& frame, const QRect& dirty) {
    const auto [firstRow, endRow] = touched(frame.page.rows, dirty.top(), dirty.bottom());
    const auto [firstCol, endCol] = touched(frame.page.cols, dirty.left(), dirty.right());
    const Part part{firstRow, endRow, firstCol, endCol, ShownSelection(frame.surface, frame.focused)};
    cache_.trim();
    PageTexts texts(frame.surface, frame.page);
    fillBackground(painter, frame, dirty);
    readCells(frame, part, texts);
    fillCells(painter);
    drawLines(painter, frame);
    drawTexts(painter);
    if (part.selection.hasFocusRect()) {
        const QRect current = frame.page.cellRect(frame.surface.Row(), frame.surface.Col());
        if (current.intersects(dirty))
            drawFocusRect(painter, frame, current);
    }
    cells_.clear();
}

void SurfacePainter::readCells(const Frame& frame, const Part& part, PageTexts& texts) {
    cells_.clear();
    for (std::size_t row = part.firstRow; row < part.endRow; ++row) {
        for (std::size_t col = part.firstCol; col < part.endCol; ++col) {
            const PageTexts::Block block = texts.block(row, col);
            if (std::max(block.first, part.firstRow) != row)
                continue; // drawn with the block's first row that is dirty
            Cell cell = readCell(frame, texts, block.first, col, block);
            if (part.selection.covers(frame.page.rows[block.first].index, frame.page.rows[block.last].index,
                                      frame.page.cols[col].index)) {
                cell.back = paintedColor(frame.surface.look().BackColorSel, frame.palette);
                cell.fore = paintedColor(frame.surface.look().ForeColorSel, frame.palette);
            }
            cells_.push_back(std::move(cell));
        }
    }
}

SurfacePainter::Cell SurfacePainter::readCell(const Frame& frame, PageTexts& texts, std::size_t row,
                                              std::size_t col, PageTexts::Block block) {
    const Span& rowSpan = frame.page.rows[row];
    const Span& colSpan = frame.page.cols[col];
    const CellStyle style = frame.surface.styleAt(rowSpan.index, colSpan.index);
    Cell cell;
    cell.rect =
        QRect(colSpan.start, rowSpan.start, colSpan.size, frame.page.rows[block.last].end() - rowSpan.start);
    cell.fixed = frame.page.isFixed(rowSpan, colSpan);
    cell.back = paintedColor(style.backColor, frame.palette);
    cell.fore = paintedColor(style.foreColor, frame.palette);
    if (isSystemColor(style.backColor) != isSystemColor(style.foreColor))
        cell.fore = readableOn(cell.back, cell.fore);
    cell.firstRowHeight = rowSpan.size;
    cell.underline = style.underline;
    cell.strikethru = style.strikethru;
    cell.text = texts.at(row, col);
    if (cell.text.isEmpty())
        return cell;
    cell.face = &cache_.face(style);
    cell.alignment = frame.page.isHeading(rowSpan) ? frame.surface.FixedAlignment(colSpan.index)
                                                   : frame.surface.ColAlignment(colSpan.index);
    if (cell.alignment == kAlignGeneral)
        cell.alignment = toNumber(cell.text, frame.surface.locale()) ? kAlignRightCentre : kAlignLeftCentre;
    cell.alignment = std::clamp(cell.alignment, 0, kAlignGeneral - 1);
    return cell;
}

/// Neighbours of one colour in one row are filled together.
void SurfacePainter::fillCells(QPainter& painter) const {
    for (std::size_t i = 0; i < cells_.size();) {
        QRect run = cells_[i].rect;
        const QColor& back = cells_[i].back;
        for (++i; i < cells_.size() && cells_[i].back == back && cells_[i].rect.top() == run.top() &&
                  cells_[i].rect.height() == run.height();
             ++i)
            run.setRight(cells_[i].rect.right());
        painter.fillRect(run, back);
    }
}

namespace {

/// The lines of one kind of cells. A line stands at the far edge of its cell.
struct LineStyle {
    QColor color;
    QColor edge; ///< of the second line that makes a line inset or raised
    int width = 1;
    int shade = 0; ///< -1: the second line lies before the line, 1: behind it, 0: there is none

    void drawBelow(QPainter& painter, int left, int right, int bottom) const {
        painter.fillRect(left, bottom - width + 1, right - left + 1, width, color);
        if (shade != 0)
            painter.fillRect(left, bottom - width, right - left + 1, 1, edge);
    }
    void drawBeside(QPainter& painter, int right, int top, int bottom) const {
        painter.fillRect(right - width + 1, top, width, bottom - top + 1, color);
        if (shade != 0)
            painter.fillRect(right - width, top, 1, bottom - top + 1, edge);
    }
};

enum GridLineKinds { kLinesNone = 0, kLinesFlat = 1, kLinesInset = 2, kLinesRaised = 3 };

/// An inset line is dark with a light one beside it, a raised one light with a dark one.
std::optional<LineStyle> bodyLines(const GridSurface::Look& look, const QPalette& palette) {
    if (look.GridLines <= kLinesNone)
        return std::nullopt;
    LineStyle style{paintedColor(look.GridColor, palette), {}, std::clamp(look.GridLineWidth, 1, 10), 0};
    if (look.GridLines == kLinesFlat)
        return style;
    const QColor dark = palette.color(QPalette::Mid);
    const QColor light = palette.color(QPalette::Light);
    style.shade = 1;
    style.width = 1;
    style.color = look.GridLines == kLinesInset ? light : dark;
    style.edge = look.GridLines == kLinesInset ? dark : light;
    return style;
}

} // namespace

void SurfacePainter::drawLines(QPainter& painter, const Frame& frame) const {
    const GridSurface::Look& look = frame.surface.look();
    const std::optional<LineStyle> body = bodyLines(look, frame.palette);
    const LineStyle heading{paintedColor(look.GridColorFixed, frame.palette), {}, 1, 0};
    for (std::size_t i = 0; i < cells_.size();) {
        QRect run = cells_[i].rect;
        const bool fixed = cells_[i].fixed;
        const auto goesOn = [&](const Cell& cell) {
            return cell.fixed == fixed && cell.rect.top() == run.top() && cell.rect.height() == run.height();
        };
        const LineStyle* lines = fixed ? &heading : body ? &*body : nullptr;
        for (; i < cells_.size() && goesOn(cells_[i]); ++i) {
            run.setRight(cells_[i].rect.right());
            if (lines)
                lines->drawBeside(painter, run.right(), run.top(), run.bottom());
        }
        if (lines)
            lines->drawBelow(painter, run.left(), run.right(), run.bottom());
    }
}

void SurfacePainter::drawTexts(QPainter& painter) {
    for (const Cell& cell : cells_)
        if (cell.face)
            drawText(painter, cell);
    batch_.draw(painter);
}

void SurfacePainter::drawText(QPainter& painter, const Cell& cell) {
    const QRect room = cell.rect.adjusted(kSidePadding, 0, -kSidePadding - 1, -1);
    if (room.width() <= 0)
        return;
    const ShapedText* text = &cell.face->shape(cell.text);
    if (text->width > static_cast<float>(room.width()))
        text = &cell.face->shapeElided(cell.text, room.width());
    const int width = static_cast<int>(text->width + 0.5F);
    const int slack = room.width() - width;
    const int across = cell.alignment / 3; // 0 left, 1 centre, 2 right
    const int left = room.left() + std::max(0, across == 0 ? 0 : across == 1 ? slack / 2 : slack);
    const int spare = room.height() - cell.face->height();
    const int centred = spare / 2;
    // At the top of a block the text stands level with its neighbours of one row.
    const int edge = std::min(kEdgePadding, (cell.firstRowHeight - 1 - cell.face->height()) / 2);
    const int down = cell.alignment % 3; // 0 top, 1 centre, 2 bottom
    const int top = room.top() + (down == 1   ? centred
                                  : down == 0 ? std::min(edge, centred)
                                              : std::max(spare - edge, centred));
    const int baseline = top + cell.face->ascent();
    batch_.add(*cell.face, cell.fore, *text, {left, baseline});
    if (cell.underline)
        painter.fillRect(left, baseline + cell.face->underline(), width, cell.face->lineWidth(), cell.fore);
    if (cell.strikethru)
        painter.fillRect(left, baseline - cell.face->strikeOut(), width, cell.face->lineWidth(), cell.fore);
}

/// The column stands alone on a page of its own, so that its present width cuts no text.
int SurfacePainter::widestText(const Frame& frame, int col) {
    cache_.trim();
    PageLayout page = frame.page;
    page.cols = {{col, 0, frame.page.size.width()}};
    PageTexts texts(frame.surface, page);
    float widest = 0;
    for (std::size_t row = 0; row < page.rows.size(); ++row) {
        const CellStyle style = frame.surface.styleAt(page.rows[row].index, col);
        widest = std::max(widest, cache_.face(style).shape(texts.at(row, 0)).width);
    }
    return static_cast<int>(std::ceil(widest)) + kPadding;
}

bool SurfacePainter::isCut(const Frame& frame, const Span& row, const Span& col) {
    cache_.trim();
    PageLayout page = frame.page;
    page.rows = {row};
    page.cols = {col};
    const QString text = PageTexts(frame.surface, page).at(0, 0);
    const CellStyle style = frame.surface.styleAt(row.index, col.index);
    return cache_.face(style).shape(text).width > static_cast<float>(std::max(0, col.size - kPadding));
}

} // namespace zkp
