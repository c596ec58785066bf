#include "interaction/field_tools.h"

#include "base/text.h"
#include "core/paint_scopes.h"
#include "interaction/owner_guard.h"

#include <algorithm>

namespace zkp {

void FieldTools::connect(const std::weak_ptr<void>& owner) {
    lists_ = menu_.listChanged.add(guardedBy(owner, lifetime_, [this](const Tool& tool) {
        if (sameName(tool.Name, u"mnuField"))
            fieldChosen(tool);
    }));
    texts_ = menu_.textChanged.add(guardedBy(owner, lifetime_, [this](const Tool& tool) {
        if (sameName(tool.Name, u"mnuCaption"))
            captionTyped(tool);
    }));
}

bool FieldTools::exists(int col) const {
    return col >= 0 && col < std::min(surface_.Cols(), columns_.Count());
}

/// Nothing when the list of fields, which all controls share, has become shorter meanwhile.
const StatField* FieldTools::chosenField(const Tool& tool) const {
    if (tool.ListIndex < 0 || tool.ListIndex >= static_cast<int>(tools_.FieldIndex.size()))
        return nullptr;
    const int number = tools_.FieldIndex[static_cast<std::size_t>(tool.ListIndex)];
    return number >= 1 && number <= statFields().Count() ? &statFields().Item(number) : nullptr;
}

void FieldTools::fieldChosen(const Tool& tool) {
    const StatField* const chosen = chosenField(tool);
    const int col = surface_.Col();
    if (!chosen || !exists(col) || chosen->DataField == properties_.ColDataField(col))
        return;
    const StatField field = *chosen; // a handler may load another list
    if (!data_.RefreshOnChange)
        blankData(col);
    giveField(col, field);
    lifetime_.throwIfDestroyed();
    if (properties_.ColForTot(col))
        groups_.MakeFixedForGroup();
    driver_.FillGrid();
}

/// The selection goes over the column and comes back.
void FieldTools::blankData(int col) {
    if (surface_.Rows() < 2)
        return;
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    const CellRange before{surface_.Row(), surface_.Col(), surface_.RowSel(), surface_.ColSel()};
    const int fillStyle = surface_.FillStyle();
    surface_.Select(1, col, surface_.Rows() - 1, col);
    surface_.setFillStyle(1);
    surface_.setText({});
    surface_.setFillStyle(fillStyle);
    surface_.Select(before.top, before.left, before.bottom, before.right);
}

/// What takes totals has two decimals.
void FieldTools::giveField(int col, const StatField& field) {
    properties_.setColDataField(col, field.DataField);
    properties_.setColCaption(col, field.Caption);
    properties_.setColAlignment(col, field.Align);
    properties_.setColTotals(col, field.IsTot);
    properties_.setColWidth(col, field.Width.toDouble());
    properties_.setColBalance(col, field.IsTot);
}

void FieldTools::captionTyped(const Tool& tool) {
    if (exists(clicked_.get()))
        properties_.setColCaption(clicked_.get(), tool.Text);
}

} // namespace zkp
