#pragma once

#include "window/report_session.h"
#include "window/user_list.h"

// The widget is used whole by who uses the window.
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QMainWindow>

class QAction;
class QComboBox;
class QCloseEvent;
class QLabel;
class QModelIndex;
class QListView;
class QVBoxLayout;

namespace zkp::app {

class FilterLine;
class GroupChoice;
class MessageStrip;
class StatementPanel;
class TemplateController;

/// What to open first.
struct FirstReport {
    QString report;          ///< source or title; empty for the first of the database
    QString user;            ///< empty for all rows
    QString filter;          ///< in dictionary keys
    QStringList groups = {}; ///< keys of the group factors, outermost first
    bool isTotals = false;   ///< a row for each group
};

/// The program's window, a small report browser: the reports of a database, one of them open, the user
/// whose rights hold, a filter, group factors, saved shapes, and on demand the statement behind the rows. It
/// arranges the widgets and hands what is chosen in them to the session and the templates.
class ReportWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Boxes stand over the window; with a host of the caller's, where the caller wants them.
    explicit ReportWindow(std::shared_ptr<Host> host = {});
    ~ReportWindow() override;

    /// The control of the open report; another one for each report and user.
    ZkpGrid& grid() { return session_->grid(); }
    /// What stands under the filter: why a filter, user or report was refused, or that a template was saved.
    /// Usually empty.
    QString message() const;

    /// Opens a database for reading and shows a report of it. False when there was a box or a message.
    bool showDatabase(const QString& named, const FirstReport& first = {});
    /// False when the database could not be opened; the message tells why.
    bool hasDatabase() const { return session_->connection() != nullptr; }

    /// The template that is open; empty for none.
    QString templateName() const { return session_->templateName(); }

private:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    void buildWidgets();
    QWidget* makeChoices();
    QWidget* makeShapeChoices();
    void connectWidgets();
    void connectSession();
    void placeControl(ZkpGridWidget& control);

    void readDatabase();
    void showNoDatabase(const QString& reason);
    bool choose(const FirstReport& first);

    // The choices in the lists; what the user has made of the report is asked for before it goes.
    void reportChosen(const QModelIndex& now, const QModelIndex& before);
    void showChosenReport(int row);
    void startReport();
    void userChosen(int index);
    const ReportEntry* chosenReport() const;

    // What the session tells.
    void showTitle();
    void showFields();
    void setMessage(const QString& text);

    std::shared_ptr<Host> host_;
    std::vector<UserEntry> users_;
    int user_ = 0; // whose rows show, by the list

    ReportListModel* reports_;
    QListView* reportList_;
    QComboBox* userList_;
    QLabel* rights_;
    FilterLine* filter_;
    GroupChoice* groups_;
    QAction* sortAction_;
    QAction* panelToggle_;
    MessageStrip* message_;
    QVBoxLayout* place_; // where the control stands
    StatementPanel* panel_;

    // In the order in which each needs those before it.
    std::unique_ptr<ReportTools> tools_;
    std::unique_ptr<ReportSession> session_;
    std::unique_ptr<TemplateController> templates_;
};

} // namespace zkp::app
