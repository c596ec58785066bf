#pragma once

#include "surface/prefix_counts.h"
#include "surface/row_id.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace zkp {

/// Consecutive row ids that stand one after the other.
struct RowRun {
    RowId first = 0;
    int count = 0;
    bool operator==(const RowRun&) const = default;
};

/// The order of a surface's rows, apart from the rows: which id stands at which position. Ids stand
/// in runs, runs in blocks of bounded length, and a tree over the blocks finds a position, so that an
/// insertion or a removal costs what it touches and not the number of rows. The trailing rows that
/// nothing was written to have no id; they are a count.
class RowSequence {
public:
    using RunVisitor = std::function<void(const RowRun&)>;

    /// Rows with an id, and all rows.
    int realSize() const { return real_; }
    int size() const { return real_ + blanks_; }
    void setBlanks(int count) { blanks_ = count; }

    /// The id at a position; kNoRow for a trailing blank. The position must be inside.
    RowId at(int position) const {
        if (position >= real_)
            return kNoRow;
        const Cursor& run = locate(position);
        return run.first + static_cast<RowId>(position - run.start);
    }

    /// Puts a run behind the last row that has an id; it takes the place of as many trailing blanks
    /// (and lengthens the sequence when there are fewer).
    void append(const RowRun& run);
    /// The same for one row; mostly its id follows that of the row before, as in a load.
    void appendOne(RowId id) {
        const bool goesOn = cursor_.count > 0 && cursor_.start + cursor_.count == real_ &&
                            cursor_.first + static_cast<RowId>(cursor_.count) == id;
        if (!goesOn)
            return append({id, 1});
        ++blocks_.back().runs.back().count;
        ++blocks_.back().rows;
        counts_.add(blocks_.size() - 1, 1);
        ++cursor_.count;
        ++real_;
        blanks_ -= blanks_ > 0 ? 1 : 0;
    }
    /// Puts a run before the row at `position`, which has an id or is the first trailing blank.
    void insert(int position, const RowRun& run);
    /// Takes rows with an id out and tells which.
    void erase(int position, int count, const RunVisitor& removed);
    /// Puts ids (a permutation of those that stand there) in the place of as many rows.
    void replace(int position, std::span<const RowId> ids);
    /// Drops everything.
    void clear();
    /// Visits the runs of a range of rows with an id, in order.
    void forEachRun(int position, int count, const RunVisitor& visit) const;

    /// How many runs were moved in memory since the last call: what insertions and removals cost.
    std::int64_t takeMoved();
    /// Empty when blocks, counts and tree agree.
    QString inconsistency() const;

private:
    static constexpr std::size_t kMaxRuns = 128;

    struct Block {
        std::vector<RowRun> runs;
        int rows = 0;
    };
    /// The run found last: most reads and writes go on where the one before stood.
    struct Cursor {
        std::size_t block = 0;
        std::size_t run = 0;
        int start = 0; ///< position of the run's first row
        RowId first = 0;
        int count = 0; ///< 0 when there is no cursor
    };

    const Cursor& locate(int position) const {
        const bool inside =
            static_cast<unsigned>(position - cursor_.start) < static_cast<unsigned>(cursor_.count);
        return inside ? cursor_ : search(position);
    }
    const Cursor& search(int position) const;
    bool stepToNextRun(int position) const;
    void splitBlock(std::size_t index);
    void splice(int position, int count, const std::vector<RowRun>& runs, const RunVisitor& removed);
    void putBlocks(std::size_t first, std::size_t last, const std::vector<RowRun>& runs);
    void recount();

    std::vector<Block> blocks_;
    PrefixCounts counts_;
    int real_ = 0;
    int blanks_ = 0;
    mutable Cursor cursor_;
    std::int64_t moved_ = 0;
};

} // namespace zkp
