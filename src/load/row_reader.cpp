#include "load/row_reader.h"

#include "base/error.h"
#include "base/number.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "base/texts.h"

#include <algorithm>

namespace zkp {

void RowReader::LoadRows() {
    if (!state_.ReportRecordset || state_.ReportRecordset->State() == ado::adStateClosed)
        return;

    const ScopeGuard restore([this] {
        plan_.reset();
        state_.PaintReady = state_.ContentSeen = true;
        surface_.setRedraw(true);
        host_.setPointer(kPointerDefault);
    });
    try {
        Q_EMIT events_.StartFilling();
        state_.throwIfDestroyed();
        host_.setPointer(kPointerHourglass);
        surface_.setRedraw(false);
        const ado::RecordsetPtr records = state_.ReportRecordset; // a handler may just have given another
        if (records && !(records->Bof() && records->Eof()))
            readRecords(records);
        surface_.Refresh();
    } catch (const ControlDestroyed&) {
        throw;
    } catch (...) {
        state_.throwIfDestroyed();
        host_.msgBox(texts::readFailed(), kMsgBoxCritical);
    }
    Q_EMIT events_.StopFillIng();
    state_.throwIfDestroyed();
    if (state_.LoadFinished)
        removeBlankRows();
}

void RowReader::readRecords(const ado::RecordsetPtr& records) {
    records->MoveFirst();
    double r = surface_.FixedRows() - 1;
    makePlan(*records);
    while (!records->Eof()) {
        if (!plan_->isCurrent(*records, columns_, surface_, state_))
            makePlan(*records);
        if (canBindTheRest(r)) {
            bindTheRest(*records, r);
            break;
        }
        r += 1;
        readRecord(records, r);
        sumRecord(*records, r);
        records->MoveNext();
    }
    if (state_.TotalsNeeded)
        finishTotals(r);
}

void RowReader::readRecord(const ado::RecordsetPtr& records, double& r) {
    const int row = toInt32(r);
    surface_.bindRow(row, plan_->layout(), records->currentTableRow(), ZKPSingleRow);
    for (const CellPlan::Percent& percent : plan_->percents())
        surface_.setTextMatrix(row, percent.column,
                               hooks_.PercentOfParent ? hooks_.PercentOfParent(percent.field, row)
                                                      : QString());

    RetrieveRowArgs args{r, records};
    Q_EMIT events_.RetrieveRow(args);
    state_.throwIfDestroyed();
    r = args.rw;
}

/// Keyed to grid row 1 and not to the first record, as wanted: a surface with other than one fixed row
/// has no totals.
void RowReader::sumRecord(ado::Recordset& records, double& r) {
    if (r == 1) {
        state_.LoadFinished = false;
        LoadHooks::run(hooks_.InitTotalsGrid);
    } else if (state_.TotalsNeeded && records.AbsolutePosition() <= records.RecordCount()) {
        LoadHooks::run(hooks_.AccumulateRow, r);
    }
}

void RowReader::makePlan(ado::Recordset& records) {
    const int lastField = plan_ && plan_->refersTo(records) ? plan_->lastField() : -1;
    plan_.emplace(records, properties_, columns_, surface_, state_, lastField);
}

/// From the row after the first on, when each further row would be written the same way unseen.
bool RowReader::canBindTheRest(double r) const {
    return r >= 1 && !state_.TotalsNeeded && plan_->percents().empty() && !events_.isRetrieveRowHeard();
}

void RowReader::bindTheRest(ado::Recordset& records, double r) {
    const int firstRow = toInt32(r) + 1;
    const std::int64_t firstPosition = records.AbsolutePosition() - 1;
    const std::int64_t left = records.RecordCount() - firstPosition;
    const auto room = static_cast<std::int64_t>(surface_.Rows() - firstRow);
    const int count = toInt32(static_cast<double>(std::min(left, room)));
    surface_.bindRows(
        firstRow, count, plan_->layout(),
        [&records, firstPosition](int i) { return records.tableRow(firstPosition + i); }, ZKPSingleRow);
    if (left > room)
        throw Error(kErrInvalidRow, QStringLiteral("Invalid Row value"), QStringLiteral("LoadRows"));
    records.MoveLast();
    records.MoveNext();
}

/// The blank row behind the last record forces the last group breaks.
void RowReader::finishTotals(double r) {
    r += 1;
    LoadHooks::run(hooks_.AccumulateRow, r);
    LoadHooks::run(hooks_.FinishTotals);
    state_.LoadFinished = true;
}

/// The row above a removed one is passed over, as wanted; the last row always stays.
void RowReader::removeBlankRows() {
    for (int i = surface_.Rows() - 1; i >= 1; --i) {
        if (i == surface_.Rows() - 1 || !isBlankRow(i))
            continue;
        surface_.RemoveItem(i);
        --i;
    }
}

bool RowReader::isBlankRow(int row) const {
    for (int c = 0; c < surface_.Cols(); ++c)
        if (!isBlank(surface_.TextMatrix(row, c)))
            return false;
    return true;
}

} // namespace zkp
