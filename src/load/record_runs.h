#pragma once

#include "ado/recordset.h"
#include "load/group_sums.h"
#include "surface/cell_binding.h"

#include <QVarLengthArray>

#include <optional>
#include <vector>

namespace zkp {

/// The records of a load by their values, before any of them stands on the surface: where the keys
/// change, and what the figures between sum to. What counts is always the text that a cell would show.
class RecordRuns {
public:
    RecordRuns(const ado::Recordset& records, const std::vector<CellBinding>& cells, const GroupShape& shape,
               const ReportLocale& locale)
        : records_(records)
        , cells_(cells)
        , shape_(shape)
        , locale_(locale)
        , count_(records.RecordCount()) {}

    /// The record at a position (from 0). Texts are made once: those of keys are asked for repeatedly.
    class Record : public GroupRow {
    public:
        Record(const RecordRuns& runs, std::int64_t position)
            : runs_(runs)
            , row_(runs.records_.tableRow(position)) {}
        QString text(int column) const override;
        Decimal number(int column) const override;
        std::optional<NumberFormat> format(int column) const override;

    private:
        const RecordRuns& runs_;
        std::uint32_t row_;
        mutable QVarLengthArray<std::optional<QString>, 8> texts_; // of the first columns
    };

    /// The first position from `from` on whose record has other values than the one at `open` in a column
    /// that breaks; the number of records when none has.
    std::int64_t endOfRun(std::int64_t open, std::int64_t from) const;
    /// The sum of a column's shown figures from one position to before another.
    Decimal sum(int column, std::int64_t from, std::int64_t end) const;

private:
    bool isSameValue(int column, std::uint32_t a, std::uint32_t b) const;
    const CellBinding& cell(int column) const { return cells_.at(static_cast<std::size_t>(column)); }

    const ado::Recordset& records_;
    const std::vector<CellBinding>& cells_;
    GroupShape shape_;
    const ReportLocale& locale_;
    std::int64_t count_;
};

} // namespace zkp
