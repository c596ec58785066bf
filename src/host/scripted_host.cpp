#include "host/scripted_host.h"

namespace zkp {

namespace {

constexpr int kButtonMask = 7; // which buttons a box's style asks for
enum BoxButtons { kYesNoCancel = 3, kYesNo = 4 };

int defaultAnswer(int style) {
    const int buttons = style & kButtonMask;
    return buttons == kYesNoCancel || buttons == kYesNo ? kAnswerYes : kAnswerOk;
}

/// Calls a copy, since a script may set another answer while this one runs.
template <class Result, class... Args>
std::optional<Result> answer(std::function<std::optional<Result>(Args...)> function, Args... args) {
    return function ? function(args...) : std::nullopt;
}

} // namespace

int ScriptedHost::msgBox(const QString& text, int style, const QString& title) {
    const Message message{text, style, title};
    messages.push_back(message);
    const auto respond = onMsgBox;
    return respond ? respond(message) : defaultAnswer(style);
}

std::optional<QString> ScriptedHost::inputBox(const QString& prompt, const QString& title,
                                              const QString& text) {
    return answer<QString, const QString&, const QString&, const QString&>(onInputBox, prompt, title, text);
}

std::optional<QString> ScriptedHost::saveDialog(const QString& title, const QString& filter,
                                                const QString& fileName) {
    return answer<QString, const QString&, const QString&, const QString&>(onSaveDialog, title, filter,
                                                                           fileName);
}

std::optional<std::uint32_t> ScriptedHost::colorDialog(std::uint32_t start) {
    return answer<std::uint32_t, std::uint32_t>(onColorDialog, start);
}

std::optional<FontChoice> ScriptedHost::fontDialog(const FontChoice& start) {
    return answer<FontChoice, const FontChoice&>(onFontDialog, start);
}

int ScriptedHost::shellOpen(const QString& file, const QString& /*verb*/, const QString& /*parameters*/,
                            const QString& /*directory*/, int /*windowMode*/) {
    opened.append(file);
    return shellResult;
}

void ScriptedHost::runPendingEvents() {
    const auto run = onPendingEvents;
    if (run)
        run();
}

} // namespace zkp
