#include "host/scripted_host.h"

namespace zkp {

namespace {

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
    return respond ? respond(message) : MessageBoxes::msgBox(text, style, title);
}

std::optional<QString> ScriptedHost::inputBox(const QString& prompt, const QString& title,
                                              const QString& text) {
    return answer<QString, const QString&, const QString&, const QString&>(onInputBox, prompt, title, text);
}

std::optional<std::uint32_t> ScriptedHost::colorDialog(std::uint32_t start) {
    return answer<std::uint32_t, std::uint32_t>(onColorDialog, start);
}

std::optional<FontChoice> ScriptedHost::fontDialog(const FontChoice& start) {
    return answer<FontChoice, const FontChoice&>(onFontDialog, start);
}

std::optional<QString> ScriptedHost::saveDialog(const QString& title, const QString& filter,
                                                const QString& fileName) {
    return answer<QString, const QString&, const QString&, const QString&>(onSaveDialog, title, filter,
                                                                           fileName);
}

std::optional<QString> ScriptedHost::openDialog(const QString& title, const QString& filter,
                                                const QString& fileName) {
    return answer<QString, const QString&, const QString&, const QString&>(onOpenDialog, title, filter,
                                                                           fileName);
}

void ScriptedHost::showDialog(OwnDialog& dialog) {
    const auto show = onDialog;
    if (show)
        show(dialog);
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
