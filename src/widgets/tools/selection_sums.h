#pragma once

#include "surface/grid_surface.h"

#include <vector>

namespace zkp {

/// Adds up the numbers that a block of cells shows, a few cells at a time. Rows of subtotals and totals
/// count in a block of nothing else: beside the rows that they sum they would count these twice. Hidden
/// columns don't count.
class SelectionSums {
public:
    explicit SelectionSums(const GridSurface& surface)
        : surface_(surface) {}

    void start(const CellRange& block);
    /// Looks at so many cells at most; true when all are done. Ends early when rows went away.
    bool walk(int cells);

    bool isDone() const { return left_ == 0; }
    std::int64_t numbers() const { return counted().numbers; }
    const Decimal& sum() const { return counted().sum; }
    /// How much has been looked at, in hundredths.
    int percent() const;
    /// Sum, count and average in the surface's locale; empty when there is no number. The sum has all its
    /// decimals; the average is rounded to as many, at least two. Says so when rows were left out.
    QString text() const;

private:
    struct Part {
        std::int64_t cells = 0;
        std::int64_t numbers = 0;
        Decimal sum;
    };
    void add(int row, int col);
    const Part& counted() const { return details_.cells > 0 ? details_ : summaries_; }

    const GridSurface& surface_;
    CellRange block_;
    std::vector<int> cols_;
    std::int64_t total_ = 0;
    std::int64_t left_ = 0;
    Part details_;
    Part summaries_;
};

/// A number with grouping and all its decimals, two at least where it has any.
QString exactText(const Decimal& number, const ReportLocale& locale);
/// A sum divided by a count, rounded half away from zero to the sum's decimals, two at least.
QString averageText(const Decimal& sum, std::int64_t count, const ReportLocale& locale);

} // namespace zkp
