#pragma once

#include "widgets/tools/reshape_history.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace zkp {

class ZkpGridWidget;

/// Watches a control for steps of reshaping and takes them back. The control tells of changes one by
/// one; all that happen until events are let in again are one step. A box or dialog that stands open
/// belongs to its step, and so does what runs while a load lets events in.
class ReshapeRecorder : public QObject {
    Q_OBJECT

public:
    struct Hooks {
        std::function<bool()> isLoading; ///< true while a load lets events in
        std::function<void()> reload;    ///< reads the report's rows again, as the control is shaped
    };
    explicit ReshapeRecorder(Hooks hooks, QObject* parent = nullptr);

    /// Another control; nothing is recorded until begin.
    void setReport(ZkpGridWidget* report);
    /// The report stands as it starts.
    void begin();

    bool canUndo() const { return history_.canUndo(); }
    bool canRedo() const { return history_.canRedo(); }
    QString undoName() const { return history_.undoName(); }
    QString redoName() const { return history_.redoName(); }
    void undo();
    void redo();
    /// Whether the shape differs from the one that was begun with or last saved.
    bool hasChanges() const;
    void setSaved();

Q_SIGNALS:
    /// Events were let in after something had happened; `step`: it was a step of reshaping.
    void settled(bool step);
    /// What can be undone and redone may have changed.
    void changed();

private:
    void wait();
    void settle();
    void tell(bool step);
    void bringBack(const ReshapeSnapshot& shape);
    void drawAgain(ZkpGrid& grid);

    Hooks hooks_;
    QPointer<ZkpGridWidget> report_;
    ReshapeHistory history_;
    QTimer timer_;
    bool isRecording_ = false;
    bool isBringingBack_ = false;
};

} // namespace zkp
