#include "window/report_window.h"

#include "widgets/qt_host.h"
#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/message_strip.h"
#include "window/report_tools.h"
#include "window/showing_errors.h"
#include "window/shrinking_list.h"
#include "window/statement_panel.h"
#include "window/template_controller.h"
#include "window/template_pane.h"
#include "window/texts.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QTimer>
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
    : host_(host ? std::move(host) : std::make_shared<WindowHost>(this))
    , reports_(new ReportListModel(this))
    , reportList_(new QListView)
    , userList_(new ShrinkingList(kUserWidth))
    , rights_(new QLabel)
    , filter_(new FilterLine)
    , groups_(new GroupChoice)
    , sortAction_(new QAction(texts::sortAction(), this))
    , panelToggle_(new QAction(texts::statementToggle(), this))
    , message_(new MessageStrip)
    , place_(new QVBoxLayout)
    , panel_(new StatementPanel) {
    tools_ = std::make_unique<ReportTools>(*this);
    session_ = std::make_unique<ReportSession>(host_, *tools_, palette(),
                                               [this](ZkpGridWidget& control) { placeControl(control); });
    templates_ = std::make_unique<TemplateController>(*session_, *reports_, host_);
    setWindowTitle(QStringLiteral("zkpreport"));
    buildWidgets();
    connectWidgets();
    connectSession();
    resize(kUsualSize);
}

/// What the session's control does on its way out finds the widgets still there.
ReportWindow::~ReportWindow() {
    templates_.reset();
    session_.reset();
}

void ReportWindow::placeControl(ZkpGridWidget& control) {
    place_->addWidget(&control);
    const Events* events = &control.grid().events();
    connect(events, &Events::MenuSaveTemplate, this, [this] { templates_->save(); });
    connect(events, &Events::MenuSaveTemplateAs, this, [this] { templates_->saveAs(); });
    connect(events, &Events::MenuLoadTemplate, this, [this] { templates_->pane().focusList(); });
}

void ReportWindow::connectWidgets() {
    connect(reportList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ReportWindow::reportChosen);
    connect(userList_, &QComboBox::currentIndexChanged, this, &ReportWindow::userChosen);
    connect(filter_, &FilterLine::applied, this, [this](const QString& filter) { session_->open(filter); });
    connect(groups_, &GroupChoice::changed, this,
            [this] { session_->regroup(groups_->factors(), groups_->isTotals()); });
    connect(sortAction_, &QAction::triggered, this, [this] { session_->sortByCurrentColumn(); });
    connect(panelToggle_, &QAction::toggled, panel_, &QWidget::setVisible);
    connect(&templates_->pane(), &TemplatePane::opened, this,
            [this](const QString& name) { templates_->open(name, reportList_->currentIndex().row()); });
    message_->mayGo = [this] { return !session_ || session_->isLoaded(); };
    for (QAction* action : templates_->actions())
        addAction(action); // the keys work wherever the focus is
}

void ReportWindow::connectSession() {
    ReportSession* session = session_.get();
    connect(session, &ReportSession::told, this, &ReportWindow::setMessage);
    connect(session, &ReportSession::titleChanged, this, &ReportWindow::showTitle);
    connect(session, &ReportSession::fieldsChanged, this, &ReportWindow::showFields);
    connect(session, &ReportSession::filterTaken, filter_, &FilterLine::setInForce);
    connect(session, &ReportSession::filterRefused, filter_, &QLineEdit::setText);
    connect(session, &ReportSession::rightsChanged, this, [this](const QString& rights) {
        rights_->setText(rights);
        rights_->setToolTip(rights);
    });
    connect(session, &ReportSession::loaded, panel_, &StatementPanel::setOutcome);
    connect(session, &ReportSession::emptied, this, [this] {
        panel_->clear();
        rights_->clear();
    });
    connect(templates_.get(), &TemplateController::told, this, &ReportWindow::setMessage);
    connect(templates_.get(), &TemplateController::opened, this, &ReportWindow::showChosenReport);
}

QString ReportWindow::message() const {
    return message_->text();
}

void ReportWindow::setMessage(const QString& text) {
    message_->tell(text);
}

bool ReportWindow::showDatabase(const QString& named, const FirstReport& first) {
    session_->forgetShape();
    if (const QString reason = session_->openDatabase(DatabasePlace(named)); !reason.isEmpty()) {
        showNoDatabase(reason);
        return false;
    }
    return showingErrors(*host_, [&] {
        readDatabase();
        return choose(first);
    });
}

/// The choices are those of a database without reports.
void ReportWindow::showNoDatabase(const QString& reason) {
    const QSignalBlocker quietReports(reportList_->selectionModel());
    reports_->setReports({});
    const QSignalBlocker quietUsers(userList_);
    users_.clear();
    userList_->clear();
    session_->closeDatabase();
    setWindowTitle(QStringLiteral("zkpreport"));
    for (QWidget* choice : {static_cast<QWidget*>(userList_), static_cast<QWidget*>(filter_)})
        choice->setEnabled(false);
    reportList_->hide();
    templates_->close();
    setMessage(reason);
}

void ReportWindow::readDatabase() {
    const ado::ConnectionPtr& connection = session_->connection();
    setWindowTitle(texts::windowTitle({}, {}, session_->database().name()));

    const auto reports = readReports(connection);
    if (!reports)
        setMessage(texts::noReportsTable());
    else if (reports->empty())
        setMessage(texts::noReports());
    const QSignalBlocker quietReports(reportList_->selectionModel());
    reports_->setReports(reports.value_or(std::vector<ReportEntry>{}));
    users_ = readUsers(connection);
    const QSignalBlocker quietUsers(userList_);
    userList_->clear();
    for (const UserEntry& user : users_)
        userList_->addItem(user.name);
    user_ = 0;
    userList_->setEnabled(users_.size() > 1);
    filter_->setEnabled(reports_->rowCount() > 0);
    reportList_->setVisible(reports_->rowCount() > 0);
    templates_->list();
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
    session_->choose(reports_->report(row), user->id);
    session_->setGroups(first.groups, first.isTotals);
    if (!session_->open(first.filter))
        return false;
    if (session_->shape().factors.size() == first.groups.size())
        return true;
    setMessage(texts::noSuchGroup(first.groups.join(u',')));
    return false;
}

const ReportEntry* ReportWindow::chosenReport() const {
    const QModelIndex index = reportList_->currentIndex();
    return index.isValid() ? &reports_->report(index.row()) : nullptr;
}

/// The list asks from within its own handling of a click, and marks a row when that is over; until there is
/// an answer it shows the report that is open.
void ReportWindow::reportChosen(const QModelIndex& now, const QModelIndex& before) {
    if (!templates_->hasChanges()) {
        startReport();
        return;
    }
    QTimer::singleShot(0, this, [this, now = now.row(), before = before.row()] {
        showChosenReport(before);
        if (!templates_->mayLeaveShape())
            return;
        showChosenReport(now);
        startReport();
    });
}

void ReportWindow::showChosenReport(int row) {
    const QSignalBlocker quiet(reportList_->selectionModel());
    reportList_->setCurrentIndex(reports_->index(row));
    reportList_->viewport()->update();
}

void ReportWindow::startReport() {
    if (const ReportEntry* report = chosenReport())
        session_->choose(*report, session_->user());
    session_->startAnew();
}

void ReportWindow::userChosen(int index) {
    const auto show = [this](int shown) {
        const QSignalBlocker quiet(userList_);
        userList_->setCurrentIndex(shown);
    };
    show(user_);
    if (!templates_->mayLeaveShape())
        return;
    show(index);
    user_ = index;
    session_->changeUser(index < 0 ? QString() : users_[static_cast<std::size_t>(index)].id);
}

void ReportWindow::closeEvent(QCloseEvent* event) {
    if (templates_->mayLeaveShape())
        event->accept();
    else
        event->ignore();
}

void ReportWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && session_)
        session_->setColours(palette());
}

void ReportWindow::showTitle() {
    const auto& report = session_->report();
    setWindowTitle(texts::windowTitle(session_->templateName(), report ? report->title : QString(),
                                      session_->database().name()));
}

void ReportWindow::showFields() {
    groups_->choose(session_->shape().factors, session_->shape().isTotals);
    groups_->setFields(session_->fields());
    QStringList keys;
    for (const DictionaryField& field : session_->fields())
        keys += QStringLiteral("%1   %2").arg(field.key, -14).arg(field.caption).toHtmlEscaped();
    filter_->setToolTip(texts::filterTip(keys.join(u'\n')));
}

} // namespace zkp::app
