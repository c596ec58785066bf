#include "window/report_tools.h"

#include "base/error.h"
#include "base/scope_guard.h"
#include "base/texts/tools.h"
#include "host/error_box.h"
#include "host/host.h"
#include "widgets/tools/clipboard_copy.h"
#include "widgets/zkp_grid_widget.h"
#include "window/texts.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusBar>

namespace zkp::app {

ReportTools::ReportTools(QMainWindow& window, Host& host, ReshapeRecorder::Hooks hooks)
    : QObject(&window)
    , host_(host)
    , window_(window)
    , line_(new FindLine)
    , progressLabel_(new QLabel)
    , sumsLabel_(new QLabel)
    , progress_(*progressLabel_)
    , recorder_(hooks)
    , find_(*line_, hooks.isLoading)
    , sums_(*sumsLabel_, hooks.isLoading) {
    progressLabel_->setObjectName(QStringLiteral("loadProgress"));
    sumsLabel_->setObjectName(QStringLiteral("sums"));
    sumsLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    window.statusBar()->addWidget(progressLabel_, 1); // it has its room before a load begins
    window.statusBar()->addPermanentWidget(sumsLabel_);
    window.installEventFilter(this);
    makeActions(window);
    connect(&recorder_, &ReshapeRecorder::settled, this, [this](bool step) {
        progress_.end();
        Q_EMIT settled(step);
    });
}

ReportTools::~ReportTools() = default;

void ReportTools::makeActions(QMainWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(texts::editMenu());
    const auto add = [&](const QString& caption, const char* name, const QList<QKeySequence>& keys,
                         std::function<void()> command) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(QLatin1String(name));
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, [this, command] { guarded(command); });
        return action;
    };
    QAction* undo =
        add(zkp::texts::undoAction(), "undo", {Qt::CTRL | Qt::Key_Z}, [this] { recorder_.undo(); });
    QAction* redo =
        add(zkp::texts::redoAction(), "redo", {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
            [this] { recorder_.redo(); });
    menu->addSeparator();
    add(zkp::texts::copyAction(), "copy", {Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_Insert},
        [this] { copy(); });
    menu->addSeparator();
    add(zkp::texts::findAction(), "find", {Qt::CTRL | Qt::Key_F}, [this] { find_.open(); });
    add(zkp::texts::findNextAction(), "findNext", {Qt::Key_F3}, [this] { find_.next(); });
    add(zkp::texts::findPreviousAction(), "findPrevious", {Qt::SHIFT | Qt::Key_F3},
        [this] { find_.previous(); });
    const auto enable = [this, undo, redo] {
        undo->setEnabled(recorder_.canUndo());
        redo->setEnabled(recorder_.canRedo());
        undo->setText(zkp::texts::ofStep(zkp::texts::undoAction(), recorder_.undoName()));
        redo->setText(zkp::texts::ofStep(zkp::texts::redoAction(), recorder_.redoName()));
    };
    connect(&recorder_, &ReshapeRecorder::changed, this, enable);
    enable();
}

void ReportTools::watch(ZkpGridWidget& report) {
    ZkpGrid& grid = report.grid();
    connect(&grid.events(), &Events::StartFilling, this,
            [this, &grid] { progress_.layOut(static_cast<std::int64_t>(grid.RecCount())); });
    connect(&grid.events(), &Events::StopFillIng, this, [this] { progress_.end(); });
}

void ReportTools::watch(ado::Connection& connection) {
    const QPointer<ReportTools> self(this);
    connection.setFetchProgress([self](std::int64_t rows) {
        if (self)
            self->progress_.note(rows);
    });
}

/// The steps of a control stay while it does; another one starts without any.
void ReportTools::showReport(ZkpGridWidget* report) {
    progress_.end();
    if (report == report_) {
        sums_.startAgain();
        return;
    }
    report_ = report;
    find_.setReport(report);
    sums_.setReport(report);
    recorder_.setReport(report);
    recorder_.begin();
}

void ReportTools::copy() {
    if (!report_)
        return;
    const int pointer = host_.screenPointer().pointer();
    const ScopeGuard restore([&] { host_.screenPointer().setPointer(pointer); });
    host_.screenPointer().setPointer(kPointerHourglass);
    ZkpGrid& grid = report_->grid();
    QStringList headings;
    for (int c = 0; c < grid.Cols(); ++c)
        headings += grid.ColCaption(c);
    putOnClipboard(copySelection(grid.MSFlexGrid1(), headings));
}

void ReportTools::guarded(const std::function<void()>& call) {
    const QPointer<ReportTools> self(this);
    try {
        call();
    } catch (const Error& error) {
        if (self)
            ShowError(host_, error);
    }
}

/// Escape that nobody else wanted closes the search, wherever the focus is.
bool ReportTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && find_.isOpen() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        find_.close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zkp::app
