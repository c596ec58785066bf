#include "interaction/heading_drag.h"

#include "base/text.h"
#include "base/texts/columns.h"
#include "core/paint_scopes.h"
#include "interaction/questions.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr int kLeftButton = 1;

void setTag(GridSurface& surface, const QString& tag) {
    GridSurface::Look look = surface.look();
    look.Tag = tag;
    surface.setLook(look);
}

} // namespace

/// A host may leave the surface and the collection with different counts.
bool HeadingDrag::exists(int col) const {
    return col >= 0 && col < std::min(surface_.Cols(), columns_.Count());
}

bool HeadingDrag::prepare() {
    const int pressed = clicked_.get();
    const bool onHeading = surface_.MouseRow() == 0;
    setTag(surface_, {});
    if (onHeading && surface_.MouseCol() < 0)
        return true; // beside the columns
    if (data_.TotalForm && onHeading) {
        if (!exists(pressed))
            return true;
        if (properties_.Colcnt(pressed)) {
            setters_.setMousePointer(kPointerNoDrop);
            return true;
        }
    } else if (!onHeading || pressed <= grouping_.GroupFactorCount) {
        return false; // wanted, see the header
    }
    setTag(surface_, QString::number(pressed));
    return true;
}

bool HeadingDrag::mayDrag(int col) const {
    return surface_.look().Tag == QString::number(col);
}

void HeadingDrag::showPointer(const SurfaceMouse& mouse) {
    GridSurface::Look look = surface_.look();
    look.MousePointer = kPointerDefault;
    surface_.setLook(look);
    if (!face_.MenusVisible)
        return;
    if (mouse.row != 0)
        setters_.setMousePointer(kPointerDefault);
    else if ((mouse.button & kLeftButton) != 0)
        // a view shows the carried heading's own picture for the custom pointer
        setters_.setMousePointer(isRefused(clicked_.get(), mouse.col) ? kPointerNoDrop : kPointerCustom);
}

bool HeadingDrag::isRefused(int from, int to) const {
    if (!exists(from) || !exists(to))
        return true;
    const bool factor = properties_.ColForTot(from);
    if (factor != properties_.ColForTot(to))
        return true;
    return factor && (isBlank(properties_.ColDataField(from)) || isBlank(properties_.ColDataField(to)));
}

void HeadingDrag::saveWidths() {
    const int count = std::min(surface_.Cols(), columns_.Count());
    for (int c = 0; c < count; ++c)
        columns_.ofGridColumn(c).Width = surface_.ColWidth(c);
}

void HeadingDrag::drop(int from, int to) {
    if (exporting_.ExportRunning)
        return;
    reporting_.run([&] {
        setters_.setMousePointer(kPointerDefault);
        pointer_.setPointer(kPointerDefault);
        saveWidths();
        if (tools_.MenusLocked)
            return;
        clicked_.take(from);
        if (isRefused(from, to) || from == to)
            return;
        move(from, to);
        menuState_.MenuRefresh();
        lifetime_.throwIfDestroyed();
        if (properties_.ColForTot(to))
            askForRefresh();
        else
            surface_.Refresh();
    });
}

/// The surface's column moves before the properties are written by position, and before anybody is asked:
/// a load that follows the answer finds headings and data together.
void HeadingDrag::move(int from, int to) {
    const RedrawOff still(surface_);
    setTag(surface_, {});
    columns_.Move(from + 1, to + 1);
    surface_.setColPosition(from, to);
    for (int c = 0; c < surface_.Cols(); ++c) {
        writeBack(c);
        lifetime_.throwIfDestroyed();
    }
    // A caption typed next is the moved column's. The user has moved no cell: nobody hears of it.
    const SelectionQuiet quiet(notices_);
    surface_.setCol(std::min(to, surface_.Cols() - 1));
    clicked_.take(surface_.Col());
}

/// Hosts that listen hear of the properties that the list says, in its order.
void HeadingDrag::writeBack(int col) {
    enum { Kept, Told };
    const Column column = columns_.ofGridColumn(col);
#define ZKP_WRITE_BACK(Type, Name, Member, Moved)                                                            \
    if constexpr (Moved == Told)                                                                             \
        properties_.set##Name(col, column.Member);
    ZKP_COLUMN_ROWS(ZKP_WRITE_BACK, ZKP_WRITE_BACK)
#undef ZKP_WRITE_BACK
}

void HeadingDrag::askForRefresh() {
    const int answer = boxes_.msgBox(texts::moveFactors(), kAskYesNoCancel);
    lifetime_.throwIfDestroyed();
    if (answer != kAnswerYes)
        return;
    flags_.CheckGroupBy(surface_.Cols());
    lifetime_.throwIfDestroyed();
    refresh_();
}

} // namespace zkp
