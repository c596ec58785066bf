#include "window/report_window.h"

#include "base/error.h"
#include "support/utility.h"
#include "widgets/qt_host.h"
#include "window/filter_line.h"
#include "window/report_filter.h"
#include "window/report_loader.h"
#include "window/statement_panel.h"
#include "window/texts.h"

#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>

namespace zkp::app {

namespace {

constexpr QSize kUsualSize{1280, 800};
constexpr int kListWidth = 118;
constexpr int kUserWidth = 210;
constexpr int kPanelHeight = 150;
constexpr int kMargin = 4;

QLabel* makeLabel(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

ReportWindow::ReportWindow(std::shared_ptr<Host> host)
    : host_(std::make_shared<LoadWatch>(host ? std::move(host) : std::make_shared<QtHost>(this)))
    , reports_(new ReportListModel(this))
    , reportList_(new QListView)
    , userList_(new QComboBox)
    , rights_(new QLabel)
    , filter_(new FilterLine)
    , panelToggle_(new QAction(texts::statementToggle(), this))
    , message_(new QLabel)
    , place_(new QVBoxLayout)
    , panel_(new StatementPanel) {
    setWindowTitle(QStringLiteral("zkpreport"));
    buildWidgets();
    replaceControl();
    connectWidgets();
    resize(kUsualSize);
}

/// The control goes while the host that it asks still stands.
ReportWindow::~ReportWindow() {
    delete report_;
}

void ReportWindow::buildWidgets() {
    reportList_->setModel(reports_);
    reportList_->setObjectName(QStringLiteral("reports"));
    reportList_->setAccessibleName(texts::reports());
    reportList_->setFrameShape(QFrame::NoFrame);
    reportList_->setTextElideMode(Qt::ElideRight);
    reportList_->setSpacing(1);
    message_->setObjectName(QStringLiteral("message"));
    message_->setContentsMargins(kMargin, 0, kMargin, kMargin);
    message_->setWordWrap(true);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = message_->font();
    bold.setBold(true);
    message_->setFont(bold);
    auto* place = new QWidget;
    place->setLayout(place_);
    place_->setContentsMargins({});

    auto* report = new QWidget;
    auto* column = new QVBoxLayout(report);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeChoices());
    column->addWidget(message_);
    column->addWidget(place, 1);

    auto* rows = new QSplitter(Qt::Vertical);
    rows->addWidget(report);
    rows->addWidget(panel_);
    rows->setStretchFactor(0, 1);
    rows->setSizes({kUsualSize.height() - kPanelHeight, kPanelHeight});
    auto* columns = new QSplitter(Qt::Horizontal);
    columns->addWidget(reportList_);
    columns->addWidget(rows);
    columns->setStretchFactor(1, 1);
    columns->setSizes({kListWidth, kUsualSize.width() - kListWidth});
    for (QSplitter* splitter : {rows, columns})
        splitter->setHandleWidth(3);
    setCentralWidget(columns);
    panel_->hide();
    message_->hide();
}

QWidget* ReportWindow::makeChoices() {
    userList_->setObjectName(QStringLiteral("users"));
    userList_->setFixedWidth(kUserWidth);
    rights_->setObjectName(QStringLiteral("rights"));
    filter_->setObjectName(QStringLiteral("filter"));
    panelToggle_->setCheckable(true);
    panelToggle_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    panelToggle_->setToolTip(texts::statementToggleTip());
    addAction(panelToggle_); // the keys work wherever the focus is
    auto* toggle = new QToolButton;
    toggle->setDefaultAction(panelToggle_);
    toggle->setAutoRaise(true);
    toggle->setFocusPolicy(Qt::TabFocus);

    auto* choices = new QWidget;
    auto* row = new QHBoxLayout(choices);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kMargin);
    row->addWidget(makeLabel(texts::userLabel(), userList_));
    row->addWidget(userList_);
    row->addWidget(rights_);
    row->addSpacing(2 * kMargin);
    row->addWidget(makeLabel(texts::filterLabel(), filter_));
    row->addWidget(filter_, 1);
    row->addWidget(toggle);
    return choices;
}

void ReportWindow::connectWidgets() {
    connect(reportList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        replaceControl();
        widths_.clear();
        openReport({});
    });
    connect(userList_, &QComboBox::currentIndexChanged, this, [this] {
        replaceControl();
        openReport(filter_->inForce());
    });
    connect(filter_, &FilterLine::applied, this, [this](const QString& filter) { openReport(filter); });
    connect(panelToggle_, &QAction::toggled, panel_, &QWidget::setVisible);
}

QString ReportWindow::message() const {
    return message_->text();
}

void ReportWindow::setMessage(const QString& text) {
    message_->setText(text);
    message_->setVisible(!text.isEmpty());
}

bool ReportWindow::showDatabase(const QString& file, const FirstReport& first) {
    return guarded([&] {
        readDatabase(file);
        return choose(first);
    });
}

void ReportWindow::readDatabase(const QString& file) {
    database_ = QFileInfo(file).fileName();
    setWindowTitle(texts::windowTitle({}, database_));
    connection_ = std::make_shared<ado::Connection>();
    connection_->setMode(ado::adModeRead);
    connection_->Open(QStringLiteral("sqlite:%1").arg(file));

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
    userList_->setEnabled(users_.size() > 1);
    filter_->setEnabled(reports_->rowCount() > 0);
    reportList_->setVisible(reports_->rowCount() > 0);
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
        userList_->setCurrentIndex(static_cast<int>(user - users_.begin()));
        const QSignalBlocker quietReports(reportList_->selectionModel());
        reportList_->setCurrentIndex(reports_->index(row));
    }
    reportList_->setFocus();
    return openReport(first.filter);
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
        setWindowTitle(texts::windowTitle(report->title, database_));
        const UserFilter checked = reportFilter(*report, connection_, filter);
        if (!checked.isAccepted()) {
            filter_->setText(filter);
            setMessage(checked.failure);
            return false;
        }
        filter_->setInForce(filter);
        return load(*report, checked.text);
    });
}

bool ReportWindow::load(const ReportEntry& report, const QString& filter) {
    replaceControl();
    const QString user = chosenUser();
    if (user.contains(u'\'')) { // identities go into statements as they are
        setMessage(texts::badIdentity(user));
        return false;
    }
    fields_.clear();
    if (!report.dictionary.isEmpty())
        fields_ = readFields(connection_, report.dictionary, !user.isEmpty());
    if (fields_.empty()) {
        setMessage(texts::noDictionary(report.title));
        return false;
    }
    showFilterKeys();
    prepareReport(grid(), connection_, report, fields_, user);
    restoreWidths();
    report_->show();
    rights_->setText(rightsText(connection_, user));
    const LoadRecord record = loadReport(grid(), *host_, filter);
    panel_->setRecord(record);
    if (!record.isLoaded)
        setMessage(texts::loadFailed());
    return record.isLoaded;
}

void ReportWindow::replaceControl() {
    keepWidths();
    delete report_;
    report_ = new ZkpGridWidget(host_);
    report_->hide(); // until it has columns
    place_->addWidget(report_);
    panel_->clear();
    rights_->clear();
}

void ReportWindow::keepWidths() {
    for (int column = 0; report_ && column < grid().Cols(); ++column)
        widths_[grid().ColDataField(column)] = grid().ColWidth(column);
}

void ReportWindow::restoreWidths() {
    for (int column = 0; column < grid().Cols(); ++column)
        if (const auto width = widths_.find(grid().ColDataField(column)); width != widths_.end())
            grid().setColWidth(column, width->second);
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
