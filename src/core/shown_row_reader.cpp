#include "core/shown_row_reader.h"

#include <utility>

namespace zkp {

ShownRowReader::ShownRowReader(const ReportRows& rows, std::vector<int> cols)
    : rows_(rows)
    , cols_(std::move(cols)) {
    now_.cells.resize(cols_.size());
    before_.cells.resize(cols_.size());
}

const ShownRow& ShownRowReader::read(int row) {
    std::swap(now_, before_);
    now_.row = -1; // until it has been read
    now_.kind = rows_.kind(row);
    for (std::size_t place = 0; place < cols_.size(); ++place)
        readCell(row, place);
    now_.row = row;
    return now_;
}

void ShownRowReader::readCell(int row, std::size_t place) {
    const int col = cols_[place];
    QString text = rows_.text(row, col);
    const bool joins = before_.row >= 0 && before_.row == row - 1
                           ? rows_.joins(row, col, text, before_.cells[place].text)
                           : rows_.joinsAbove(row, col, text);
    ShownCell& cell = now_.cells[place];
    cell.col = col;
    cell.style = rows_.style(row, col);
    cell.section = rows_.section(row, col);
    cell.joinsAbove = joins;
    cell.isRepeatMark = rows_.isRepeatMark(row, col, text);
    cell.text = std::move(text);
}

} // namespace zkp
