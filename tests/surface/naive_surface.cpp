#include "surface/naive_surface.h"

namespace zkp::test {

NaiveSurface::NaiveSurface() {
    setCols(2);
    setRows(2);
}

NaiveSurface::Row NaiveSurface::newRow() {
    Row row;
    row.key = nextKey_++;
    return row;
}

void NaiveSurface::setRows(int count) {
    while (rows() < count)
        rows_.push_back(newRow());
    rows_.resize(index(count));
}

void NaiveSurface::setCols(int count) {
    while (cols() < count)
        cols_.push_back(nextKey_++);
    cols_.resize(index(count));
}

void NaiveSurface::insertRow(int at, const QStringList& texts) {
    rows_.insert(rows_.begin() + at, newRow());
    for (int col = 0; col < cols() && col < texts.size(); ++col)
        write(at, col, texts[col]);
}

void NaiveSurface::removeRow(int at) {
    rows_.erase(rows_.begin() + at);
}

void NaiveSurface::clear() {
    for (Row& row : rows_) {
        row.own.clear();
        row.tag = 0;
        row.layout = -1;
    }
}

void NaiveSurface::moveColumn(int from, int to) {
    const int key = cols_.at(index(from));
    cols_.erase(cols_.begin() + from);
    cols_.insert(cols_.begin() + to, key);
}

QString NaiveSurface::text(int row, int col) const {
    const Row& r = rows_.at(index(row));
    const int key = cols_.at(index(col));
    if (const auto own = r.own.find(key); own != r.own.end())
        return own->second;
    if (r.layout < 0)
        return {};
    const NaiveLayout& layout = layouts_.at(index(r.layout));
    const auto column = layout.find(key);
    return column == layout.end() ? QString() : column->second.at(index(r.record));
}

int NaiveSurface::addLayout(NaiveLayout layout) {
    layouts_.push_back(std::move(layout));
    return static_cast<int>(layouts_.size()) - 1;
}

void NaiveSurface::bind(int row, int layout, int record, int tag) {
    Row& r = rows_.at(index(row));
    r.own.clear();
    r.layout = layout;
    r.record = record;
    r.tag = tag;
}

void NaiveSurface::reorder(int top, const std::vector<int>& order) {
    std::vector<Row> sorted;
    for (const int i : order)
        sorted.push_back(rows_.at(index(top + i)));
    std::copy(sorted.begin(), sorted.end(), rows_.begin() + top);
}

/// All body rows, when there are several, stand for the body; otherwise whole rows, else cells.
void NaiveSurface::styleBlock(const CellRange& block, const StylePatch& patch) {
    const bool wide = block.left == 0 && block.right == cols() - 1;
    const bool tall = block.top <= fixedRows && block.bottom == rows() - 1 && rows() - fixedRows >= 2;
    const bool wholeBody = tall && block.left <= fixedCols && block.right == cols() - 1 && fixedCols < cols();
    const auto colKey = [&](int col) { return cols_.at(index(col)); };
    if (wholeBody)
        log_.push_back({Target::Body, 0, 0, patch});
    for (int col = block.left; tall && col <= block.right; ++col)
        if (!wholeBody || col < fixedCols)
            log_.push_back({Target::Column, 0, colKey(col), patch});
    for (int row = block.top; row <= block.bottom; ++row) {
        if (tall && row >= fixedRows)
            break;
        const int key = rows_.at(index(row)).key;
        if (wide)
            log_.push_back({Target::Row, key, 0, patch});
        for (int col = block.left; !wide && col <= block.right; ++col)
            log_.push_back({Target::Cell, key, colKey(col), patch});
    }
}

bool NaiveSurface::reaches(const Write& write, int row, int col) const {
    const int rowKey = rows_.at(index(row)).key;
    const int colKey = cols_.at(index(col));
    const bool fixed = row < fixedRows || col < fixedCols;
    switch (write.target) {
    case Target::All:
        return true;
    case Target::Fixed:
        return fixed;
    case Target::Body:
        return !fixed;
    case Target::Column:
        return row >= fixedRows && write.col == colKey;
    case Target::Row:
        return write.row == rowKey;
    case Target::Cell:
        return write.row == rowKey && write.col == colKey;
    }
    return false;
}

CellStyle NaiveSurface::style(int row, int col) const {
    CellStyle style;
    if (row < fixedRows || col < fixedCols) {
        style.backColor = systemColor(kSysButtonFace);
        style.foreColor = systemColor(kSysButtonText);
    }
    for (const Write& write : log_) {
        if (!reaches(write, row, col))
            continue;
        const StylePatch& patch = write.patch;
        style.backColor = patch.backColor.value_or(style.backColor);
        style.foreColor = patch.foreColor.value_or(style.foreColor);
        style.fontName = patch.fontName.value_or(style.fontName);
        style.fontSize = patch.fontSize.value_or(style.fontSize);
        style.bold = patch.bold.value_or(style.bold);
        style.italic = patch.italic.value_or(style.italic);
        style.underline = patch.underline.value_or(style.underline);
        style.strikethru = patch.strikethru.value_or(style.strikethru);
    }
    return style;
}

} // namespace zkp::test
