#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// Lets a failed expectation show Qt texts as a reader sees them.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '[' << texts.join(QStringLiteral(" | ")).toStdString() << ']';
}

namespace zkp::test {

inline QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

} // namespace zkp::test
