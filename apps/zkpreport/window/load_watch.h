#pragma once

#include "ado/connection.h"
#include "host/host.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

namespace zkp::app {

/// Passes everything on to another host and notes on the way how a load goes: which statement the
/// database received for the records, how long that took, and whether a box was shown. A load sends
/// further statements after the one that matters, so the note is taken at the control's first sign
/// after the records are there.
class LoadWatch : public Host, public MessageBoxes, public Pointer, public PendingEvents {
public:
    explicit LoadWatch(std::shared_ptr<Host> host)
        : Host(host)
        , host_(std::move(host)) {}

    /// Told when a load begins.
    std::function<void()> began;

    void begin(const ado::ConnectionPtr& connection);
    void end();

    QString statementSent() const { return statement_; }
    double statementMs() const { return statementMs_; }
    double wholeMs() const { return wholeMs_; }
    bool sawBox() const { return sawBox_; }
    /// True while a load lets events in: the report is neither the old one nor the new one.
    bool isLettingEventsIn() const { return isLettingEventsIn_; }

    MessageBoxes& boxes() override { return *this; }
    Pointer& screenPointer() override { return *this; }
    PendingEvents& pendingEvents() override { return *this; }

    int msgBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& text) override;
    int pointer() const override { return host_->screenPointer().pointer(); }
    void setPointer(int pointer) override;
    void runPendingEvents() override;

private:
    void note();

    std::shared_ptr<Host> host_;
    ado::ConnectionPtr connection_; // set between begin and the note
    QElapsedTimer timer_;
    QString statement_;
    double statementMs_ = 0;
    double wholeMs_ = 0;
    bool sawBox_ = false;
    bool isLettingEventsIn_ = false;
};

} // namespace zkp::app
