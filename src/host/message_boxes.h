#pragma once

#include <QString>

#include <optional>

namespace zkp {

/// Icons and buttons of a message box, as hosts know them.
enum MsgBoxStyle {
    kMsgBoxPlain = 0,
    kMsgBoxCritical = 16,
    kMsgBoxQuestion = 32,
    kMsgBoxExclamation = 48,
    kMsgBoxInformation = 64
};
enum MsgBoxAnswer { kAnswerOk = 1, kAnswerCancel = 2, kAnswerYes = 6, kAnswerNo = 7 };

/// Boxes that tell and ask. These show nothing: OK, or Yes where a box has it, and no text.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows a box and waits for its answer (MsgBoxAnswer). An empty title is a box without one.
    virtual int msgBox(const QString& text, int style = kMsgBoxPlain, const QString& title = {});
    /// Nothing when cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title, const QString& text);
};

} // namespace zkp
