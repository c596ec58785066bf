#include "load/row_reader.h"

#include "base/error_in_flight.h"
#include "base/number.h"
#include "base/scope_guard.h"
#include "base/texts/failures.h"
#include "load/record_runs.h"

#include <algorithm>

namespace zkp {

void RowReader::LoadRows() {
    if (!source_.ReportRecordset || source_.ReportRecordset->State() == ado::adStateClosed)
        return;
    if (reading_)
        throw Error(kErrIllegalOperation, QStringLiteral("Rows are being read already."),
                    QStringLiteral("LoadRows"));
    reading_ = true;

    const ScopeGuard restore([this] {
        plan_.reset();
        hasTotals_ = reading_ = false;
        notices_.hear();
        notices_.seeContent();
        surface_.setRedraw(true);
        pointer_.setPointer(kPointerDefault);
    });
    percentages_.tellFailuresAgain();
    const auto read = [this] {
        Q_EMIT events_.StartFilling();
        lifetime_.throwIfDestroyed();
        pointer_.setPointer(kPointerHourglass);
        surface_.setRedraw(false);
        const ado::RecordsetPtr records = source_.ReportRecordset; // a handler may just have given another
        if (records && !(records->Bof() && records->Eof()))
            readRecords(records);
        surface_.Refresh();
    };
    reporting_.run(read, [this](const Error&) { boxes_.msgBox(texts::readFailed(), kMsgBoxCritical); });
    Q_EMIT events_.StopFillIng();
    lifetime_.throwIfDestroyed();
    if (load_.isFinished())
        removeBlankRows();
}

void RowReader::readRecords(const ado::RecordsetPtr& records) {
    records->MoveFirst();
    double r = surface_.FixedRows() - 1; // a handler may leave any number
    makePlan(*records);
    while (!records->Eof()) {
        if (!plan_->isCurrent(*records, columns_, surface_, data_))
            makePlan(*records);
        if (int row = toInt32(r); canBindTheRest(*records, row)) {
            bindTheRest(*records, row);
            r = row;
            break;
        }
        r += 1;
        readRecord(records, r);
        sumRecord(*records, r);
        records->MoveNext();
    }
    if (hasTotals_)
        finishTotals(toInt32(r));
}

void RowReader::readRecord(const ado::RecordsetPtr& records, double& r) {
    const int row = toInt32(r);
    surface_.bindRow(row, plan_->layout(), records->currentTableRow(), ZKPSingleRow);
    for (const CellPlan::Percent& percent : plan_->percents())
        surface_.setTextMatrix(row, percent.column, percentages_.PercentOfParent(percent.field, row));

    RetrieveRowArgs args{r, records};
    Q_EMIT events_.RetrieveRow(args);
    lifetime_.throwIfDestroyed();
    r = args.rw;
}

/// Keyed to grid row 1 and not to the first record, as wanted: a surface with other than one fixed row
/// has no totals.
void RowReader::sumRecord(ado::Recordset& records, double& r) {
    if (r == 1) {
        load_.beginTotals();
        unseen_ = !events_.isRetrieveRowHeard();
        hasTotals_ = groups_.InitTotalsGrid(!unseen_);
    } else if (hasTotals_ && records.AbsolutePosition() <= records.RecordCount()) {
        const int row = toInt32(r);
        int moved = row;
        groups_.AccumulateRow(moved);
        r += moved - row;
    }
}

void RowReader::makePlan(ado::Recordset& records) {
    const int lastField = plan_ && plan_->refersTo(records) ? plan_->lastField() : -1;
    plan_.emplace(records, properties_, columns_, surface_, data_, lastField);
}

/// From the row after the first on, when each further row would be written the same way unseen.
bool RowReader::canBindTheRest(const ado::Recordset& records, int r) const {
    const std::int64_t left = records.RecordCount() - (records.AbsolutePosition() - 1);
    const int spare = hasTotals_ ? 2 : 0; // the rows behind the last record
    return r >= 1 && left <= surface_.Rows() - 1 - r - spare && plan_->percents().empty() &&
           !events_.isRetrieveRowHeard() && !(hasTotals_ && groups_.sums().shape().sumsKeys());
}

void RowReader::bindTheRest(ado::Recordset& records, int& r) {
    if (hasTotals_)
        sumTheRest(records, r);
    else
        bindRun(records, records.AbsolutePosition() - 1, records.RecordCount(), r);
    records.MoveLast();
    records.MoveNext();
}

/// Run by run of records with the same keys as the record that opened the groups. The record behind a
/// run counts by itself, since it may break groups.
void RowReader::sumTheRest(const ado::Recordset& records, int& r) {
    const RecordRuns runs(records, plan_->cells(), groups_.sums().shape(), surface_.locale());
    const std::int64_t count = records.RecordCount();
    std::int64_t bound = records.AbsolutePosition() - 1;
    std::int64_t open = bound - 1;
    for (std::int64_t counted = bound; bound < count; counted = open + 1) {
        const std::int64_t end = runs.endOfRun(open, counted);
        for (const int c : groups_.sums().shape().summed)
            groups_.sums().addRun(c, runs.sum(c, counted, end));
        bindRun(records, bound, end, r);
        if (end == count)
            return;
        int next = r + 1;
        groups_.takeRecord(RecordRuns::Record(runs, end), next);
        r = next - 1;
        bound = open = end;
    }
}

void RowReader::bindRun(const ado::Recordset& records, std::int64_t from, std::int64_t end, int& r) {
    const auto count = static_cast<int>(end - from);
    surface_.bindRows(
        r + 1, count, plan_->layout(), [&](int i) { return records.tableRow(from + i); }, ZKPSingleRow);
    r += count;
}

/// The blank row behind the last record forces the last group breaks.
void RowReader::finishTotals(int r) {
    ++r;
    groups_.AccumulateRow(r);
    totals_.FinishTotals(unseen_);
    load_.finishTotals();
}

/// The row above a removed one is passed over, as wanted; the last row always stays.
void RowReader::removeBlankRows() {
    for (int i = surface_.Rows() - 1; i >= 1; --i) {
        if (i == surface_.Rows() - 1 || !surface_.IsRowBlank(i))
            continue;
        surface_.RemoveItem(i);
        --i;
    }
}

} // namespace zkp
