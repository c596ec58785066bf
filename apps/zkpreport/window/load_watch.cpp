#include "window/load_watch.h"

#include "base/scope_guard.h"

#include <utility>

namespace zkp::app {

namespace {

constexpr double kNanosecondsPerMs = 1e6;

} // namespace

void LoadWatch::begin(const ado::ConnectionPtr& connection) {
    connection_ = connection;
    statement_.clear();
    statementMs_ = wholeMs_ = 0;
    sawBox_ = false;
    timer_.start();
    if (began)
        began();
}

void LoadWatch::end() {
    note();
    wholeMs_ = static_cast<double>(timer_.nsecsElapsed()) / kNanosecondsPerMs;
}

void LoadWatch::note() {
    if (!connection_)
        return;
    statement_ = connection_->LastStatementSent();
    statementMs_ = static_cast<double>(timer_.nsecsElapsed()) / kNanosecondsPerMs;
    connection_.reset();
}

int LoadWatch::msgBox(const QString& text, int style, const QString& title) {
    sawBox_ = true;
    return host_->boxes().msgBox(text, style, title);
}

std::optional<QString> LoadWatch::inputBox(const QString& prompt, const QString& title, const QString& text) {
    return host_->boxes().inputBox(prompt, title, text);
}

/// An empty report shows itself by the pointer alone.
void LoadWatch::setPointer(int pointer) {
    if (pointer == kPointerDefault)
        note();
    host_->screenPointer().setPointer(pointer);
}

void LoadWatch::runPendingEvents() {
    note();
    const bool before = std::exchange(isLettingEventsIn_, true);
    const ScopeGuard restore([&] { isLettingEventsIn_ = before; });
    host_->pendingEvents().runPendingEvents();
}

} // namespace zkp::app
