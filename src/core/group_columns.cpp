#include "core/group_columns.h"

#include "base/number.h"
#include "base/text.h"

#include <algorithm>

namespace zkp {

void GroupColumns::InsertColumn(int whereisit) {
    pointer_.setPointer(kPointerHourglass);
    if (reporting_.run([&] { insertEmptyColumn(whereisit); }))
        pointer_.setPointer(kPointerDefault);
}

void GroupColumns::insertEmptyColumn(int position) {
    setters_.setCols(surface_.Cols() + 1);
    columns_.Add({}, position + 1);
    columns_.Remove(columns_.Count()); // the one that raising the count appended
    surface_.setColPosition(surface_.Cols() - 1, position);

    const QString blank = QStringLiteral(" ");
    properties_.setColCaption(position, blank);
    properties_.setColDataField(position, blank);
    properties_.setColCalcEuro(position, false);
    properties_.setColWidth(position, 1000);
    properties_.setColAlignment(position, 0);
    properties_.setColCredit(position, false);
    properties_.setColDebit(position, false);
    properties_.setColBalance(position, false);
    properties_.setColTotals(position, false);
    properties_.setColStatic(position, false);
    properties_.setColLR(position, false);
    properties_.setColIndexKey(position, false);
    properties_.setColEditRs(position, blank);
    properties_.setColEditable(position, false);
    properties_.setColEditKind(position, 0);
    properties_.setColEditTag(position, blank);
    properties_.setColEditLength(position, 0);
    properties_.setColEditField1(position, blank);
    properties_.setColEditField2(position, blank);
    surface_.setFixedAlignment(position, 4);
}

void GroupColumns::recallFactors() {
    const std::optional<QString> given = grouping_.givenGroupby;
    flags_.CheckGroupBy(surface_.Cols());
    if (flags_.FindGroupNum(surface_.Cols()) > 0 || !given || isBlank(*given))
        return;
    flags_.recall(*given);
}

void GroupColumns::MakeFixedForGroup() {
    recallFactors();
    if (grouping_.Groupby.isEmpty())
        return;
    const QStringList factors = flags_.takeFactors(); // handlers may change the members
    const int count = toInt16(factors.size());
    for (int i = 0; i < count; ++i) {
        placeFactor(i, factors[i]);
        lifetime_.throwIfDestroyed();
    }
    flags_.dropGiven();
    surface_.setMergeCells(1);
    for (int i = 0; i < std::min(count, surface_.Cols()); ++i)
        surface_.setMergeCol(i, true);
}

/// A column that stands right is left alone. An inserted one takes the mark of a factor over from the
/// column further right that had the same field; that one stays as a plain column.
void GroupColumns::placeFactor(int position, const QString& factor) {
    if (position < surface_.Cols() && sameName(properties_.ColDataField(position), factor)) {
        if (!properties_.ColForTot(position))
            properties_.setColForTot(position, true);
        return;
    }
    InsertColumn(position);
    properties_.setColDataField(position, factor);
    properties_.setColForTot(position, true);
    for (int c = position + 1; c < surface_.Cols(); ++c)
        if (properties_.ColForTot(c) && sameName(properties_.ColDataField(c), factor)) {
            properties_.setColForTot(c, false);
            return;
        }
}

} // namespace zkp
