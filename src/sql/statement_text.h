#pragma once

#include "base/error.h"

#include <QString>
#include <QVariant>

namespace zkp {

/// Appends an item with a separator before it, unless the list is still blank.
void appendItem(QString& list, const QString& item, const QString& separator = QStringLiteral(","));

/// A field as text with null read as the empty text.
QString textOrEmpty(const QVariant& value);
/// A field as text; a null can't become one (Error 94).
QString textOf(const QVariant& value);
/// A flag of the dictionary, Boolean or 0/1; null is False.
bool isSet(const QVariant& value);

/// Puts `StrDest` for the first occurrence of `StrSource` in `StrForReplace`, compared in capitals. An
/// empty `StrSource` is found at the front of a text that is not empty.
QString ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                 const QString& StrDest);

} // namespace zkp
