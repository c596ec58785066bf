#pragma once

#include "surface/grid_surface.h"
#include "surface/style.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace zkp::test {

/// The texts that one layout shows, column by column (by key) and record by record.
using NaiveLayout = std::map<int, std::vector<QString>>;

/// What a surface is to do, done the plainest way: rows and columns are lists, every row keeps its
/// own texts, and a style is found by going back through the list of all writes.
class NaiveSurface {
public:
    NaiveSurface();

    int rows() const { return static_cast<int>(rows_.size()); }
    int cols() const { return static_cast<int>(cols_.size()); }
    int fixedRows = 1;
    int fixedCols = 0;

    void setRows(int count);
    void setCols(int count);
    void insertRow(int at, const QStringList& texts);
    void removeRow(int at);
    void clear();
    void moveColumn(int from, int to);

    QString text(int row, int col) const;
    void write(int row, int col, const QString& text) {
        rows_.at(index(row)).own[cols_.at(index(col))] = text;
    }
    int tag(int row) const { return rows_.at(index(row)).tag; }
    void setTag(int row, int tag) { rows_.at(index(row)).tag = tag; }
    std::optional<int> height(int row) const { return rows_.at(index(row)).height; }
    void setHeight(int row, int twips) { rows_.at(index(row)).height = twips; }
    int columnKey(int col) const { return cols_.at(index(col)); }

    int addLayout(NaiveLayout layout);
    void bind(int row, int layout, int record, int tag);

    /// Puts the rows from `top` on in the given order (of positions from 0).
    void reorder(int top, const std::vector<int>& order);

    void styleBlock(const CellRange& block, const StylePatch& patch);
    void styleBody(const StylePatch& patch) { log_.push_back({Target::Body, 0, 0, patch}); }
    void styleFixed(const StylePatch& patch) { log_.push_back({Target::Fixed, 0, 0, patch}); }
    void styleAll(const StylePatch& patch) { log_.push_back({Target::All, 0, 0, patch}); }
    CellStyle style(int row, int col) const;

private:
    struct Row {
        int key = 0;
        int tag = 0;
        std::optional<int> height;
        int layout = -1;
        int record = 0;
        std::map<int, QString> own; // by column key
    };
    enum class Target { All, Fixed, Body, Column, Row, Cell };
    struct Write {
        Target target;
        int row; // key
        int col; // key
        StylePatch patch;
    };

    static std::size_t index(int i) { return static_cast<std::size_t>(i); }
    Row newRow();
    bool reaches(const Write& write, int row, int col) const;

    std::vector<Row> rows_;
    std::vector<int> cols_; // keys
    std::vector<NaiveLayout> layouts_;
    std::vector<Write> log_;
    int nextKey_ = 0;
};

} // namespace zkp::test
