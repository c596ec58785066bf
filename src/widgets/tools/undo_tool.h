#pragma once

#include "widgets/tools/report_tool.h"
#include "widgets/tools/reshape_history.h"

#include <QTimer>

namespace zkp {

/// Takes back what the user has made of a report's shape: columns, groups, order, widths, captions, colours
/// and fonts, fifty steps of it. The control tells of changes one by one; all that happen until
/// events are let in again are one step. A box or dialog that stands open belongs to its step, and so does
/// what runs while a load lets events in. The steps of a report go with it.
///
/// Commands: `undo` (Ctrl+Z), `redo` (Ctrl+Y, Ctrl+Shift+Z), which tell in their captions what step it is.
class UndoTool : public ReportTool {
    Q_OBJECT

public:
    explicit UndoTool(QObject* parent = nullptr);

    /// Reads the report's rows again, as the control is shaped, where a step back needs other rows; by
    /// default the control's `refresh`. A host that sets `Filter` before each load does so here.
    void setReload(std::function<void()> reload) { reload_ = std::move(reload); }

    /// The report as it stands is where the steps begin; call it when the host itself has reshaped it.
    void begin();
    void undo();
    void redo();

    /// Whether the shape differs from the one that was begun with or last saved.
    bool hasChanges() const;
    /// The host has saved the shape as it stands.
    void setSaved();

Q_SIGNALS:
    /// Events were let in after something had happened; `step`: it was a step of reshaping, or back.
    /// What the host then makes of the report belongs to the step.
    void settled(bool step);

protected:
    void reportChanged() override;

private:
    void wait();
    void settle();
    void tell(bool step);
    void bringBack(const ReshapeSnapshot& shape);
    void drawAgain(ZkpGrid& grid);
    void showSteps();

    QAction* undo_;
    QAction* redo_;
    std::function<void()> reload_;
    ReshapeHistory history_;
    QTimer timer_;
    bool isBringingBack_ = false;
};

} // namespace zkp
