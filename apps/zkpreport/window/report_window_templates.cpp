#include "base/error.h"
#include "base/text.h"
#include "template/template_name.h"
#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/report_filter.h"
#include "window/report_tools.h"
#include "window/report_window.h"
#include "window/statement_panel.h"
#include "window/template_pane.h"
#include "window/texts.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QVBoxLayout>

// Templates: the saved shapes of the database's reports.

namespace zkp::app {

struct ReportWindow::OpenedTemplate {
    std::unique_ptr<ZkpGridWidget> control;
    int report = -1; // row of the list
    std::vector<DictionaryField> fields;
    QString filter; // as a user types it
    LoadRecord record;
};

namespace {

constexpr int kAskYesNo = kMsgBoxQuestion | 4 | 256; // No by Enter: what is replaced is lost

/// A control without a filter has the text "true".
QString typedFilter(const ZkpGrid& grid) {
    const QString filter = trimmed(grid.Filter()).toString();
    return sameName(filter, u"true") ? QString() : filter;
}

/// Loads, whatever the template says about the user's own changes.
LoadRecord loadOpened(ZkpGrid& grid, const QString& filter) {
    const bool refreshes = grid.RefreshOnChange();
    grid.setRefreshOnChange(true);
    const LoadRecord record = loadReport(grid, filter);
    grid.setRefreshOnChange(refreshes);
    return record;
}

/// Why a name with a number may not do, beside the words of the database.
QString savingHint(const QString& name) {
    try {
        return placeToSave(name).number ? texts::numberedTemplate() : QString();
    } catch (const Error&) {
        return texts::numberedTemplate();
    }
}

} // namespace

void ReportWindow::connectTemplates() {
    saveAction_->setShortcut(QKeySequence::Save);
    saveAction_->setToolTip(texts::saveTemplateTip());
    saveAsAction_->setShortcut(Qt::Key_F12);
    saveAsAction_->setToolTip(texts::saveTemplateAsTip());
    for (QAction* action : {saveAction_, saveAsAction_})
        addAction(action); // the keys work wherever the focus is
    connect(saveAction_, &QAction::triggered, this, &ReportWindow::saveTemplate);
    connect(saveAsAction_, &QAction::triggered, this, &ReportWindow::saveTemplateAs);
    connect(templates_, &TemplatePane::opened, this, &ReportWindow::openTemplate);
}

/// Where the database can't be asked now, the list stays as it is.
void ReportWindow::listTemplates() {
    try {
        auto read = readTemplates(connection_);
        const bool isUsable = read && reports_->rowCount() > 0;
        std::vector<TemplateEntry> templates = std::move(read).value_or(std::vector<TemplateEntry>{});
        for (QAction* action : {saveAction_, saveAsAction_})
            action->setEnabled(isUsable);
        templates_->setVisible(isUsable);
        for (TemplateEntry& entry : templates) {
            const int report = reports_->findDictionary(entry.dictionary);
            entry.tip =
                texts::templateTip(entry.name, report < 0 ? QString() : reports_->report(report).title);
        }
        templates_->setTemplates(std::move(templates));
    } catch (const Error&) {
    }
}

void ReportWindow::refuse(const QString& refusal, const QString& reason) {
    host_->msgBox(refusal + QStringLiteral("\n\n") + reason, kMsgBoxExclamation, texts::templateBoxTitle());
}

template <class F>
bool ReportWindow::guardedTemplate(const QString& refusal, F call) {
    try {
        reconnectDatabase();
        call();
        return true;
    } catch (const Error& error) {
        host_->setPointer(kPointerDefault);
        refuse(refusal, database_.isMissing() ? texts::fileGone(database_.name()) : error.description());
        return false;
    }
}

/// The template is opened and loaded in a control of its own: one that fails on the way leaves the report
/// before as it was.
void ReportWindow::openTemplate(QString name) {
    if (!mayLeaveShape())
        return;
    setMessage({});
    const bool isDone = guardedTemplate(texts::templateNotOpened(name), [&] {
        OpenedTemplate opened = readTemplateInto(std::unique_ptr<ZkpGridWidget>(makeControl()), name);
        if (opened.record.isLoaded())
            showTemplate(std::move(opened), name);
        else // the control has told why
            setMessage(texts::templateNotOpened(name));
    });
    if (!isDone)
        listTemplates();
}

ReportWindow::OpenedTemplate ReportWindow::readTemplateInto(std::unique_ptr<ZkpGridWidget> control,
                                                            const QString& name) {
    OpenedTemplate opened;
    opened.control = std::move(control);
    ZkpGrid& grid = opened.control->grid();
    const QString dictionary = readTemplate(connection_, name).read<QString>(u"Clmns", QString());
    opened.report = reports_->findDictionary(dictionary, reportList_->currentIndex().row());
    if (opened.report < 0)
        throw Error(kErrItemNotFound, texts::templateOfNoReport(dictionary));
    const ReportEntry& report = reports_->report(opened.report);
    const QString user = chosenUser();
    if (user.contains(u'\''))
        throw Error(kErrInvalidCall, texts::badIdentity(user));
    opened.fields = fieldsOf(report, user);

    prepareReport(grid, connection_, report, user);
    grid.setclmns({}); // the template's own, one of the last that is read of what must be read
    takeShape(grid, colours_, opened.fields, [&] { grid.opentemplate(connection_, {}, name); });
    if (isBlank(grid.clmns()))
        return opened;
    if (const QStringList denied = deniedFields(grid, opened.fields); !user.isEmpty() && !denied.isEmpty())
        throw Error(kErrItemNotFound, texts::templateDenied(denied.join(QStringLiteral(", "))));
    opened.filter = typedFilter(grid);
    const ReportFilter filter = reportFilter(report, connection_, opened.filter);
    if (!filter.isAccepted())
        throw Error(kErrInvalidCall, texts::templateFilterRefused(opened.filter, filter.refusal));
    opened.record = loadOpened(grid, filter.text);
    return opened;
}

void ReportWindow::showTemplate(OpenedTemplate opened, const QString& name) {
    forgetShape();
    delete report_;
    report_ = opened.control.release();
    {
        const QSignalBlocker quiet(reportList_->selectionModel());
        reportList_->setCurrentIndex(reports_->index(opened.report));
    }
    fields_ = std::move(opened.fields);
    groups_->choose(factorsOf(grid()), grid().TotalForm());
    groups_->setFields(fields_);
    filter_->setInForce(opened.filter);
    showFilterKeys();
    sort_ = sortOf(grid());
    template_ = name;
    templates_->setCurrent(name);
    showTitle();
    report_->show();
    showRights(chosenUser());
    tell(opened.record);
}

bool ReportWindow::saveTemplate() {
    return template_.isEmpty() ? saveTemplateAs() : storeTemplate(template_);
}

bool ReportWindow::saveTemplateAs() {
    const ReportEntry* report = chosenReport();
    const auto answer = host_->inputBox(texts::templateNamePrompt(), texts::templateBoxTitle(),
                                        template_.isEmpty() && report ? report->title : template_);
    const QString name = trimmed(answer.value_or(QString())).toString();
    if (name.isEmpty())
        return false;
    if (name.contains(u'\'')) {
        refuse(texts::templateNotSaved(name), texts::quoteInName());
        return false;
    }
    listTemplates(); // another program may have saved one
    const bool isOther = templates_->has(name) && !isSameTemplate(name, template_);
    if (isOther &&
        host_->msgBox(texts::replaceTemplate(name), kAskYesNo, texts::templateBoxTitle()) != kAnswerYes)
        return false;
    return storeTemplate(name);
}

bool ReportWindow::storeTemplate(const QString& name) {
    setMessage({});
    if (!isLoaded_) {
        setMessage(texts::nothingToSave());
        return false;
    }
    const QString hint = savingHint(name);
    const QString refusal = texts::templateNotSaved(name) + (hint.isEmpty() ? QString() : u'\n' + hint);
    const bool isDone = guardedTemplate(refusal, [&] {
        const ShapeToSave ready(grid(), colours_, filter_->inForce(), name);
        grid().SaveTemplate({}, name);
    });
    if (!isDone)
        return false;
    grid().setFileName(name);
    template_ = name;
    listTemplates();
    templates_->setCurrent(name);
    showTitle();
    carriesChanges_ = false;
    tools_->setSaved();
    setMessage(texts::templateSaved(name));
    return true;
}

} // namespace zkp::app
