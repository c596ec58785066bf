#pragma once

#include <QString>

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <string>
#include <string_view>

namespace zkp::ado::odbc {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the driver manager's wide characters are UTF-16");

inline QString wideText(const SQLWCHAR* text, qsizetype length) {
    return QString(reinterpret_cast<const QChar*>(text), length);
}

/// For the manager's calls, which take texts without const and leave them as they are.
inline SQLWCHAR* wide(const QString& text) {
    return const_cast<SQLWCHAR*>(reinterpret_cast<const SQLWCHAR*>(text.utf16()));
}

/// Puts the UTF-8 of a UTF-16 text into `utf8`, in place of what is there. Half of a surrogate pair becomes
/// U+FFFD.
void toUtf8(std::u16string_view text, std::string& utf8);

} // namespace zkp::ado::odbc
