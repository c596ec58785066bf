#pragma once

#include "core/report_rows.h"

#include <QStringList>

namespace zkp {

/// Cells of a report as other programs take them.
struct CopiedCells {
    QString text; ///< a line a row, cells parted by tabs; empty when there is nothing to copy
    QString html; ///< the same as a table; empty for a block of more than kMostCellsAsHtml cells

    static constexpr std::int64_t kMostCellsAsHtml = 200'000;
};

/// The selected block as it shows or would show, under its headings (one for each column of the surface). A
/// single cell goes alone. Group cells that show as one are one: their text stands in the first of their
/// lines. Hidden columns stay behind, and so do blank rows at the end. In the text a cell that holds a tab or
/// a line end, or begins with a quotation mark, stands in quotation marks, and those in it are doubled.
CopiedCells copySelection(const ReportRows& rows, const QStringList& headings);

/// Puts them on the clipboard; nothing when there are none.
void putOnClipboard(const CopiedCells& cells);

} // namespace zkp
