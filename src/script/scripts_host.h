#pragma once

#include "host/scripted_host.h"
#include "script/bridge.h"
#include "script/script_object.h"

namespace zkp::script {

/// The host of all controls that a script makes: it lists every box for the script and answers by the
/// script's functions, where there are any.
class ScriptsHost : public ScriptedHost {
public:
    explicit ScriptsHost(Bridge& bridge);

    QJSValue messageList; ///< of `{text, style, title}`
    QJSValue openedList;
    QJSValue msgBoxFunction, inputBoxFunction, saveDialogFunction, colorDialogFunction, fontDialogFunction;

    int msgBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& text) override;
    std::optional<QString> saveDialog(const QString& title, const QString& filter,
                                      const QString& fileName) override;
    std::optional<std::uint32_t> colorDialog(std::uint32_t start) override;
    std::optional<FontChoice> fontDialog(const FontChoice& start) override;
    int shellOpen(const QString& file, const QString& verb, const QString& parameters,
                  const QString& directory, int windowMode) override;

    /// Lets go of everything of the script engine's.
    void release();

private:
    using Argument = std::pair<const char*, QVariant>;
    QJSValue ask(const QJSValue& function, const char* question, std::initializer_list<Argument> arguments);
    std::optional<QString> askForText(const QJSValue& function, const char* question,
                                      std::initializer_list<Argument> arguments);

    Bridge* bridge_;
};

} // namespace zkp::script
