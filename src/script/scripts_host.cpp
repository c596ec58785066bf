#include "script/scripts_host.h"

namespace zkp::script {

namespace {

void append(QJSValue list, const QJSValue& entry) {
    list.setProperty(list.property(QStringLiteral("length")).toUInt(), entry);
}

bool isNothing(const QJSValue& answer) {
    return answer.isUndefined() || answer.isNull();
}

} // namespace

ScriptsHost::ScriptsHost(Bridge& bridge)
    : messageList(bridge.engine().newArray())
    , openedList(bridge.engine().newArray())
    , bridge_(&bridge) {}

void ScriptsHost::release() {
    bridge_ = nullptr;
    for (QJSValue* value : {&messageList, &openedList, &msgBoxFunction, &inputBoxFunction,
                            &saveDialogFunction, &colorDialogFunction, &fontDialogFunction})
        *value = QJSValue();
}

/// The function's answer; undefined where there is no function.
QJSValue ScriptsHost::ask(const QJSValue& function, const char* question,
                          std::initializer_list<Argument> arguments) {
    if (!bridge_ || !function.isCallable())
        return {};
    QStringList names;
    QList<QJSValue> values;
    for (const auto& [name, value] : arguments) {
        names.append(QString::fromLatin1(name));
        values.append(bridge_->values().toScript(value));
    }
    return bridge_->invoke(function, bridge_->makeArguments(QString::fromLatin1(question), names, values));
}

std::optional<QString> ScriptsHost::askForText(const QJSValue& function, const char* question,
                                               std::initializer_list<Argument> arguments) {
    const QJSValue answer = ask(function, question, arguments);
    if (isNothing(answer) || answer.toString().isEmpty())
        return std::nullopt;
    return answer.toString();
}

int ScriptsHost::msgBox(const QString& text, int style, const QString& title) {
    const int usual = ScriptedHost::msgBox(text, style, title);
    if (!bridge_)
        return usual;
    QJSValue entry = bridge_->engine().newObject();
    entry.setProperty(QStringLiteral("text"), text);
    entry.setProperty(QStringLiteral("style"), style);
    entry.setProperty(QStringLiteral("title"), title);
    append(messageList, entry);
    const QJSValue answer =
        ask(msgBoxFunction, "onMsgBox", {{"text", text}, {"style", style}, {"title", title}});
    return answer.isNumber() ? answer.toInt() : usual;
}

std::optional<QString> ScriptsHost::inputBox(const QString& prompt, const QString& title,
                                             const QString& text) {
    return askForText(inputBoxFunction, "onInputBox", {{"prompt", prompt}, {"title", title}, {"text", text}});
}

std::optional<QString> ScriptsHost::saveDialog(const QString& title, const QString& filter,
                                               const QString& fileName) {
    return askForText(saveDialogFunction, "onSaveDialog",
                      {{"title", title}, {"filter", filter}, {"fileName", fileName}});
}

std::optional<std::uint32_t> ScriptsHost::colorDialog(std::uint32_t start) {
    const QJSValue answer = ask(colorDialogFunction, "onColorDialog", {{"Color", start}});
    if (isNothing(answer))
        return std::nullopt;
    return bridge_->values()
        .fromScript(answer, QMetaType::fromType<uint>(), QStringLiteral("the answer of onColorDialog"))
        .toUInt();
}

std::optional<FontChoice> ScriptsHost::fontDialog(const FontChoice& start) {
    const QJSValue answer = ask(fontDialogFunction, "onFontDialog",
                                {{"FontName", start.FontName},
                                 {"FontSize", start.FontSize},
                                 {"FontBold", start.FontBold},
                                 {"FontItalic", start.FontItalic},
                                 {"FontUnderline", start.FontUnderline}});
    if (!answer.isObject())
        return std::nullopt;
    // What the answer leaves out stays as it was.
    const auto part = [&]<class T>(const char* name, const T& usual) {
        const QString key = QString::fromLatin1(name);
        const QJSValue given = answer.property(key);
        if (given.isUndefined())
            return usual;
        return bridge_->values().fromScript(given, QMetaType::fromType<T>(), key).template value<T>();
    };
    return FontChoice{part("FontName", start.FontName), part("FontSize", start.FontSize),
                      part("FontBold", start.FontBold), part("FontItalic", start.FontItalic),
                      part("FontUnderline", start.FontUnderline)};
}

int ScriptsHost::shellOpen(const QString& file, const QString& verb, const QString& parameters,
                           const QString& directory, int windowMode) {
    if (bridge_)
        append(openedList, QJSValue(file));
    return ScriptedHost::shellOpen(file, verb, parameters, directory, windowMode);
}

} // namespace zkp::script
