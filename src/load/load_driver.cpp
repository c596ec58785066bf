#include "load/load_driver.h"

#include "base/number.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "load/empty_recordset.h"
#include "load/field_list.h"
#include "load/source_check.h"

#include <utility>

namespace zkp {

namespace {

constexpr double kNanosecondsPerMs = 1e6;

Error objectNotSet(const QString& source) {
    return Error(kErrObjectNotSet, QStringLiteral("Object variable not set"), source);
}

} // namespace

void LoadDriver::refresh(ErrorSink sink) {
    pointer_.setPointer(kPointerHourglass);
    const ScopeGuard restore([this] {
        pointer_.setPointer(kPointerDefault);
        state_.MousePointer = kPointerDefault;
    });
    const std::vector<Error> failed = failedSourceChecks(state_);
    if (!failed.empty())
        refuse(failed.front());
    for (const Error& error : failed)
        if (sink)
            sink(error);
    if (!failed.empty())
        throw failed.front();
    FillGrid();
}

void LoadDriver::FillGrid() {
    if (loading_) {
        const Error error(kErrIllegalOperation, QStringLiteral("A load is running already."));
        if (!std::exchange(toldOnce_, true))
            reporting_.show(error);
        refuse(error);
        return;
    }
    load();
    tell(outcome());
}

void LoadDriver::refuse(const Error& error) {
    LoadOutcome outcome;
    outcome.result = ZKPLoadRefused;
    outcome.failure = error;
    tell(outcome);
}

/// Whoever listens finds a control that can be loaded again.
void LoadDriver::tell(const LoadOutcome& outcome) {
    state_.throwIfDestroyed();
    last_ = outcome;
    reporting_.unnoted().run([&] {
        listeners_.tell([&](const LoadListener& listener) {
            if (listener.ended && !state_.destroyed)
                listener.ended(outcome);
        });
    });
    state_.throwIfDestroyed();
}

LoadOutcome LoadDriver::outcome() const {
    LoadOutcome outcome = underWay_;
    outcome.built = notes_.built();
    outcome.sent = notes_.sent();
    outcome.failure = notes_.failure();
    if (outcome.failure)
        outcome.result = ZKPLoadFailed;
    return outcome;
}

double LoadDriver::elapsedMs() const {
    return clock_.isValid() ? static_cast<double>(clock_.nsecsElapsed()) / kNanosecondsPerMs : 0;
}

void LoadDriver::load() {
    loading_ = true;
    toldOnce_ = false;
    notes_.begin();
    underWay_ = {};
    underWay_.result = ZKPLoadKeptRows;
    clock_.start();
    const ScopeGuard restore([this] {
        loading_ = false;
        surface_.setRedraw(true);
        pointer_.setPointer(kPointerDefault);
    });
    reporting_.run([this] {
        listeners_.tell([&](const LoadListener& listener) {
            if (listener.begins && !state_.destroyed)
                listener.begins();
        });
        state_.throwIfDestroyed();
        loadRecords();
    });
}

void LoadDriver::loadRecords() {
    fields_.forgetSource();
    surface_.setRedraw(true);
    LoadDictionary();
    if (!state_.RefreshOnChange)
        return; // the dictionary follows, the rows stay

    state_.SavedLeftCol = surface_.LeftCol();
    state_.SavedTopRow = surface_.TopRow();
    if (!MakeRecordset())
        return;
    const std::int64_t records = recordCount();
    underWay_.records = records;
    underWay_.lastRecordMs = underWay_.firstRecordMs;
    pointer_.setPointer(kPointerHourglass);
    sizeSurface(toInt32(static_cast<double>(records)));
    if (records > 0)
        readRows();
    pointer_.setPointer(kPointerDefault);
    selectFirstRow();
    surface_.Refresh();
    underWay_.result = ZKPLoaded;
}

void LoadDriver::LoadDictionary() {
    if (!dictionary_.isNamed())
        return;
    dictionary_.load();
    if (state_.SqlOnRunTime)
        LoadHooks::run(hooks_.FindMaster);
    buildFieldList(*dictionary_.recordset(), state_.TotalForm, statFields());
    LoadHooks::run(hooks_.FieldListChanged);
}

bool LoadDriver::MakeRecordset() {
    if (!state_.TotalForm)
        OpenDetailRecordset();
    else if (hooks_.OpenTotalRecordset)
        hooks_.OpenTotalRecordset();
    else
        throw Error(kErrNotSupported, QStringLiteral("A totals report needs a statement builder."));

    if (!state_.ReportRecordset)
        return false;
    underWay_.firstRecordMs = elapsedMs();
    if (state_.ReportRecordset->RecordCount() == 0) {
        pointer_.setPointer(kPointerDefault);
    } else {
        surface_.setBackColor(surface_.BackColor());
        surface_.setForeColor(surface_.ForeColor());
        pendingEvents_.runPendingEvents();
        state_.throwIfDestroyed();
    }
    return true;
}

/// A failure here has a box of its own and leaves no record source.
void LoadDriver::OpenDetailRecordset() {
    const auto open = [this] {
        LoadHooks::run(hooks_.MakeFixedForGroup);
        if (!state_.ReportRecordset)
            state_.ReportRecordset = std::make_shared<ado::Recordset>();
        if (!state_.Cn)
            throw objectNotSet(QStringLiteral("Cn"));
        const ado::ConnectionPtr connection = state_.Cn;
        const std::int16_t timeout = toInt16(connection->CommandTimeout());
        const ScopeGuard restore([&] { connection->setCommandTimeout(timeout); });
        connection->setCommandTimeout(state_.CommandTimeout);
        openBySourceType();
    };
    reporting_.run(open, [this](const Error& error) {
        state_.ReportRecordset.reset();
        boxes_.msgBox(error.description(), kMsgBoxCritical);
    });
}

void LoadDriver::openBySourceType() {
    switch (state_.SourceType) {
    case ZKP_SQLStatement:
        openText(source_.text(), ado::adOpenStatic);
        break;
    case ZKP_Table_QUERY:
        openText(detailStatement(), ado::adOpenKeyset);
        break;
    case ZKP_RecordSet: {
        const QString text = source_.text();
        const QString sort = state_.ReportRecordset->Sort(); // what sorting by a column has just set
        const auto records = isBlank(text) ? openText(detailStatement(), ado::adOpenKeyset)
                                           : openText(text, ado::adOpenStatic);
        notes_.asking(records->Source(), state_.Cn, [&] { records->Requery(); });
        if (!sort.isEmpty())
            records->setSort(sort);
        break;
    }
    case ZKP_Command:
        openCommand();
        break;
    default:
        break; // nothing is opened; the closed recordset has no record count
    }
}

/// A handler may have taken the recordset away while the statement was built.
ado::RecordsetPtr LoadDriver::openText(const QString& statement, int cursorType) {
    const ado::RecordsetPtr records = state_.ReportRecordset;
    if (!records)
        throw objectNotSet(QStringLiteral("RecordSource"));
    if (records->State() == ado::adStateOpen)
        records->Close();
    notes_.asking(statement, state_.Cn, [&] { records->Open(statement, state_.Cn, cursorType); });
    return records;
}

QString LoadDriver::detailStatement() const {
    if (!hooks_.DetailStatement)
        throw Error(kErrNotSupported, QStringLiteral("A table or query needs a statement builder."));
    return hooks_.DetailStatement();
}

/// The last result of the command that has records becomes the record source.
void LoadDriver::openCommand() {
    const ado::CommandPtr command = state_.ReportCommand;
    if (!command)
        throw objectNotSet(QStringLiteral("RecordSource"));
    command->ActiveConnection = state_.Cn;
    ado::RecordsetPtr last;
    notes_.asking(command->CommandText, state_.Cn, [&] {
        auto result = std::make_shared<ado::Recordset>();
        result->Open(command, ado::adOpenStatic);
        for (; result; result = result->NextRecordset())
            if (result->State() == ado::adStateOpen)
                last = result;
    });
    state_.ReportRecordset = last;
    if (last && last->RecordCount() > 0) {
        last->MoveFirst();
        if (!state_.ProductID.isEmpty() && hooks_.CommandFilter)
            last->setFilter(hooks_.CommandFilter());
    }
}

std::int64_t LoadDriver::recordCount() const {
    const ado::RecordsetPtr records = state_.ReportRecordset;
    if (!records)
        throw objectNotSet(QStringLiteral("RecordSource"));
    if (!state_.SqlOnRunTime)
        return state_.RecCount == -1 ? 0 : records->RecordCount();
    if (!isBlank(state_.RKeyname) && !state_.TotalForm)
        LoadHooks::run(hooks_.RunTimeSQLCounter); // built for its effect on `Filter`; not run, as wanted
    return RecordsetIsEmpty(records, {boxes_, pointer_}) ? 0 : records->RecordCount();
}

void LoadDriver::sizeSurface(int records) {
    surface_.setRows(surface_.FixedRows());
    surface_.setRows(std::max(records + 1, surface_.FixedRows()));
    state_.RowCapacity = records + 1;
    state_.RecCount = records;
}

void LoadDriver::readRows() {
    surface_.setTopRow(std::min(1, surface_.Rows() - 1));
    Tool& count = menu_.Bands(u"BndTemplate").Tools(u"txtRecs");
    count.Text = QString::number(state_.RecCount, 'f', 0) + QStringLiteral("# ");
    menu_.Refresh();
    state_.LoadFinished = false;
    reader_.LoadRows();
    underWay_.lastRecordMs = elapsedMs();
    LoadHooks::run(hooks_.DrawInterface);
    state_.throwIfDestroyed();
}

void LoadDriver::selectFirstRow() {
    const int first = surface_.FixedRows();
    if (surface_.Rows() <= 1 || first >= surface_.Rows() || surface_.RowData(first) != ZKPSingleRow)
        return;
    surface_.setRow(first);
    LoadHooks::run(hooks_.Selectrow);
    state_.throwIfDestroyed();
}

} // namespace zkp
