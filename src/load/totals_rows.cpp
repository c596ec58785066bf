#include "load/totals_rows.h"

#include "base/format.h"
#include "base/number.h"
#include "base/scope_guard.h"
#include "core/section_style.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr int kAppendedTotals = -1; // not a ZKPRowKind
constexpr int kNobodysTag = 90;

} // namespace

void TotalsRows::FinishTotals(bool rowsAreAsCounted) {
    surface_.RemoveItem(surface_.Rows() - 1);
    load_.dropRow();
    const int last = surface_.Rows() - 1;
    for (int c = 0; c < sums_.shape().columns; ++c)
        surface_.setTextMatrix(last, c, totalText(c, rowsAreAsCounted));
    surface_.setRowData(last, ZKPTotals);
    LoadHooks::run(hooks_.DrawInterface);
    PaintTotalsRows();
}

QString TotalsRows::totalText(int c, bool rowsAreAsCounted) const {
    const Column& column = columns_.ofGridColumn(c);
    const int grandSums = sums_.rows() - 1;
    if (!column.Totals)
        return sums_.text(grandSums, c);
    const Decimal grand = sums_.number(grandSums, c);
    if (column.Balance)
        return formatNumber(grand, NumberFormat::Grouped2, surface_.locale());
    const bool stands = grand.isZero() || (rowsAreAsCounted && grand.units());
    return formatNumber(stands ? grand : sumOfRecords(c),
                        data_.EuroVer ? NumberFormat::Grouped2 : NumberFormat::Grouped0, surface_.locale());
}

Decimal TotalsRows::sumOfRecords(int c) const {
    Decimal sum;
    for (int row = 1; row < surface_.Rows(); ++row)
        if (surface_.RowData(row) == ZKPSingleRow)
            sum += surface_.shownNumber(row, c).value_or(Decimal());
    return sum;
}

void TotalsRows::PaintTotalsRows() {
    const bool redraw = surface_.Redraw();
    const ScopeGuard restore([&] { surface_.setRedraw(redraw); });
    surface_.setRedraw(false);
    const int lastCol = surface_.Cols() - 1;

    const StylePatch subtotals = coloursAndFontOf(styleOf(Section::SubTotals, sections_, surface_));
    if (lastCol >= 1) // column 0 keeps the look of its group
        for (int row = surface_.Rows() - 1; row >= surface_.FixedRows(); --row)
            if (surface_.RowData(row) == ZKPSubTotals)
                surface_.applyStyle({row, 1, row, lastCol}, subtotals, StyleOrigin::Section);
    const StylePatch totals = coloursAndFontOf(styleOf(Section::Totals, sections_, surface_));
    surface_.applyStyle({surface_.Rows() - 1, 0, surface_.Rows() - 1, lastCol}, totals, StyleOrigin::Section);
    seekContent();
}

void TotalsRows::seekContent() {
    for (int row = 0; row < surface_.Rows(); ++row)
        if (!surface_.IsRowBlank(row)) {
            notices_.seeContent();
            return;
        }
}

void TotalsRows::AppendTotalsRow() {
    surface_.AddItem({});
    const int last = surface_.Rows() - 1;
    const StylePatch colours = coloursOf(styleOf(Section::Totals, sections_, surface_));
    surface_.applyStyle({last, 0, last, surface_.Cols() - 1}, colours, StyleOrigin::Section);
    surface_.setRowData(last, kAppendedTotals);
}

void TotalsRows::CalcTotalsOnThisColumn(int clmn) {
    if (surface_.RowData(surface_.Rows() - 1) != kAppendedTotals)
        AppendTotalsRow();
    double sum = 0;
    for (int row = 1; row < surface_.Rows(); ++row)
        if (surface_.RowData(row) != kAppendedTotals)
            sum += val(surface_.TextMatrix(row, clmn));
    surface_.setTextMatrix(surface_.Rows() - 1, clmn, surface_.locale().doubleText(sum));
}

int TotalsRows::FindTotalsRow() const {
    int found = 0;
    for (int row = surface_.Rows() - 1; row >= 1; --row)
        if (surface_.RowData(row) == kNobodysTag)
            found = row;
    return found;
}

} // namespace zkp
