#pragma once

#include "surface/cell_pages.h"
#include "surface/text_arena.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace zkp {

/// The texts that somebody wrote into cells, by row and column id. They win over what a bound record
/// shows, an empty one too.
class OwnTexts {
public:
    bool has(RowId row, ColumnId column) const { return !refs_.get(row, column).isNone(); }
    /// Nothing when the cell has no text of its own.
    std::optional<QString> text(RowId row, ColumnId column) const;
    void write(RowId row, ColumnId column, QStringView text);
    void erase(RowId row, ColumnId column);
    void clearRows(const RowRun& run);
    void clearRow(RowId row) {
        if (refs_.rowHasAny(row))
            clearRows({row, 1});
    }
    void dropColumn(ColumnId column);
    void clear();
    /// For tests: true when a row from `limit` on has a text.
    bool anyRowFrom(RowId limit) const { return refs_.anyRowFrom(limit); }

private:
    void compactWhenWasteful();

    CellPages<TextRef> refs_;
    TextArena arena_;
};

} // namespace zkp
