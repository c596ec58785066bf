#include "core/report_rows.h"

#include "base/text.h"
#include "base/texts/rows.h"
#include "core/row_marking.h"
#include "core/state/grouping_state.h"
#include "core/state/source_state.h"

#include <algorithm>

namespace zkp {

/// What DrawInterface paints when it has rows to paint.
bool ReportRows::isPaintedBody(int row) const {
    return source_ && source_->ReportRecordset && surface_->Rows() >= 2 && row >= surface_->FixedRows();
}

int ReportRows::factors() const {
    return grouping_ ? grouping_->GroupFactorCount : 0;
}

/// Sums keep their blank cells, and so does a report of factors alone.
bool ReportRows::marksBlankFactors(int row) const {
    return isPaintedBody(row) && factors() > 0 && hasRowWalk() && !isSumRow(kind(row));
}

Section ReportRows::section(int row, int col) const {
    if (row < surface_->FixedRows())
        return Section::Heading;
    const int rowKind = kind(row);
    if (isSumRow(rowKind) && hasRowWalk())
        return rowKind == ZKPTotals ? Section::Totals : Section::SubTotals;
    return col < factors() ? Section::GroupFactors : Section::Details;
}

QString ReportRows::text(int row, int col) const {
    const QString text = surface_->TextMatrix(row, col);
    const bool mayBeMark = col < factors() && zkp::isBlank(text);
    return mayBeMark && marksBlankFactors(row) ? texts::repeatedValue() : text;
}

/// Later ones lie over earlier ones: the cell as it stands, less the band; its section; its marks.
CellStyle ReportRows::style(int row, int col) const {
    const MarkedStyle cell = surface_->markedStyleAt(row, col);
    if (!source_)
        return cell.style;
    const auto covered = marking_->coveredByBand(row, col, cell.style);
    const StylePatch colours = covered ? covered->colours : StylePatch();
    CellStyle style = patched(patched(cell.style, colours), paintedOn(row, col));
    if (covered && covered->isMark)
        style = patched(style, colours);
    return patched(style, cell.marks);
}

/// What painting writes on the cell. A row of no kind has colours of its section on its factors alone, and
/// a fixed column behind them no font.
StylePatch ReportRows::paintedOn(int row, int col) const {
    const Section of = section(row, col);
    if (of == Section::Heading)
        return source_->ReportRecordset ? fontOf(look(of)) : StylePatch();
    if (!isPaintedBody(row))
        return {};
    if (of != Section::Details)
        return coloursAndFontOf(look(of));
    const CellStyle details = look(of);
    StylePatch patch;
    if (col >= std::min(surface_->FixedCols(), surface_->Cols() - 1))
        patch = fontOf(details);
    if (kind(row) == ZKPSingleRow) {
        patch.backColor = details.backColor;
        patch.foreColor = details.foreColor;
    }
    return patch;
}

bool ReportRows::isRepeatMark(int row, int col, const QString& text) const {
    return section(row, col) == Section::GroupFactors && text == texts::repeatedValue();
}

bool ReportRows::joinsAbove(int row, int col, const QString& text) const {
    return canJoin(row, col) && !zkp::isBlank(text) && this->text(row - 1, col) == text;
}

bool ReportRows::joins(int row, int col, const QString& text, const QString& above) const {
    return canJoin(row, col) && !zkp::isBlank(text) && above == text;
}

/// Fixed rows never merge with those of the body.
bool ReportRows::canJoin(int row, int col) const {
    return row > 0 && row != surface_->FixedRows() && surface_->MergeCells() != 0 && surface_->MergeCol(col);
}

bool ReportRows::isBlank(int row) const {
    return surface_->IsRowBlank(row) && !marksBlankFactors(row);
}

} // namespace zkp
