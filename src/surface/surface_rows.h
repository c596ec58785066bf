#pragma once

#include "surface/row_sequence.h"
#include "surface/row_table.h"

#include <cstdint>
#include <span>
#include <unordered_set>
#include <vector>

namespace zkp {

/// The rows of a surface in their order, with what is known of each besides texts and styles. Positions
/// must be inside, unless it is said otherwise. Who keeps more by a row's id is told of rows that go.
class SurfaceRows {
public:
    using Forget = RowSequence::RunVisitor;
    static constexpr int kHeight = 255; // twips

    int size() const { return order_.size(); }
    bool has(int row) const { return static_cast<unsigned>(row) < static_cast<unsigned>(size()); }
    /// kNoRow for a trailing blank.
    RowId id(int row) const { return order_.at(row); }
    /// The row's id; a trailing blank (and the blanks before it) become rows with an id.
    RowId touch(int row) {
        const int missing = row + 1 - order_.realSize();
        if (missing == 1) { // what a load does with every record
            const RowId id = table_.allocateOne();
            order_.appendOne(id);
            return id;
        }
        if (missing > 1)
            order_.append(table_.allocate(missing));
        return order_.at(row);
    }
    const RowRecord& at(RowId id) const { return table_.at(id); }
    const RowRecord& recordOf(int row) const;
    /// The record of a row that is about to be changed.
    RowRecord& write(RowId id) { return table_.write(id); }

    /// Rows come and go at the end. The first `fixed` rows usually stay.
    void setCount(int count, int fixed, const Forget& forget);
    /// A blank row before that one, or at the end.
    void insert(int row);
    void remove(int row, const Forget& forget);
    /// Puts the rows from `first` on in the order of these ids, which are theirs.
    void reorder(int first, std::span<const RowId> ids);
    /// The ids of rows that all have one.
    std::vector<RowId> ids(int first, int count) const;
    void forEachRun(int first, int count, const RowSequence::RunVisitor& visit) const {
        order_.forEachRun(first, count, visit);
    }
    /// Counts whatever moves, adds or removes rows.
    std::uint64_t orderChanges() const { return orderChanges_; }

    int height(int row) const;
    /// Of -1 as the row: of all rows, present and to come. A negative height is the default.
    void setHeight(int row, int twips);
    bool isMerged(int row) const;
    void setMerged(int row, bool merged);

    /// Record, layout and tag of all rows back to none.
    void unbindAll() { table_.unbindAll(); }
    template <class F>
    void changeLayouts(F f) {
        table_.changeLayouts(f);
    }

    void countTouched(int rows = 1) { touched_ += rows; }
    std::int64_t takeTouched();
    std::int64_t takeCopied() { return order_.takeMoved(); }
    /// Ids below this one are or were in use.
    RowId limit() const { return table_.limit(); }
    /// Empty when order and table agree and no row has a layout above `layouts`.
    QString inconsistency(std::size_t layouts) const;

private:
    void dropBody(int fixed, const Forget& forget);
    void removeRun(int first, int count, const Forget& forget);

    RowSequence order_;
    RowTable table_;
    std::unordered_set<RowId> merged_;
    int height_ = kHeight; // of rows without a height of their own
    std::uint64_t orderChanges_ = 0;
    std::int64_t touched_ = 0;
};

} // namespace zkp
