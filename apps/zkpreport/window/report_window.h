#pragma once

#include "database/database_place.h"
#include "window/kept_shape.h"
#include "window/report_list.h"
#include "window/report_loader.h"
#include "window/user_list.h"

// The widget is used whole by who uses the window.
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QMainWindow>

#include <map>

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
class ReportTools;
class StatementPanel;
class TemplatePane;

/// What to open first.
struct FirstReport {
    QString report;          ///< source or title; empty for the first of the database
    QString user;            ///< empty for all rows
    QString filter;          ///< in dictionary keys
    QStringList groups = {}; ///< keys of the group factors, outermost first
    bool isTotals = false;   ///< a row for each group
};

/// The program's window, a small report browser: the reports of a database, one of them open, the user
/// whose rights hold, a filter, group factors, saved shapes, and on demand the statement behind the rows.
class ReportWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Boxes stand over the window; with a host of the caller's, where the caller wants them.
    explicit ReportWindow(std::shared_ptr<Host> host = {});
    ~ReportWindow() override;

    /// The control of the open report; another one for each report and user.
    ZkpGrid& grid() { return report_->grid(); }
    /// What stands under the filter: why a filter, user or report was refused, or that a template was saved.
    /// Usually empty.
    QString message() const;

    /// Opens a database for reading and shows a report of it. False when there was a box or a message.
    bool showDatabase(const QString& named, const FirstReport& first = {});
    /// False when the database could not be opened; the message tells why.
    bool hasDatabase() const { return connection_ != nullptr; }

    /// The template that is open; empty for none.
    QString templateName() const { return template_; }

private:
    /// A report that a template has been opened in, while the one before still shows.
    struct OpenedTemplate;

    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    void buildWidgets();
    QWidget* makeChoices();
    QWidget* makeShapeChoices();
    void connectWidgets();
    /// Why there is none to show; empty once it is open.
    QString openDatabase();
    void readDatabase();
    void showNoDatabase(const QString& reason);
    bool choose(const FirstReport& first);

    /// Opens the chosen report for the chosen user with a filter. A refused filter leaves the rows.
    bool openReport(const QString& filter);
    bool load(const ReportEntry& report, const QString& filter);
    /// Loads the control as it stands; one that fails leaves no rows.
    bool reload(const ReportEntry& report, const QString& filter);
    /// A control for the report, ready to be loaded, in the shape that the last one had.
    bool rebuild(const ReportEntry& report);
    void showRights(const QString& user);
    bool readReport(const ReportEntry& report, const QString& user);
    std::vector<DictionaryField> fieldsOf(const ReportEntry& report, const QString& user) const;
    bool tell(const LoadRecord& record);
    /// Reads the rows of the control as it has been shaped.
    void reloadReshaped();
    /// The control may have been reshaped, or have loaded by itself: what stands around it follows.
    void followControl();
    void followChanges();
    void sortIfHeading();
    void sortByCurrentColumn();
    /// An empty control: neither rows nor rights of the last one are left.
    void replaceControl();
    ZkpGridWidget* makeControl();
    void listenToLoads(ZkpGridWidget& control);
    /// Whether a control is loading: what is done with a report waits then.
    bool isLoading() const;

    // What the user has made of the report, before it goes.
    bool hasChanges() const;
    /// Asks whether to save where there is something to lose. False when the user wants to stay.
    bool mayLeaveShape();
    void reportChosen(const QModelIndex& now, const QModelIndex& before);
    void showChosenReport(int row);
    void startReport();
    void userChosen(int index);

    // The shape, from one control to the next.
    void keepShape();
    void forgetShape();
    void layOut(const QString& user);
    void restoreWidths();
    void showTitle();

    // Templates.
    void connectTemplates();
    void listTemplates();
    void openTemplate(QString name);
    OpenedTemplate readTemplateInto(std::unique_ptr<ZkpGridWidget> control, const QString& name);
    void showTemplate(OpenedTemplate opened, const QString& name);
    /// False when it was not saved, for whatever reason.
    bool saveTemplate();
    bool saveTemplateAs();
    bool storeTemplate(const QString& name);
    void refuse(const QString& refusal, const QString& reason);
    template <class F>
    bool guardedTemplate(const QString& refusal, F call);

    void showFilterKeys();
    void setMessage(const QString& text);
    ReportShape shape() const;
    const ReportEntry* chosenReport() const;
    QString chosenUser() const;
    /// A server may have gone and come back since the last load.
    void reconnectDatabase();
    template <class F>
    bool guarded(F call);

    std::shared_ptr<Host> host_;
    ado::ConnectionPtr connection_;
    DatabasePlace database_;
    int user_ = 0; // whose rows show, by the list
    std::vector<UserEntry> users_;
    std::vector<DictionaryField> fields_; // of the open report, for the user
    std::map<QString, double> widths_;    // of the report's columns, as the user has left them
    KeptShape kept_;                      // of the last control that was loaded
    QString template_;                    // that is open
    QPalette colours_;                    // that the shades of the report are made from
    ColumnSort sort_;                     // of the report, as the user has left it
    QString loadFilter_;                  // as loads need it afresh
    bool isLoaded_ = false;
    bool carriesChanges_ = false;  // the control's shape has unsaved changes from the control before
    bool hasLoadedItself_ = false; // the control, by a command of its menus

    ReportListModel* reports_;
    QListView* reportList_;
    QComboBox* userList_;
    QLabel* rights_;
    FilterLine* filter_;
    GroupChoice* groups_;
    QAction* saveAction_;
    QAction* saveAsAction_;
    TemplatePane* templates_;
    QAction* sortAction_;
    QAction* panelToggle_;
    MessageStrip* message_;
    QVBoxLayout* place_; // where the control stands
    ZkpGridWidget* report_ = nullptr;
    StatementPanel* panel_;
    ReportTools* tools_;
};

} // namespace zkp::app
