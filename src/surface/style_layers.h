#pragma once

#include "surface/cell_pages.h"
#include "surface/style_pool.h"

#include <array>
#include <cstdint>
#include <vector>

namespace zkp {

/// The styles of a surface as layers: whole surface, fixed part, body, column (its body cells), row,
/// cell. Each attribute of a cell comes from the layer that was written last. A write costs the one
/// place it goes to, whatever lies beneath.
///
/// Writes that follow one another and cannot cover each other's cells share a number: thousands of
/// rows that get the same look one by one share one set of attributes.
class StyleLayers {
public:
    void writeSurface(const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    void writeFixed(const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    void writeBody(const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    void writeColumn(ColumnId column, const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    void writeRow(RowId row, const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    void writeCell(RowId row, ColumnId column, const StylePatch& patch,
                   StyleOrigin origin = StyleOrigin::Mark);

    /// A row without an id (kNoRow) has neither row nor cell styles. A cell of a fixed row or column
    /// is of the fixed part, not of the body; columns have their style in all rows but the fixed ones.
    CellStyle resolve(RowId row, ColumnId column, bool fixedRow, bool fixedColumn) const {
        return resolveMarked(row, column, fixedRow, fixedColumn).style;
    }
    /// The same with what marks gave of it. Stands until the next question or write.
    const MarkedStyle& resolveMarked(RowId row, ColumnId column, bool fixedRow, bool fixedColumn) const;

    void clearRows(const RowRun& run);
    void dropColumn(ColumnId column);

    std::int64_t takeWrites();
    /// Different sets of attributes kept, for tests.
    std::size_t setCount() const { return pool_.size(); }
    /// Empty when every place names a set that is there, and no row from `rowLimit` on has one.
    QString inconsistency(RowId rowLimit) const;

private:
    enum class Layer : std::uint8_t { None, Surface, Fixed, Body, Column, Row, Cell };
    static constexpr std::size_t kPlaces = 5; // layers that one cell can lie under
    using Places = std::array<StyleSetId, kPlaces>;
    struct Resolved {
        bool filled = false;
        bool fixedPart = false;
        Places places{};
        MarkedStyle style;
    };

    /// The write before, which block by block and row by row is mostly repeated.
    struct Patched {
        std::uint64_t stamp = 0; ///< 0: none
        StyleSetId from = 0;
        StylePatch patch;
        StyleOrigin origin = StyleOrigin::Mark;
        StyleSetId to = 0;
    };

    /// Numbers the next write: a new number when it could cover what was written under this one.
    void stampFor(Layer layer, bool meetsOtherLayer = false);
    StyleSetId patched(StyleSetId id, const StylePatch& patch, StyleOrigin origin);
    MarkedStyle compose(const Places& places, bool fixedPart) const;
    void collectWhenWasteful();

    StylePool pool_;
    StyleSetId surface_ = 0;
    StyleSetId fixed_ = 0;
    StyleSetId body_ = 0;
    std::vector<StyleSetId> columns_;
    CellPages<StyleSetId> rows_; // all in column 0
    CellPages<StyleSetId> cells_;
    Patched last_;
    std::uint64_t stamp_ = 0;
    Layer lastLayer_ = Layer::None;
    std::size_t collectAt_ = 4096;
    std::int64_t writes_ = 0;
    mutable std::array<Resolved, 64> resolved_;
};

} // namespace zkp
