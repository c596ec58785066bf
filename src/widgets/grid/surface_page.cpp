#include "widgets/grid/surface_page.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr int kDefaultRowHeight = 285; // twips
constexpr int kDefaultColWidth = 960;  // twips

Axis rowAxis(const GridSurface& surface, int height, const TwipScale& scale) {
    const auto sizeOf = [&surface, scale](int row) {
        if (surface.RowHidden(row))
            return 0;
        const int twips = surface.RowHeight(row);
        return std::max(1, scale.pixels(twips > 0 ? twips : kDefaultRowHeight));
    };
    return {surface.Rows(), surface.FixedRows(), surface.TopRow(), height, sizeOf};
}

Axis colAxis(const GridSurface& surface, int width, const TwipScale& scale) {
    const auto sizeOf = [&surface, scale](int col) {
        if (surface.ColHidden(col))
            return 0;
        const int twips = surface.ColWidth(col);
        return scale.pixels(twips < 0 ? kDefaultColWidth : twips);
    };
    return {surface.Cols(), surface.FixedCols(), surface.LeftCol(), width, sizeOf};
}

/// A text as long as a cell can show: what lies beyond is not worth shaping. A glyph narrower than a
/// pixel is no text that anybody reads.
QString cutToShow(QString text, int width) {
    const qsizetype most = width + 16;
    if (text.size() > most)
        text = text.first(text[most - 1].isHighSurrogate() ? most - 1 : most);
    return text;
}

/// Line ends, tabs and other control characters show as blanks.
QString onOneLine(QString text) {
    const auto isControl = [](QChar c) {
        return c.unicode() < 0x20 || c == QChar(0x2028) || c == QChar(0x2029);
    };
    if (std::any_of(text.cbegin(), text.cend(), isControl))
        std::replace_if(text.begin(), text.end(), isControl, QChar(u' '));
    return text;
}

} // namespace

PageLayout PageLayout::of(const GridSurface& surface, QSize size, const TwipScale& scale) {
    PageLayout page;
    page.size = size;
    page.rowAxis = zkp::rowAxis(surface, size.height(), scale);
    page.colAxis = zkp::colAxis(surface, size.width(), scale);
    page.rows = layOut(page.rowAxis);
    page.cols = layOut(page.colAxis);
    return page;
}

int PageLayout::bodyTop() const {
    int top = 0;
    for (const Span& row : rows)
        if (isHeading(row))
            top = row.end();
    return top;
}

int PageLayout::shownRows() const {
    return static_cast<int>(
        std::count_if(rows.begin(), rows.end(), [this](const Span& row) { return !isHeading(row); }));
}

QRect PageLayout::cellRect(int row, int col) const {
    const Span* r = spanOf(rows, row);
    const Span* c = spanOf(cols, col);
    return r && c ? QRect(c->start, r->start, c->size, r->size) : QRect();
}

PageTexts::PageTexts(const GridSurface& surface, const PageLayout& page)
    : surface_(surface)
    , page_(page)
    , slots_(page.rows.size() * page.cols.size())
    , merged_(page.cols.size()) {
    if (surface.MergeCells() != 0)
        for (std::size_t col = 0; col < page.cols.size(); ++col)
            merged_[col] = surface.MergeCol(page.cols[col].index);
}

PageTexts::Slot& PageTexts::slot(std::size_t row, std::size_t col) {
    Slot& slot = slots_[row * page_.cols.size() + col];
    if (slot.length < 0) {
        QString text = surface_.TextMatrix(page_.rows[row].index, page_.cols[col].index);
        slot.length = text.size();
        slot.text = onOneLine(cutToShow(std::move(text), page_.cols[col].size));
    }
    return slot;
}

bool PageTexts::joined(std::size_t upper, std::size_t col) {
    if (page_.isHeading(page_.rows[upper]) != page_.isHeading(page_.rows[upper + 1]))
        return false;
    const Slot& above = slot(upper, col);
    const Slot& below = slot(upper + 1, col);
    return above.length == below.length && above.text == below.text && !above.text.trimmed().isEmpty();
}

PageTexts::Block PageTexts::block(std::size_t row, std::size_t col) {
    Block block{row, row};
    if (!merged_[col])
        return block;
    while (block.first > 0 && joined(block.first - 1, col))
        --block.first;
    while (block.last + 1 < page_.rows.size() && joined(block.last, col))
        ++block.last;
    return block;
}

} // namespace zkp
