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
    return host_->msgBox(text, style, title);
}

std::optional<QString> LoadWatch::inputBox(const QString& prompt, const QString& title, const QString& text) {
    return host_->inputBox(prompt, title, text);
}

std::optional<QString> LoadWatch::saveDialog(const QString& title, const QString& filter,
                                             const QString& fileName) {
    return host_->saveDialog(title, filter, fileName);
}

std::optional<std::uint32_t> LoadWatch::colorDialog(std::uint32_t start) {
    return host_->colorDialog(start);
}

std::optional<FontChoice> LoadWatch::fontDialog(const FontChoice& start) {
    return host_->fontDialog(start);
}

int LoadWatch::shellOpen(const QString& file, const QString& verb, const QString& parameters,
                         const QString& directory, int windowMode) {
    return host_->shellOpen(file, verb, parameters, directory, windowMode);
}

/// An empty report shows itself by the pointer alone.
void LoadWatch::setPointer(int pointer) {
    if (pointer == kPointerDefault)
        note();
    host_->setPointer(pointer);
}

void LoadWatch::runPendingEvents() {
    note();
    const bool before = std::exchange(isLettingEventsIn_, true);
    const ScopeGuard restore([&] { isLettingEventsIn_ = before; });
    host_->runPendingEvents();
}

} // namespace zkp::app
