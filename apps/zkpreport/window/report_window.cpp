#include "window/report_window.h"

#include "base/error.h"
#include "base/texts/columns.h"
#include "host/error_box.h"
#include "widgets/qt_host.h"
#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/message_strip.h"
#include "window/report_colours.h"
#include "window/report_filter.h"
#include "window/report_tools.h"
#include "window/shrinking_list.h"
#include "window/sqlite_file.h"
#include "window/statement_panel.h"
#include "window/template_pane.h"
#include "window/texts.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace zkp::app {

namespace {

constexpr QSize kUsualSize{1280, 800};
constexpr int kUserWidth = 210;

/// While a report loads, keys and clicks wait: one of them might take its control away.
class WindowHost : public QtHost {
public:
    using QtHost::QtHost;
    void runPendingEvents() override { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }
};

} // namespace

ReportWindow::ReportWindow(std::shared_ptr<Host> host)
    : host_(std::make_shared<LoadWatch>(host ? std::move(host) : std::make_shared<WindowHost>(this)))
    , reports_(new ReportListModel(this))
    , reportList_(new QListView)
    , userList_(new ShrinkingList(kUserWidth))
    , rights_(new QLabel)
    , filter_(new FilterLine)
    , groups_(new GroupChoice)
    , saveAction_(new QAction(texts::saveTemplate(), this))
    , saveAsAction_(new QAction(texts::saveTemplateAs(), this))
    , templates_(new TemplatePane(saveAction_, saveAsAction_))
    , sortAction_(new QAction(texts::sortAction(), this))
    , panelToggle_(new QAction(texts::statementToggle(), this))
    , message_(new MessageStrip)
    , place_(new QVBoxLayout)
    , panel_(new StatementPanel)
    , tools_(new ReportTools(*this, *host_,
                             {[this] { return host_->isLettingEventsIn(); }, [this] { reloadReshaped(); }})) {
    setWindowTitle(QStringLiteral("zkpreport"));
    colours_ = palette();
    buildWidgets();
    replaceControl();
    connectWidgets();
    resize(kUsualSize);
}

/// The control goes while the host that it asks still stands.
ReportWindow::~ReportWindow() {
    delete report_;
}

void ReportWindow::connectWidgets() {
    connect(reportList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ReportWindow::reportChosen);
    connect(userList_, &QComboBox::currentIndexChanged, this, &ReportWindow::userChosen);
    connect(filter_, &FilterLine::applied, this, [this](const QString& filter) { openReport(filter); });
    connect(groups_, &GroupChoice::changed, this, [this] {
        replaceControl();
        openReport(filter_->inForce());
    });
    connect(sortAction_, &QAction::triggered, this, &ReportWindow::sortByCurrentColumn);
    connect(panelToggle_, &QAction::toggled, panel_, &QWidget::setVisible);
    host_->began = [this] { tools_->loadBegins(); };
    connect(tools_, &ReportTools::settled, this, &ReportWindow::followControl);
    message_->mayGo = [this] { return isLoaded_; };
    connectTemplates();
}

QString ReportWindow::message() const {
    return message_->text();
}

void ReportWindow::setMessage(const QString& text) {
    message_->tell(text);
}

bool ReportWindow::showDatabase(const QString& named, const FirstReport& first) {
    forgetShape();
    database_ = DatabasePlace(named);
    if (const QString reason = openDatabase(); !reason.isEmpty()) {
        showNoDatabase(reason);
        return false;
    }
    return guarded([&] {
        readDatabase();
        return choose(first);
    });
}

QString ReportWindow::openDatabase() {
    if (!database_.isServer())
        if (const QString reason = whyNoDatabase(database_.file()); !reason.isEmpty())
            return reason;
    try {
        connection_ = database_.open(ado::adModeRead);
        return {};
    } catch (const Error& error) {
        return texts::notOpened(database_.name(), error.description().simplified());
    }
}

void ReportWindow::reconnectDatabase() {
    if (connection_)
        database_.reconnect(*connection_);
}

/// The choices are those of a database without reports.
void ReportWindow::showNoDatabase(const QString& reason) {
    setWindowTitle(QStringLiteral("zkpreport"));
    connection_.reset();
    const QSignalBlocker quietReports(reportList_->selectionModel());
    reports_->setReports({});
    const QSignalBlocker quietUsers(userList_);
    users_.clear();
    userList_->clear();
    groups_->setFields({});
    for (QWidget* choice : {static_cast<QWidget*>(userList_), static_cast<QWidget*>(filter_)})
        choice->setEnabled(false);
    for (QWidget* list : {static_cast<QWidget*>(reportList_), static_cast<QWidget*>(templates_)})
        list->hide();
    for (QAction* action : {saveAction_, saveAsAction_})
        action->setEnabled(false);
    setMessage(reason);
}

void ReportWindow::readDatabase() {
    setWindowTitle(texts::windowTitle({}, {}, database_.name()));
    tools_->watch(*connection_);

    const auto reports = readReports(connection_);
    if (!reports)
        setMessage(texts::noReportsTable());
    else if (reports->empty())
        setMessage(texts::noReports());
    const QSignalBlocker quietReports(reportList_->selectionModel());
    reports_->setReports(reports.value_or(std::vector<ReportEntry>{}));
    users_ = readUsers(connection_);
    const QSignalBlocker quietUsers(userList_);
    userList_->clear();
    for (const UserEntry& user : users_)
        userList_->addItem(user.name);
    user_ = 0;
    userList_->setEnabled(users_.size() > 1);
    filter_->setEnabled(reports_->rowCount() > 0);
    reportList_->setVisible(reports_->rowCount() > 0);
    listTemplates();
}

/// The first report is opened here and not by the choices' signals, so that it is loaded once.
bool ReportWindow::choose(const FirstReport& first) {
    if (reports_->rowCount() == 0)
        return false;
    const int row = first.report.isEmpty() ? 0 : reports_->find(first.report);
    const auto user = std::find_if(users_.begin(), users_.end(),
                                   [&](const UserEntry& entry) { return entry.id == first.user; });
    if (row < 0 || user == users_.end()) {
        setMessage(row < 0 ? texts::noSuchReport(first.report) : texts::noSuchUser(first.user));
        return false;
    }
    {
        const QSignalBlocker quietUsers(userList_);
        user_ = static_cast<int>(user - users_.begin());
        userList_->setCurrentIndex(user_);
        const QSignalBlocker quietReports(reportList_->selectionModel());
        reportList_->setCurrentIndex(reports_->index(row));
    }
    reportList_->setFocus();
    groups_->choose(first.groups, first.isTotals);
    if (!openReport(first.filter))
        return false;
    if (groups_->factors().size() == first.groups.size())
        return true;
    setMessage(texts::noSuchGroup(first.groups.join(u',')));
    return false;
}

const ReportEntry* ReportWindow::chosenReport() const {
    const QModelIndex index = reportList_->currentIndex();
    return index.isValid() ? &reports_->report(index.row()) : nullptr;
}

QString ReportWindow::chosenUser() const {
    const int index = userList_->currentIndex();
    return index < 0 ? QString() : users_[static_cast<std::size_t>(index)].id;
}

bool ReportWindow::openReport(const QString& filter) {
    setMessage({});
    return guarded([&] {
        const ReportEntry* report = chosenReport();
        if (!report)
            return false;
        showTitle();
        reconnectDatabase();
        const ReportFilter checked = reportFilter(*report, connection_, filter);
        if (!checked.isAccepted()) {
            filter_->setText(filter);
            setMessage(checked.refusal);
            return false;
        }
        filter_->setInForce(filter);
        return load(*report, checked.text);
    });
}

/// A loaded control is still that of the report and the user: only its filter is another.
bool ReportWindow::load(const ReportEntry& report, const QString& filter) {
    if (isLoaded_)
        return reload(report, filter);
    return rebuild(report) && tell(loadReport(grid(), *host_, filter));
}

bool ReportWindow::reload(const ReportEntry& report, const QString& filter) {
    keepShape(); // before a failure leaves its marks
    const LoadRecord record = loadReport(grid(), *host_, filter);
    if (!record.isLoaded) {
        isLoaded_ = false;
        rebuild(report);
    }
    return tell(record);
}

bool ReportWindow::rebuild(const ReportEntry& report) {
    replaceControl();
    const QString user = chosenUser();
    if (!readReport(report, user))
        return false;
    prepareReport(grid(), connection_, report, user);
    layOut(user);
    report_->show();
    showRights(user);
    return true;
}

void ReportWindow::showRights(const QString& user) {
    rights_->setText(rightsText(connection_, user));
    rights_->setToolTip(rights_->text());
}

std::vector<DictionaryField> ReportWindow::fieldsOf(const ReportEntry& report, const QString& user) const {
    std::vector<DictionaryField> fields;
    if (!report.dictionary.isEmpty())
        fields = readFields(connection_, report.dictionary, !user.isEmpty());
    markCounts(fields, connection_, report.source);
    return fields;
}

bool ReportWindow::readReport(const ReportEntry& report, const QString& user) {
    if (user.contains(u'\'')) { // identities go into statements as they are
        setMessage(texts::badIdentity(user));
        return false;
    }
    fields_ = fieldsOf(report, user);
    if (fields_.empty()) {
        setMessage(texts::noDictionary(report.title));
        return false;
    }
    groups_->setFields(fields_);
    showFilterKeys();
    return true;
}

bool ReportWindow::tell(const LoadRecord& record) {
    panel_->setRecord(record);
    isLoaded_ = record.isLoaded;
    if (!isLoaded_)
        setMessage(texts::loadFailed());
    else if (database_.isMissing())
        setMessage(texts::fileGone(database_.name())); // the rows come from what the system still keeps of it
    if (isLoaded_ && !groups_->isTotals())
        showSort(grid(), sort_);
    loadFilter_ = record.filter;
    hasLoadedItself_ = false;
    tools_->showReport(report_);
    return isLoaded_;
}

ReportShape ReportWindow::shape() const {
    return {groups_->factors(), groups_->isTotals(), sort_};
}

void ReportWindow::sortIfHeading() {
    const GridSurface& surface = grid().MSFlexGrid1();
    if (surface.MouseRow() >= 0 && surface.MouseRow() < surface.FixedRows())
        sortByCurrentColumn();
}

/// The statement of a totals report has no order of its own.
void ReportWindow::sortByCurrentColumn() {
    const ReportEntry* report = chosenReport();
    if (!isLoaded_ || !report)
        return;
    setMessage({});
    if (groups_->isTotals()) {
        setMessage(texts::totalsKeepOrder());
        return;
    }
    guarded([&] {
        reconnectDatabase();
        const ReportFilter filter = reportFilter(*report, connection_, filter_->inForce());
        return tell(sortReport(grid(), *host_, filter.text, sort_));
    });
}

void ReportWindow::replaceControl() {
    carriesChanges_ = carriesChanges_ || hasChanges();
    keepShape();
    delete report_;
    isLoaded_ = false;
    report_ = makeControl();
    panel_->clear();
    rights_->clear();
}

ZkpGridWidget* ReportWindow::makeControl() {
    auto* control = new ZkpGridWidget(host_);
    control->hide(); // until it has columns
    place_->addWidget(control);
    control->grid().setDesignMode(true); // the user's refresh reads a reshaped report
    control->grid().Picture1().Tools(u"mnuExport").Visible = false; // its command is not ours
    tools_->watch(*control);
    setReportColours(control->grid(), colours_);
    const Events* events = &control->grid().events();
    connect(events, &Events::Click, this, &ReportWindow::sortIfHeading);
    connect(events, &Events::DblClick, this, &ReportWindow::sortIfHeading);
    connect(events, &Events::StartFilling, this, [this] {
        hasLoadedItself_ = true; // unless it turns out to be a load of the window's
        sentByControl_ = connection_ ? connection_->LastStatementSent() : QString();
    });
    connect(events, &Events::PrintCommand, this, [this, control] {
        host_->msgBox(zkp::texts::notThereYet(control->grid().Picture1().Tools(u"mnuPrint").Caption),
                      kMsgBoxInformation, {});
    });
    // A new group factor is coloured at once, and not at some later moment.
    connect(events, &Events::addcolumn, this, [this, control] {
        guarded([&] {
            control->grid().DrawInterface();
            return true;
        });
    });
    connect(events, &Events::MenuSaveTemplate, this, &ReportWindow::saveTemplate);
    connect(events, &Events::MenuSaveTemplateAs, this, &ReportWindow::saveTemplateAs);
    connect(events, &Events::MenuLoadTemplate, templates_, &TemplatePane::focusList);
    return control;
}

void ReportWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !report_)
        return;
    withdrawReportColours(grid(), colours_);
    colours_ = palette();
    fillReportColours(grid(), colours_);
    grid().DrawInterface();
    if (isLoaded_)
        tools_->forgetSteps();
}

void ReportWindow::showFilterKeys() {
    QStringList keys;
    for (const DictionaryField& field : fields_)
        keys += QStringLiteral("%1   %2").arg(field.key, -14).arg(field.caption).toHtmlEscaped();
    filter_->setToolTip(texts::filterTip(keys.join(u'\n')));
}

template <class F>
bool ReportWindow::guarded(F call) {
    try {
        return call();
    } catch (const Error& error) {
        ShowError(*host_, error);
        return false;
    }
}

} // namespace zkp::app
