#pragma once

#include "host/whole_host.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace zkp {

/// A host without a screen: it records what reaches it, and answers by the given functions or else as the
/// services do by themselves: OK (Yes where there is no OK) for boxes, a cancel for everything else.
class ScriptedHost : public WholeHost {
public:
    struct Message {
        QString text;
        int style = 0;
        QString title;
    };

    std::vector<Message> messages;
    QStringList opened;  ///< files handed to the shell
    QStringList printed; ///< names of what reached the printer
    int beeps = 0;
    int shellResult = 33;

    std::function<int(const Message&)> onMsgBox;
    std::function<std::optional<QString>(const QString& prompt, const QString& title, const QString& text)>
        onInputBox;
    std::function<std::optional<QString>(const QString& title, const QString& filter,
                                         const QString& fileName)>
        onSaveDialog;
    std::function<std::optional<QString>(const QString& title, const QString& filter,
                                         const QString& fileName)>
        onOpenDialog;
    std::function<std::optional<std::uint32_t>(std::uint32_t)> onColorDialog;
    std::function<std::optional<FontChoice>(const FontChoice&)> onFontDialog;
    std::function<void(OwnDialog&)> onDialog;
    std::function<void()> onPendingEvents;

    int msgBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& text) override;
    std::optional<std::uint32_t> colorDialog(std::uint32_t start) override;
    std::optional<FontChoice> fontDialog(const FontChoice& start) override;
    std::optional<QString> saveDialog(const QString& title, const QString& filter,
                                      const QString& fileName) override;
    std::optional<QString> openDialog(const QString& title, const QString& filter,
                                      const QString& fileName) override;
    void showDialog(OwnDialog& dialog) override;
    void print(const PrintJob& job) override { printed.append(job.Name); }
    int shellOpen(const QString& file, const QString& verb, const QString& parameters,
                  const QString& directory, int windowMode) override;
    void beep() override { ++beeps; }
    void runPendingEvents() override;
};

} // namespace zkp
