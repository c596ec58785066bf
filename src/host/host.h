#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace zkp {

/// Icons and buttons of a message box, as hosts know them.
enum MsgBoxStyle { kMsgBoxPlain = 0, kMsgBoxCritical = 16, kMsgBoxQuestion = 32, kMsgBoxExclamation = 48, kMsgBoxInformation = 64 };
enum MsgBoxAnswer { kAnswerOk = 1, kAnswerCancel = 2, kAnswerYes = 6, kAnswerNo = 7 };
enum MousePointer { kPointerDefault = 0, kPointerHourglass = 11, kPointerNoDrop = 12, kPointerCustom = 99 };

struct FontChoice {
    QString FontName;
    double FontSize = 8; ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
};

/// Everything that the control asks of the world around it: boxes, dialogs, pointer, shell. The
/// engine writes to the user through this and nothing else. One for windows (widgets/), one for
/// scripts and tests (ScriptedHost).
class Host {
public:
    virtual ~Host() = default;

    /// Shows a box and waits for its answer (MsgBoxAnswer). An empty title is a box without one.
    virtual int msgBox(const QString& text, int style = kMsgBoxPlain, const QString& title = {}) = 0;
    /// Nothing when cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title, const QString& text) = 0;
    /// A path, or nothing when cancelled.
    virtual std::optional<QString> saveDialog(const QString& title, const QString& filter, const QString& fileName) = 0;
    /// A 32-bit colour, blue in the high byte of the three; nothing when cancelled.
    virtual std::optional<std::uint32_t> colorDialog(std::uint32_t start) = 0;
    virtual std::optional<FontChoice> fontDialog(const FontChoice& start) = 0;

    virtual void beep() = 0;
    /// Hands a file to the system's shell; the result is above 32 on success, the shell's code otherwise.
    virtual int shellOpen(const QString& file, const QString& verb, const QString& parameters,
                          const QString& directory, int windowMode) = 0;
    /// The screen's mouse pointer (MousePointer).
    virtual int pointer() const = 0;
    virtual void setPointer(int pointer) = 0;
    /// Lets pending events run once.
    virtual void runPendingEvents() = 0;
};

} // namespace zkp
