#pragma once

#include "base/decimal.h"
#include "base/format.h"

#include <QString>

#include <optional>
#include <vector>

namespace zkp {

/// A grid row as the group arithmetic reads it: the text of each cell and the number that the text is
/// (0 when it is none).
class GroupRow {
public:
    virtual ~GroupRow() = default;
    virtual QString text(int column) const = 0;
    virtual Decimal number(int column) const = 0;
    /// The format whose text of the number is the cell's text, where that is known without making it.
    virtual std::optional<NumberFormat> format(int) const { return std::nullopt; }
};

/// The shape of a grouped report: which columns are factors and which are summed.
struct GroupShape {
    int columns = 0;
    int factors = 0;         ///< columns 0 to factors - 1
    bool totalForm = false;  ///< each record already is a group of the innermost factor
    std::vector<int> summed; ///< ascending

    /// The deepest level that breaks, -1 when none does.
    int lastLevel() const { return totalForm ? factors - 2 : factors - 1; }
    /// Whether the factors break into groups at all.
    bool hasGroups() const { return factors > 0 && !(totalForm && factors == 1); }
    /// Whether a factor is summed as well.
    bool sumsKeys() const { return !summed.empty() && summed.front() < factors; }
};

/// The arithmetic of groups, keys in and sums out, with no grid around it: the open group of each level
/// with its keys and running sums, and the grand sums. It has the rows of the accumulator grid:
///
///     0                 nothing
///     k + 1             level k: keys in columns 0 to k, sums in the summed columns
///     factors + 1       grand sums, " " in the others
///
/// Cells are texts, as in a grid; sums are kept as exact decimals beside. A group opens with the record's
/// own texts and counts on from there. Where a factor is also summed, key and sum share one cell, as wanted.
class GroupSums {
public:
    /// Blank cells for a report of that shape.
    void clear(const GroupShape& shape, const ReportLocale& locale);
    /// The first record opens a group on every level and the grand sums.
    void start(const GroupRow& first);
    const GroupShape& shape() const { return shape_; }
    int rows() const { return shape_.factors + 2; }

    /// The grand sums take every record but the first, which opened them.
    void addToGrandSums(const GroupRow& record);
    /// The record goes on in all open groups.
    void addToGroups(const GroupRow& record);
    /// What a run of such records sums to in a column, added to the open groups and the grand sum at once.
    void addRun(int column, const Decimal& sum);

    /// True when the record's keys, joined by blanks, are not those of the open groups. Keys that hold
    /// blanks can be equal when joined though they differ; then nothing breaks, as wanted.
    bool breaksAt(const GroupRow& record) const;
    /// The same for the key of one level alone.
    bool isKeyOpen(int level, const GroupRow& record) const;
    /// The record opens new groups from a level inwards, and counts in those further out.
    void reset(int level, const GroupRow& record);

    /// A cell's text, sums as plain numbers in the locale.
    QString text(int row, int column) const;
    Decimal number(int row, int column) const { return at(row, column).number; }
    Decimal grandSum(int column) const { return number(rows() - 1, column); }

private:
    /// A cell taken over from a record keeps its text until something is added to it.
    struct Cell {
        QString text;
        Decimal number;
        bool isSum = false;
        std::optional<NumberFormat> format = {}; ///< makes the text, until it is a sum
    };

    Cell& at(int row, int column);
    const Cell& at(int row, int column) const;
    static Cell taken(const GroupRow& record, int column, bool withNumber);
    static void add(Cell& cell, const Decimal& number);
    void open(int level, const GroupRow& record);

    GroupShape shape_;
    ReportLocale locale_;
    std::vector<Cell> cells_; // row by row
};

} // namespace zkp
