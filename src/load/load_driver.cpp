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
        setters_.setMousePointer(kPointerDefault);
    });
    const std::vector<Error> failed = failedSourceChecks(source_.state());
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
    lifetime_.throwIfDestroyed();
    last_ = outcome;
    reporting_.unnoted().run([&] {
        listeners_.tell([&](const LoadListener& listener) {
            if (listener.ended && !lifetime_.destroyed)
                listener.ended(outcome);
        });
    });
    lifetime_.throwIfDestroyed();
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
            if (listener.begins && !lifetime_.destroyed)
                listener.begins();
        });
        lifetime_.throwIfDestroyed();
        loadRecords();
    });
}

void LoadDriver::loadRecords() {
    statements_.fields.forgetSource();
    surface_.setRedraw(true);
    LoadDictionary();
    if (!data_.RefreshOnChange)
        return; // the dictionary follows, the rows stay

    painted_.take(surface_);
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
    if (!statements_.dictionary.isNamed())
        return;
    statements_.dictionary.load();
    if (data_.SqlOnRunTime)
        statements_.masterTable.FindMaster();
    buildFieldList(*statements_.dictionary.recordset(), data_.TotalForm, statFields());
    LoadHooks::run(hooks_.FieldListChanged);
}

bool LoadDriver::MakeRecordset() {
    if (!data_.TotalForm)
        OpenDetailRecordset();
    else
        statements_.dispatch.OpenTotalRecordset();

    if (!source_.get())
        return false;
    underWay_.firstRecordMs = elapsedMs();
    if (source_.get()->RecordCount() == 0) {
        pointer_.setPointer(kPointerDefault);
    } else {
        surface_.setBackColor(surface_.BackColor());
        surface_.setForeColor(surface_.ForeColor());
        pendingEvents_.runPendingEvents();
        lifetime_.throwIfDestroyed();
    }
    return true;
}

/// A failure here has a box of its own and leaves no record source.
void LoadDriver::OpenDetailRecordset() {
    const auto open = [this] {
        groups_.MakeFixedForGroup();
        source_.ready();
        if (!source_.state().Cn)
            throw objectNotSet(QStringLiteral("Cn"));
        const ado::ConnectionPtr connection = source_.state().Cn;
        const std::int16_t timeout = toInt16(connection->CommandTimeout());
        const ScopeGuard restore([&] { connection->setCommandTimeout(timeout); });
        connection->setCommandTimeout(data_.CommandTimeout);
        openBySourceType();
    };
    reporting_.run(open, [this](const Error& error) {
        source_.hold({});
        boxes_.msgBox(error.description(), kMsgBoxCritical);
    });
}

void LoadDriver::openBySourceType() {
    switch (source_.state().SourceType) {
    case ZKP_SQLStatement:
        openText(source_.text(), ado::adOpenStatic);
        break;
    case ZKP_Table_QUERY:
        openText(statements_.dispatch.DetailStatement(), ado::adOpenKeyset);
        break;
    case ZKP_RecordSet: {
        const QString text = source_.text();
        const QString sort = source_.get()->Sort(); // what sorting by a column has just set
        const auto records = isBlank(text)
                                 ? openText(statements_.dispatch.DetailStatement(), ado::adOpenKeyset)
                                 : openText(text, ado::adOpenStatic);
        notes_.asking(records->Source(), source_.state().Cn, [&] { records->Requery(); });
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
    const ado::RecordsetPtr records = source_.get();
    if (!records)
        throw objectNotSet(QStringLiteral("RecordSource"));
    if (records->State() == ado::adStateOpen)
        records->Close();
    notes_.asking(statement, source_.state().Cn,
                  [&] { records->Open(statement, source_.state().Cn, cursorType); });
    return records;
}

/// The last result of the command that has records becomes the record source.
void LoadDriver::openCommand() {
    const ado::CommandPtr command = source_.state().ReportCommand;
    if (!command)
        throw objectNotSet(QStringLiteral("RecordSource"));
    command->ActiveConnection = source_.state().Cn;
    ado::RecordsetPtr last;
    notes_.asking(command->CommandText, source_.state().Cn, [&] {
        auto result = std::make_shared<ado::Recordset>();
        result->Open(command, ado::adOpenStatic);
        for (; result; result = result->NextRecordset())
            if (result->State() == ado::adStateOpen)
                last = result;
    });
    source_.hold(last);
    if (last && last->RecordCount() > 0) {
        last->MoveFirst();
        if (!statements_.inputs.identity.ProductID.isEmpty())
            last->setFilter(statements_.hierarchy.recordsetFilter());
    }
}

std::int64_t LoadDriver::recordCount() const {
    const ado::RecordsetPtr records = source_.get();
    if (!records)
        throw objectNotSet(QStringLiteral("RecordSource"));
    if (!data_.SqlOnRunTime)
        return load_.RecCount == -1 ? 0 : records->RecordCount();
    if (!isBlank(statements_.inputs.master.RKeyname) && !data_.TotalForm)
        statements_.runTime.RunTimeSQLCounter(); // built for its effect on `Filter`; not run, as wanted
    return RecordsetIsEmpty(records, {boxes_, pointer_}) ? 0 : records->RecordCount();
}

void LoadDriver::sizeSurface(int records) {
    surface_.setRows(surface_.FixedRows());
    surface_.setRows(std::max(records + 1, surface_.FixedRows()));
    load_.makeRoom(records);
}

void LoadDriver::readRows() {
    surface_.setTopRow(std::min(1, surface_.Rows() - 1));
    Tool& count = menu_.Bands(u"BndTemplate").Tools(u"txtRecs");
    count.Text = QString::number(load_.RecCount, 'f', 0) + QStringLiteral("# ");
    menu_.Refresh();
    load_.beginTotals();
    reader_.LoadRows();
    underWay_.lastRecordMs = elapsedMs();
    LoadHooks::run(hooks_.DrawInterface);
    lifetime_.throwIfDestroyed();
}

void LoadDriver::selectFirstRow() {
    const int first = surface_.FixedRows();
    if (surface_.Rows() <= 1 || first >= surface_.Rows() || surface_.RowData(first) != ZKPSingleRow)
        return;
    surface_.setRow(first);
    marking_.Selectrow();
    lifetime_.throwIfDestroyed();
}

} // namespace zkp
