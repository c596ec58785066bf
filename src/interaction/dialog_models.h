#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace zkp {

// What the dialogs' rules need to know of a control, without the control.

struct TextBoxModel {
    QString Text;
    QString Tag; ///< free text; may hold the marker of a check
    int SelStart = 0;
    int SelLength = 0;
    int MaxLength = 0; ///< 0 where the length is free
};

/// Where a form stands, in twips. The scale sizes are those of its inner area.
struct FormPlace {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
    double ScaleWidth = 0;
    double ScaleHeight = 0;
};

/// In twips.
struct ScreenSize {
    double Width = 0;
    double Height = 0;
};

/// A list or combo box: its rows, and the chosen one (-1 is none).
struct ListModel {
    QStringList List;
    int ListIndex = -1;
};

constexpr int kAnsiCharset = 0;
constexpr int kGreekCharset = 161;

/// A font by name and character set. A system may answer a change of the character set with another
/// font's name, where the font has no such form.
struct FontModel {
    QString Name;
    int Charset = kAnsiCharset;
    /// The name that the system gives a font in a character set; without it every font has every form.
    std::function<QString(const QString& name, int charset)> nameInCharset;

    void setCharset(int charset) {
        Charset = charset;
        if (nameInCharset)
            Name = nameInCharset(Name, charset);
    }
};

} // namespace zkp
