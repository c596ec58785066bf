#include "sql/statement_text.h"

#include "base/currency.h"
#include "base/text.h"

namespace zkp {

void appendItem(QString& list, const QString& item, const QString& separator) {
    if (!isBlank(list))
        list += separator + item;
    else
        list = item;
}

QString textOrEmpty(const QVariant& value) {
    return value.isValid() ? value.toString() : QString();
}

QString textOf(const QVariant& value) {
    if (!value.isValid())
        throw Error(kErrInvalidNull, QStringLiteral("Invalid use of Null"));
    return value.toString();
}

bool isSet(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().scaled != 0;
    return value.isValid() && (value.toDouble() != 0 || value.toString() == QStringLiteral("true"));
}

QString ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                 const QString& StrDest) {
    if (StrForReplace.isEmpty())
        return StrForReplace;
    const qsizetype found = upper(StrForReplace).indexOf(upper(StrSource));
    if (found < 0)
        return StrForReplace;
    return StrForReplace.left(found) + StrDest + StrForReplace.sliced(found + StrSource.size());
}

} // namespace zkp
