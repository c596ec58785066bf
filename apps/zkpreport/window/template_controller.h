#pragma once

#include "window/report_session.h"

class QAction;

namespace zkp::app {

class TemplatePane;

/// The templates of the database: their list, opening one, saving the open report's shape, and what is told
/// of failures on the way.
class TemplateController : public QObject {
    Q_OBJECT

public:
    TemplateController(ReportSession& session, const ReportListModel& reports, std::shared_ptr<Host> host);

    /// The list with its buttons; the window places it.
    TemplatePane& pane() { return *pane_; }
    const QList<QAction*>& actions() const { return actions_; }

    /// Reads the list anew. Where the database can't be asked now it stays as it is.
    void list();
    /// There is no database, and nothing to list.
    void close();

    /// Opens a template and loads it; of several reports with its dictionary `preferred`, a row of the
    /// list, comes first. One that fails on the way leaves the report before as it was.
    void open(QString name, int preferred);
    /// Both False when it was not saved, for whatever reason.
    bool save();
    bool saveAs();

    /// Whether the user's shape would be lost. Where the database has no room for templates it can't be kept.
    bool hasChanges() const { return isUsable_ && session_.hasChanges(); }
    /// Asks whether to save where there is something to lose. False when the user wants to stay.
    bool mayLeaveShape();

Q_SIGNALS:
    void told(const QString& words);
    /// A template shows, of the report in that row of the list.
    void opened(int report);

private:
    QAction* makeAction(const QString& caption, const QString& tip, const QKeySequence& key);
    OpenedReport readInto(std::unique_ptr<ZkpGridWidget> control, const QString& name, int preferred);
    bool store(const QString& name);
    void refuse(const QString& refusal, const QString& reason);
    template <class F>
    bool guarded(const QString& refusal, F call);

    ReportSession& session_;
    const ReportListModel& reports_;
    std::shared_ptr<Host> host_;
    QList<QAction*> actions_; // save, save as
    TemplatePane* pane_;
    bool isUsable_ = false;
};

} // namespace zkp::app
