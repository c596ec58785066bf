#pragma once

#include "base/listeners.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QKeySequence;
class QWidget;

namespace zkp {

class ZkpGridWidget;

/// What a host sets beside the report on its form: commands for a menu or a toolbar, and a widget that
/// shows something of the report. A tool is made once and given the report that the form shows; with
/// another report it starts anew. It works by the public interface of the control alone, may outlive the
/// report, and does nothing without one.
class ReportTool : public QObject {
    Q_OBJECT

public:
    explicit ReportTool(QObject* parent = nullptr);
    /// The widget goes too, where nobody has placed it.
    ~ReportTool() override;

    /// The report as it is to be found by its user: give it when it has been laid out and loaded. Null for
    /// none.
    void setReport(ZkpGridWidget* report);
    ZkpGridWidget* report() const { return report_; }

    /// The commands, with captions, keys and names (`objectName`), in the order of a menu. The tool owns
    /// them, and their failures show the error box.
    const QList<QAction*>& actions() const { return actions_; }
    /// What the tool shows, for the host to place; null for a tool of commands alone.
    QWidget* widget() const;

protected:
    /// There is another report, or none any more.
    virtual void reportChanged() {}
    /// The report has been loaded, whoever asked for it and however that went.
    virtual void loadEnded() {}

    /// While this is so the report is neither the old one nor the new one, and no cell is looked at.
    bool isLoading() const;
    QAction* addCommand(const QString& caption, const char* name, const QList<QKeySequence>& keys,
                        std::function<void()> command);
    void setWidget(QWidget* widget);

private:
    void run(const std::function<void()>& command);

    QPointer<ZkpGridWidget> report_;
    Listening loads_;
    QList<QAction*> actions_;
    QPointer<QWidget> widget_;
};

} // namespace zkp
