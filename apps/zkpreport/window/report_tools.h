#pragma once

#include "widgets/tools/load_progress.h"
#include "widgets/tools/report_find.h"
#include "widgets/tools/reshape_recorder.h"
#include "widgets/tools/selection_status.h"

#include <QMainWindow>

#include <memory>

class QAction;

namespace zkp {
class Host;
class ZkpGridWidget;
namespace ado {
class Connection;
}
} // namespace zkp

namespace zkp::app {

/// What a window offers for any report that it shows, by the public interface of the control alone: copy,
/// find, undo and redo of reshaping, sums of the selection, the progress of a load. Menu, status line and
/// keys are the window's.
class ReportTools : public QObject {
    Q_OBJECT

public:
    ReportTools(QMainWindow& window, Host& host, ReshapeRecorder::Hooks hooks);
    ~ReportTools() override;

    /// Stands below the report; hidden until a search is opened.
    FindLine& findLine() { return *line_; }
    /// A control that will load; its loads show how they go on.
    void watch(ZkpGridWidget& report);
    void watch(ado::Connection& connection);
    /// A load begins.
    void loadBegins() { progress_.begin(); }
    /// The control that the window shows, after each load of the window's own.
    void showReport(ZkpGridWidget* report);
    /// The window itself has changed the report's colours: the shapes before have others.
    void forgetSteps() { recorder_.begin(); }
    /// Whether the report has been reshaped since it was opened or last saved.
    bool hasChanges() const { return recorder_.hasChanges(); }
    void setSaved() { recorder_.setSaved(); }

Q_SIGNALS:
    /// Events were let in after the report had changed; `step`: by a step of reshaping, or back.
    void settled(bool step);

private:
    void makeActions(QMainWindow& window);
    void copy();
    void guarded(const std::function<void()>& call);
    bool eventFilter(QObject* watched, QEvent* event) override;

    Host& host_;
    QMainWindow& window_;
    FindLine* line_;
    QLabel* progressLabel_;
    QLabel* sumsLabel_;
    LoadProgress progress_;
    ReshapeRecorder recorder_;
    ReportFind find_;
    SelectionStatus sums_;
    QPointer<ZkpGridWidget> report_;
};

} // namespace zkp::app
