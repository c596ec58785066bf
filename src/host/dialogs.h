#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace zkp {

struct FontChoice {
    QString FontName;
    double FontSize = 8; ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
};

/// Dialogs for a colour and a font. These are cancelled at once.
class StyleDialogs {
public:
    virtual ~StyleDialogs() = default;

    /// A 32-bit colour, blue in the high byte of the three; nothing when cancelled.
    virtual std::optional<std::uint32_t> colorDialog(std::uint32_t /*start*/) { return std::nullopt; }
    virtual std::optional<FontChoice> fontDialog(const FontChoice& /*start*/) { return std::nullopt; }
};

/// Dialogs for the name of a file: a path, or nothing when cancelled. These are cancelled at once.
/// `fileName` is where they start; `filter` is of the form "Text (*.txt)|*.txt|Pictures|*.png;*.jpg".
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    virtual std::optional<QString> saveDialog(const QString& /*title*/, const QString& /*filter*/,
                                              const QString& /*fileName*/) {
        return std::nullopt;
    }
    /// A file that is there.
    virtual std::optional<QString> openDialog(const QString& /*title*/, const QString& /*filter*/,
                                              const QString& /*fileName*/) {
        return std::nullopt;
    }
};

/// One of the control's own dialogs while it is open, as whoever shows it sees it.
class OwnDialog {
public:
    virtual ~OwnDialog() = default;

    virtual QString Name() const = 0;
    virtual QString Title() const = 0;
};

/// Shows the control's own dialogs. These leave each of them at once, as by its leave button.
class OwnDialogs {
public:
    virtual ~OwnDialogs() = default;

    /// Comes back when the user has left the dialog.
    virtual void showDialog(OwnDialog& /*dialog*/) {}
};

} // namespace zkp
