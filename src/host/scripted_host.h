#pragma once

#include "host/host.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace zkp {

/// A host without a screen: it records every box and answers it by the given functions, or with OK
/// (Yes where there is no OK) for boxes and a cancel for everything else.
class ScriptedHost : public Host {
public:
    struct Message {
        QString text;
        int style = 0;
        QString title;
    };

    std::vector<Message> messages;
    QStringList opened; ///< files handed to the shell
    int beeps = 0;
    int shellResult = 33;

    std::function<int(const Message&)> onMsgBox;
    std::function<std::optional<QString>(const QString& prompt, const QString& title, const QString& text)> onInputBox;
    std::function<std::optional<QString>(const QString& title, const QString& filter, const QString& fileName)> onSaveDialog;
    std::function<std::optional<std::uint32_t>(std::uint32_t)> onColorDialog;
    std::function<std::optional<FontChoice>(const FontChoice&)> onFontDialog;
    std::function<void()> onPendingEvents;

    int msgBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title, const QString& text) override;
    std::optional<QString> saveDialog(const QString& title, const QString& filter, const QString& fileName) override;
    std::optional<std::uint32_t> colorDialog(std::uint32_t start) override;
    std::optional<FontChoice> fontDialog(const FontChoice& start) override;
    void beep() override { ++beeps; }
    int shellOpen(const QString& file, const QString& verb, const QString& parameters, const QString& directory,
                  int windowMode) override;
    int pointer() const override { return pointer_; }
    void setPointer(int pointer) override { pointer_ = pointer; }
    void runPendingEvents() override;

private:
    int pointer_ = kPointerDefault;
};

} // namespace zkp
