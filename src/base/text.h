#pragma once

#include <QString>
#include <QStringView>

namespace zkp {

/// Leading and trailing blanks (U+0020 only) taken off; tabs and line ends stay.
QStringView trimmed(QStringView text);

/// Each character to its one-character capital: accents stay, final sigma becomes Σ, ΐ stays ΐ.
QString upper(QStringView text);

/// How names are compared everywhere: trimmed, then in capitals.
QString nameKey(QStringView name);
bool sameName(QStringView a, QStringView b);

/// True when nothing but blanks stands in the text.
inline bool isBlank(QStringView text) {
    return trimmed(text).isEmpty();
}

/// The text from its `start`-th UTF-16 unit on, counted from 1; empty when it is shorter.
QString mid(QStringView text, qsizetype start);

} // namespace zkp
