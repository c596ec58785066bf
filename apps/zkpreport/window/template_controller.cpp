#include "window/template_controller.h"

#include "base/error.h"
#include "base/text.h"
#include "template/template_name.h"
#include "widgets/zkp_grid_widget.h"
#include "window/report_filter.h"
#include "window/template_pane.h"
#include "window/texts.h"

#include <QAction>

namespace zkp::app {

namespace {

constexpr int kAskYesNo = kMsgBoxQuestion | 4 | 256; // No by Enter: what is replaced is lost
constexpr int kAskYesNoCancel = kMsgBoxQuestion | 3;

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

TemplateController::TemplateController(ReportSession& session, const ReportListModel& reports,
                                       std::shared_ptr<Host> host)
    : session_(session)
    , reports_(reports)
    , host_(std::move(host))
    , actions_{makeAction(texts::saveTemplate(), texts::saveTemplateTip(), QKeySequence::Save),
               makeAction(texts::saveTemplateAs(), texts::saveTemplateAsTip(), Qt::Key_F12)}
    , pane_(new TemplatePane(actions_[0], actions_[1])) {
    connect(actions_[0], &QAction::triggered, this, &TemplateController::save);
    connect(actions_[1], &QAction::triggered, this, &TemplateController::saveAs);
    connect(&session_, &ReportSession::templateChanged, pane_, &TemplatePane::setCurrent);
}

QAction* TemplateController::makeAction(const QString& caption, const QString& tip, const QKeySequence& key) {
    auto* action = new QAction(caption, this);
    action->setShortcut(key);
    action->setToolTip(tip);
    return action;
}

void TemplateController::list() {
    try {
        auto read = readTemplates(session_.connection());
        isUsable_ = read && reports_.rowCount() > 0;
        std::vector<TemplateEntry> templates = std::move(read).value_or(std::vector<TemplateEntry>{});
        for (QAction* action : actions_)
            action->setEnabled(isUsable_);
        pane_->setVisible(isUsable_);
        for (TemplateEntry& entry : templates) {
            const int report = reports_.findDictionary(entry.dictionary);
            entry.tip =
                texts::templateTip(entry.name, report < 0 ? QString() : reports_.report(report).title);
        }
        pane_->setTemplates(std::move(templates));
    } catch (const Error&) {
    }
}

void TemplateController::close() {
    isUsable_ = false;
    pane_->hide();
    for (QAction* action : actions_)
        action->setEnabled(false);
}

void TemplateController::refuse(const QString& refusal, const QString& reason) {
    host_->boxes().msgBox(refusal + QStringLiteral("\n\n") + reason, kMsgBoxExclamation,
                          texts::templateBoxTitle());
}

template <class F>
bool TemplateController::guarded(const QString& refusal, F call) {
    try {
        session_.reconnect();
        call();
        return true;
    } catch (const Error& error) {
        const DatabasePlace& database = session_.database();
        host_->screenPointer().setPointer(kPointerDefault);
        refuse(refusal, database.isMissing() ? texts::fileGone(database.name()) : error.description());
        return false;
    }
}

/// The template is opened and loaded in a control of its own. The name is the caller's no longer once the
/// list has been read anew.
void TemplateController::open(QString name, int preferred) {
    if (!mayLeaveShape())
        return;
    Q_EMIT told({});
    const bool isDone = guarded(texts::templateNotOpened(name), [&] {
        OpenedReport read = readInto(session_.makeControl(), name, preferred);
        if (!read.record.isLoaded()) { // the control has told why
            Q_EMIT told(texts::templateNotOpened(name));
            return;
        }
        const int row = read.row;
        session_.take(std::move(read), name);
        Q_EMIT opened(row);
    });
    if (!isDone)
        list();
}

OpenedReport TemplateController::readInto(std::unique_ptr<ZkpGridWidget> control, const QString& name,
                                          int preferred) {
    OpenedReport opened;
    opened.control = std::move(control);
    ZkpGrid& grid = opened.control->grid();
    const ado::ConnectionPtr& connection = session_.connection();
    const QString dictionary = readTemplate(connection, name).read<QString>(u"Clmns", QString());
    opened.row = reports_.findDictionary(dictionary, preferred);
    if (opened.row < 0)
        throw Error(kErrItemNotFound, texts::templateOfNoReport(dictionary));
    opened.report = reports_.report(opened.row);
    const QString& user = session_.user();
    if (user.contains(u'\''))
        throw Error(kErrInvalidCall, texts::badIdentity(user));
    opened.fields = session_.fieldsOf(opened.report);

    prepareReport(grid, connection, opened.report, user);
    grid.setclmns({}); // the template's own, one of the last that is read of what must be read
    takeShape(grid, session_.colours(), opened.fields, [&] { grid.opentemplate(connection, {}, name); });
    if (isBlank(grid.clmns()))
        return opened;
    if (const QStringList denied = deniedFields(grid, opened.fields); !user.isEmpty() && !denied.isEmpty())
        throw Error(kErrItemNotFound, texts::templateDenied(denied.join(QStringLiteral(", "))));
    opened.filter = typedFilter(grid);
    const ReportFilter filter = reportFilter(opened.report, connection, opened.filter);
    if (!filter.isAccepted())
        throw Error(kErrInvalidCall, texts::templateFilterRefused(opened.filter, filter.refusal));
    opened.record = loadOpened(grid, filter.text);
    return opened;
}

bool TemplateController::save() {
    return session_.templateName().isEmpty() ? saveAs() : store(session_.templateName());
}

bool TemplateController::saveAs() {
    const QString& open = session_.templateName();
    const QString start = open.isEmpty() && session_.report() ? session_.report()->title : open;
    const auto answer =
        host_->boxes().inputBox(texts::templateNamePrompt(), texts::templateBoxTitle(), start);
    const QString name = trimmed(answer.value_or(QString())).toString();
    if (name.isEmpty())
        return false;
    if (name.contains(u'\'')) {
        refuse(texts::templateNotSaved(name), texts::quoteInName());
        return false;
    }
    list(); // another program may have saved one
    const bool isOther = pane_->has(name) && !isSameTemplate(name, session_.templateName());
    if (isOther && host_->boxes().msgBox(texts::replaceTemplate(name), kAskYesNo,
                                         texts::templateBoxTitle()) != kAnswerYes)
        return false;
    return store(name);
}

bool TemplateController::store(const QString& name) {
    Q_EMIT told({});
    if (!session_.isLoaded()) {
        Q_EMIT told(texts::nothingToSave());
        return false;
    }
    const QString hint = savingHint(name);
    const QString refusal = texts::templateNotSaved(name) + (hint.isEmpty() ? QString() : u'\n' + hint);
    ZkpGrid& grid = session_.grid();
    const bool isDone = guarded(refusal, [&] {
        const ShapeToSave ready(grid, session_.colours(), session_.filter(), name);
        grid.SaveTemplate({}, name);
    });
    if (!isDone)
        return false;
    grid.setFileName(name);
    list();
    session_.setSaved(name);
    Q_EMIT told(texts::templateSaved(name));
    return true;
}

bool TemplateController::mayLeaveShape() {
    if (!hasChanges())
        return true;
    const int answer =
        host_->boxes().msgBox(texts::keepChanges(), kAskYesNoCancel, texts::templateBoxTitle());
    return answer == kAnswerNo || (answer == kAnswerYes && save());
}

} // namespace zkp::app
