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
    const int pressed = state_.LastClickedCol;
    const bool onHeading = surface_.MouseRow() == 0;
    setTag(surface_, {});
    if (onHeading && surface_.MouseCol() < 0)
        return true; // beside the columns
    if (state_.TotalForm && onHeading) {
        if (!exists(pressed))
            return true;
        if (properties_.Colcnt(pressed)) {
            state_.MousePointer = kPointerNoDrop;
            return true;
        }
    } else if (!onHeading || pressed <= state_.GroupFactorCount) {
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
    if (!state_.MenusVisible)
        return;
    if (mouse.row != 0)
        state_.MousePointer = kPointerDefault;
    else if ((mouse.button & kLeftButton) != 0)
        // a view shows the carried heading's own picture for the custom pointer
        state_.MousePointer = isRefused(state_.LastClickedCol, mouse.col) ? kPointerNoDrop : kPointerCustom;
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
    if (state_.ExportRunning)
        return;
    reporting_.run([&] {
        state_.MousePointer = kPointerDefault;
        pointer_.setPointer(kPointerDefault);
        saveWidths();
        if (state_.MenusLocked)
            return;
        state_.LastClickedCol = from;
        if (isRefused(from, to) || from == to)
            return;
        move(from, to);
        control_.MenuRefresh();
        state_.throwIfDestroyed();
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
        state_.throwIfDestroyed();
    }
    // A caption typed next is the moved column's. The user has moved no cell: nobody hears of it.
    const SelectionQuiet quiet(state_);
    surface_.setCol(std::min(to, surface_.Cols() - 1));
    state_.LastClickedCol = surface_.Col();
}

/// Hosts that listen hear of every property of every column, in this order.
void HeadingDrag::writeBack(int col) {
    const Column column = columns_.ofGridColumn(col);
    properties_.setColAlignment(col, column.Alignment);
    properties_.setColBalance(col, column.Balance);
    properties_.setColCaption(col, column.Caption);
    properties_.setColCredit(col, column.Credit);
    properties_.setColDataField(col, column.Datafield);
    properties_.setColDebit(col, column.Debit);
    properties_.setColTotals(col, column.Totals);
    properties_.setColStatic(col, column.Stat_ic);
    properties_.setColLR(col, column.lR);
    properties_.setColForTot(col, column.ForTot);
    properties_.setColIndexKey(col, column.Index_Key);
    properties_.setColcnt(col, column.cnt);
    properties_.setColWidth(col, column.Width);
    properties_.setColEditRs(col, column.EditRs);
    properties_.setColEditKind(col, column.EditKind);
    properties_.setColEditTag(col, column.EditTag);
    properties_.setColEditLength(col, column.EditLength);
    properties_.setColEditField1(col, column.EditField1);
    properties_.setColEditField2(col, column.EditField2);
    properties_.setColEditable(col, column.Editable);
}

void HeadingDrag::askForRefresh() {
    const int answer = boxes_.msgBox(texts::moveFactors(), kAskYesNoCancel);
    state_.throwIfDestroyed();
    if (answer != kAnswerYes)
        return;
    flags_.CheckGroupBy(surface_.Cols());
    state_.throwIfDestroyed();
    control_.refresh();
}

} // namespace zkp
