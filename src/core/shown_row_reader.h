#pragma once

#include "core/report_rows.h"

#include <vector>

namespace zkp {

/// A cell as it should be read. The flags hold for a group factor whose value repeats: it shows as one cell
/// with the one above, or as the mark "----", or both.
struct ShownCell {
    int col = -1;
    QString text;
    CellStyle style;
    Section section = Section::Details;
    bool joinsAbove = false; ///< of the row above on the surface, which a page may not hold
    bool isRepeatMark = false;
};

struct ShownRow {
    int row = -1;
    int kind = 0; ///< its `RowData`
    std::vector<ShownCell> cells;
};

/// Reads whole rows, some of the columns of each. A row that follows the one read before it costs its own
/// cells: no text is made twice. After a jump the cells above are made as well, of columns that merge. One
/// reader is for a report that doesn't change meanwhile.
class ShownRowReader {
public:
    /// The columns in the order wanted; hidden ones are the caller's to leave out.
    ShownRowReader(const ReportRows& rows, std::vector<int> cols);

    /// The row stands until the next one is read.
    const ShownRow& read(int row);

private:
    void readCell(int row, std::size_t place);

    ReportRows rows_;
    std::vector<int> cols_;
    ShownRow now_;
    ShownRow before_;
};

} // namespace zkp
