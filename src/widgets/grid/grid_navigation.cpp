#include "widgets/grid/grid_navigation.h"

#include "widgets/grid/key_codes.h"

#include <algorithm>
#include <functional>

namespace zkp {

namespace {

/// The next one that shows, `steps` away at most, within first..last.
int walk(int from, int steps, int first, int last, const std::function<bool(int)>& hidden) {
    int to = std::clamp(from + steps, first, last);
    const int direction = steps < 0 ? -1 : 1;
    int shown = to;
    while (shown >= first && shown <= last && hidden(shown))
        shown += direction;
    if (shown >= first && shown <= last)
        return shown;
    while (to != from && hidden(to)) // nothing shows further on: the last that does
        to -= direction;
    return to;
}

} // namespace

std::optional<CellPlace> cellByKey(const GridSurface& surface, CellPlace from, int code, int shift,
                                   int page) {
    const int firstRow = surface.FixedRows();
    const int lastRow = surface.Rows() - 1;
    const int firstCol = surface.FixedCols();
    const int lastCol = surface.Cols() - 1;
    if (firstRow > lastRow || firstCol > lastCol)
        return std::nullopt;
    const bool ctrl = (shift & kCtrl) != 0;
    const auto byRows = [&](int steps) {
        const auto hidden = [&](int row) { return surface.RowHidden(row); };
        return CellPlace{walk(std::clamp(from.row, firstRow, lastRow), steps, firstRow, lastRow, hidden),
                         from.col};
    };
    const auto byCols = [&](int steps) {
        const auto hidden = [&](int col) { return surface.ColHidden(col); };
        return CellPlace{from.row,
                         walk(std::clamp(from.col, firstCol, lastCol), steps, firstCol, lastCol, hidden)};
    };
    const int allRows = surface.Rows();
    const int allCols = surface.Cols();
    switch (code) {
    case kKeyUp:
        return byRows(ctrl ? -allRows : -1);
    case kKeyDown:
        return byRows(ctrl ? allRows : 1);
    case kKeyPageUp:
        return byRows(-page);
    case kKeyPageDown:
        return byRows(page);
    case kKeyLeft:
        return byCols(ctrl ? -allCols : -1);
    case kKeyRight:
        return byCols(ctrl ? allCols : 1);
    case kKeyHome:
    case kKeyEnd: {
        const int sign = code == kKeyHome ? -1 : 1;
        return CellPlace{ctrl ? byRows(sign * allRows).row : from.row, byCols(sign * allCols).col};
    }
    default:
        return std::nullopt;
    }
}

} // namespace zkp
