#pragma once

#include "database/database_place.h"
#include "window/kept_shape.h"
#include "window/report_list.h"
#include "window/report_loader.h"

#include <QObject>
#include <QPointer>

#include <map>

namespace zkp {
class ZkpGridWidget;
}

namespace zkp::app {

struct ReportTools;

/// A report that has been opened and loaded in a control of its own, and may take the place of the one that
/// shows.
struct OpenedReport {
    std::unique_ptr<ZkpGridWidget> control;
    ReportEntry report;
    int row = -1; ///< of the report in the list
    std::vector<DictionaryField> fields;
    QString filter; ///< as a user types it
    LoadRecord record;
};

/// A report of a database as a user works on it: the control, another one for each report and user; the
/// shape that the user has made of it, which goes from one control to the next; and whether that has
/// changes that nobody has saved. It knows of no widget but the control and tells what else must show.
class ReportSession : public QObject {
    Q_OBJECT

public:
    /// `place` puts a control on the form; `colours` is what the shades of reports are made from.
    ReportSession(std::shared_ptr<Host> host, ReportTools& tools, const QPalette& colours,
                  std::function<void(ZkpGridWidget&)> place);
    ~ReportSession() override;

    // The database.
    /// Why it can't be opened for reading; empty once it is open.
    QString openDatabase(const DatabasePlace& database);
    void closeDatabase();
    const DatabasePlace& database() const { return database_; }
    /// Null without an open database.
    const ado::ConnectionPtr& connection() const { return connection_; }
    /// A server may have gone and come back since the last load.
    void reconnect();

    // What is open.
    ZkpGridWidget* control() const { return control_; }
    ZkpGrid& grid() const;
    bool isLoaded() const { return isLoaded_; }
    const std::optional<ReportEntry>& report() const { return report_; }
    const QString& user() const { return user_; }
    /// That the report's dictionary offers the user.
    const std::vector<DictionaryField>& fields() const { return fields_; }
    const ReportShape& shape() const { return shape_; }
    /// That the rows come from, as the user typed it.
    const QString& filter() const { return filter_; }
    /// The template that is open; empty for none.
    const QString& templateName() const { return template_; }
    const QPalette& colours() const { return colours_; }
    std::vector<DictionaryField> fieldsOf(const ReportEntry& report) const;

    // What is to be open. Boxes and words tell of failures.
    void choose(const ReportEntry& report, const QString& user);
    void setGroups(const QStringList& factors, bool isTotals);
    /// Opens the chosen report for its user with a filter. A refused filter leaves the rows.
    bool open(const QString& filter);
    /// The same with nothing of the shape before; the shape is empty then.
    void startAnew();
    /// The report in its shape by other groups.
    void regroup(const QStringList& factors, bool isTotals);
    /// The report in its shape for another user; what had changed was asked for.
    void changeUser(const QString& user);
    void sortByCurrentColumn();
    void setColours(const QPalette& colours);

    // The shape.
    bool hasChanges() const;
    /// An empty control, for a report that starts anew: neither rows nor rights nor shape are left.
    void forgetShape();
    /// A control that is not shown yet.
    std::unique_ptr<ZkpGridWidget> makeControl();
    /// Shows what was opened from a template.
    void take(OpenedReport opened, const QString& templateName);
    void setSaved(const QString& templateName);

Q_SIGNALS:
    /// Words for the user; empty when they are past.
    void told(const QString& words);
    void titleChanged();
    void templateChanged(const QString& name);
    /// The fields that are offered, or the groups that are chosen of them.
    void fieldsChanged();
    void filterTaken(const QString& filter);
    void filterRefused(const QString& filter);
    /// What the user may see, in words.
    void rightsChanged(const QString& rights);
    void loaded(const LoadOutcome& outcome);
    /// There are no rows and no statement.
    void emptied();

private:
    bool load(const QString& filter);
    bool reload(const QString& filter);
    bool rebuild();
    bool readReport();
    bool tell(const LoadRecord& record);
    void replaceControl();
    void listen(ZkpGridWidget& control);
    void connectEvents(ZkpGridWidget& control);
    void setFields(std::vector<DictionaryField> fields);
    void sortIfHeading();
    // What the user does with the control by its own menus.
    void reloadReshaped();
    void follow();
    void followChanges();
    // From one control to the next.
    void keepShape();
    void layOut();
    void leaveTemplate();
    void restoreWidths();

    std::shared_ptr<Host> host_;
    ReportTools& tools_;
    std::function<void(ZkpGridWidget&)> place_;
    QPointer<ZkpGridWidget> control_;
    QPalette colours_;

    DatabasePlace database_;
    ado::ConnectionPtr connection_;
    std::optional<ReportEntry> report_;
    QString user_;
    std::vector<DictionaryField> fields_;

    ReportShape shape_;
    KeptShape kept_;                   // of the last control that was loaded
    std::map<QString, double> widths_; // of the report's columns, as the user has left them
    QString template_;
    QString filter_;
    QString loadFilter_; // as loads need it afresh
    bool isLoaded_ = false;
    bool carriesChanges_ = false;  // the control's shape has unsaved changes from the control before
    bool hasLoadedItself_ = false; // the control, by a command of its menus
};

} // namespace zkp::app
