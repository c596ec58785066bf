#include "surface/grid_surface.h"

#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

void GridSurface::applyStyle(const CellRange& range, const StylePatch& patch, StyleOrigin origin) {
    const CellRange block{std::min(range.top, range.bottom), std::min(range.left, range.right),
                          std::max(range.top, range.bottom), std::max(range.left, range.right)};
    d->checkCell(block.top, block.left);
    d->checkCell(block.bottom, block.right);
    d->styles.write(block, patch, d->shape(), origin);
    d->news.rowsChanged(block.top, block.bottom);
}

CellStyle GridSurface::styleAt(int row, int col) const {
    d->checkCell(row, col);
    return d->styles.at(row, col, d->shape());
}

MarkedStyle GridSurface::markedStyleAt(int row, int col) const {
    d->checkCell(row, col);
    return d->styles.markedAt(row, col, d->shape());
}

// Each pair reads the current cell and writes one attribute of what `FillStyle` says.
#define ZKP_OF_CELL(Type, Name, attribute)                                                                   \
    Type GridSurface::Name() const {                                                                         \
        return styleAt(d->cursor.row, d->cursor.col).attribute;                                              \
    }                                                                                                        \
    void GridSurface::set##Name(SurfaceArgument<Type> value) {                                               \
        StylePatch patch;                                                                                    \
        patch.attribute = value;                                                                             \
        applyStyle(d->filledBlock(), patch);                                                                 \
    }
ZKP_GRIDSURFACE_CELL_STYLE(ZKP_OF_CELL)
#undef ZKP_OF_CELL

#define ZKP_OF_PART(Type, Name, part, attribute)                                                             \
    Type GridSurface::Name() const {                                                                         \
        return d->styles.ofPart(SurfacePart::part).attribute;                                                \
    }                                                                                                        \
    void GridSurface::set##Name(SurfaceArgument<Type> value) {                                               \
        d->styles.setOfPart(SurfacePart::part, &CellStyle::attribute, &StylePatch::attribute, value);        \
        d->news.changed();                                                                                   \
    }
ZKP_GRIDSURFACE_PART_STYLE(ZKP_OF_PART)
#undef ZKP_OF_PART

BagFont GridSurface::Font() const {
    return d->styles.font();
}

void GridSurface::setFont(const BagFont& font) {
    d->styles.setFont(font);
    d->news.changed();
}

} // namespace zkp
