#include "window/report_session.h"

#include "widgets/zkp_grid_widget.h"
#include "window/report_colours.h"
#include "window/report_filter.h"
#include "window/report_tools.h"
#include "window/showing_errors.h"
#include "window/sqlite_file.h"
#include "window/texts.h"
#include "window/totals_columns.h"
#include "window/user_list.h"

namespace zkp::app {

ReportSession::ReportSession(std::shared_ptr<Host> host, ReportTools& tools, const QPalette& colours,
                             std::function<void(ZkpGridWidget&)> place)
    : host_(std::move(host))
    , tools_(tools)
    , place_(std::move(place))
    , colours_(colours) {
    tools_.undo.setReload([this] { reloadReshaped(); });
    connect(&tools_.undo, &UndoTool::settled, this, &ReportSession::follow);
    replaceControl();
}

/// The control goes while all that it tells of itself is still heard.
ReportSession::~ReportSession() {
    tools_.undo.setReload({});
    delete control_;
}

ZkpGrid& ReportSession::grid() const {
    return control_->grid();
}

QString ReportSession::openDatabase(const DatabasePlace& database) {
    database_ = database;
    report_.reset();
    user_.clear();
    if (!database_.isServer())
        if (const QString reason = whyNoDatabase(database_.file()); !reason.isEmpty())
            return reason;
    try {
        connection_ = database_.open(ado::adModeRead);
    } catch (const Error& error) {
        return texts::notOpened(database_.name(), error.description().simplified());
    }
    tools_.progress.watch(*connection_);
    return {};
}

void ReportSession::closeDatabase() {
    connection_.reset();
    report_.reset();
    setFields({});
}

void ReportSession::reconnect() {
    if (connection_)
        database_.reconnect(*connection_);
}

void ReportSession::choose(const ReportEntry& report, const QString& user) {
    report_ = report;
    user_ = user;
}

bool ReportSession::open(const QString& filter) {
    Q_EMIT told({});
    return showingErrors(*host_, [&] {
        if (!report_)
            return false;
        Q_EMIT titleChanged();
        reconnect();
        const ReportFilter checked = reportFilter(*report_, connection_, filter);
        if (!checked.isAccepted()) {
            Q_EMIT filterRefused(filter);
            Q_EMIT told(checked.refusal);
            return false;
        }
        filter_ = filter;
        Q_EMIT filterTaken(filter);
        return load(checked.text);
    });
}

void ReportSession::startAnew() {
    forgetShape();
    setGroups({}, false);
    open({});
}

void ReportSession::regroup(const QStringList& factors, bool isTotals) {
    setGroups(factors, isTotals);
    replaceControl();
    open(filter_);
}

void ReportSession::changeUser(const QString& user) {
    user_ = user;
    carriesChanges_ = false; // asked and answered
    tools_.undo.setSaved();
    replaceControl();
    open(filter_);
}

/// A loaded control is still that of the report and the user: only its filter is another.
bool ReportSession::load(const QString& filter) {
    if (isLoaded_)
        return reload(filter);
    return rebuild() && tell(loadReport(grid(), filter));
}

/// One that fails leaves no rows.
bool ReportSession::reload(const QString& filter) {
    keepShape(); // before a failure leaves its marks
    const LoadRecord record = loadReport(grid(), filter);
    if (!record.isLoaded()) {
        isLoaded_ = false;
        rebuild();
    }
    return tell(record);
}

/// A control ready to be loaded, in the shape that the last one had.
bool ReportSession::rebuild() {
    replaceControl();
    if (!readReport())
        return false;
    prepareReport(grid(), connection_, *report_, user_);
    layOut();
    control_->show();
    Q_EMIT rightsChanged(rightsText(connection_, user_));
    return true;
}

std::vector<DictionaryField> ReportSession::fieldsOf(const ReportEntry& report) const {
    std::vector<DictionaryField> fields;
    if (!report.dictionary.isEmpty())
        fields = readFields(connection_, report.dictionary, !user_.isEmpty());
    markCounts(fields, connection_, report.source);
    return fields;
}

bool ReportSession::readReport() {
    if (user_.contains(u'\'')) { // identities go into statements as they are
        Q_EMIT told(texts::badIdentity(user_));
        return false;
    }
    std::vector<DictionaryField> fields = fieldsOf(*report_);
    if (fields.empty()) {
        fields_.clear();
        Q_EMIT told(texts::noDictionary(report_->title));
        return false;
    }
    setFields(std::move(fields));
    return true;
}

/// Of the chosen groups those stay that the fields have.
void ReportSession::setFields(std::vector<DictionaryField> fields) {
    fields_ = std::move(fields);
    setGroups(offeredFactors(fields_, shape_.factors), shape_.isTotals);
    Q_EMIT fieldsChanged();
}

void ReportSession::setGroups(const QStringList& factors, bool isTotals) {
    shape_.factors = factors;
    shape_.isTotals = isTotals && !factors.isEmpty();
}

bool ReportSession::tell(const LoadRecord& record) {
    Q_EMIT loaded(record.outcome);
    isLoaded_ = record.isLoaded();
    if (!isLoaded_)
        Q_EMIT told(texts::loadFailed());
    else if (database_.isMissing())
        Q_EMIT told(
            texts::fileGone(database_.name())); // the rows come from what the system still keeps of it
    if (isLoaded_ && !shape_.isTotals)
        showSort(grid(), shape_.sort);
    loadFilter_ = record.filter;
    hasLoadedItself_ = false;
    tools_.showReport(control_);
    return isLoaded_;
}

void ReportSession::sortIfHeading() {
    const GridSurface& surface = grid().MSFlexGrid1();
    if (surface.MouseRow() >= 0 && surface.MouseRow() < surface.FixedRows())
        sortByCurrentColumn();
}

/// The statement of a totals report has no order of its own.
void ReportSession::sortByCurrentColumn() {
    if (!isLoaded_ || !report_)
        return;
    Q_EMIT told({});
    if (shape_.isTotals) {
        Q_EMIT told(texts::totalsKeepOrder());
        return;
    }
    showingErrors(*host_, [&] {
        reconnect();
        const ReportFilter filter = reportFilter(*report_, connection_, filter_);
        return tell(sortReport(grid(), filter.text, shape_.sort));
    });
}

void ReportSession::setColours(const QPalette& colours) {
    withdrawReportColours(grid(), colours_);
    colours_ = colours;
    fillReportColours(grid(), colours_);
    grid().DrawInterface();
    if (isLoaded_)
        tools_.undo.begin(); // the shapes before have other colours
}

void ReportSession::reloadReshaped() {
    Q_EMIT told({});
    reconnect();
    shape_.sort = sortOf(grid());
    tell(loadReport(grid(), loadFilter_));
}

/// The control may have been reshaped, or have loaded by itself: what stands around it follows.
void ReportSession::follow() {
    if (!isLoaded_)
        return;
    showingErrors(*host_, [this] {
        followChanges();
        return true;
    });
}

/// The control writes over its filter whenever it loads; what it loads by itself the next time begins with
/// the user's again.
void ReportSession::followChanges() {
    if (grid().Filter() != loadFilter_)
        grid().setFilter(loadFilter_);
    const QStringList factors = factorsOf(grid());
    if (factors != shape_.factors) {
        setGroups(factors, grid().TotalForm());
        setFields(std::move(fields_));
    }
    if (!hasLoadedItself_)
        return;
    hasLoadedItself_ = false;
    if (grid().TotalForm())
        formatFigures(grid());
    shape_.sort = sortOf(grid());
    if (!grid().TotalForm())
        showSort(grid(), shape_.sort);
    Q_EMIT loaded(grid().lastLoad());
}

} // namespace zkp::app
