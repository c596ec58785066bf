#include "window/table_text.h"

#include "base/text.h"
#include "base/value.h"

#include <QLocale>

namespace zkp::app {

QString columnText(ado::Recordset& row, QStringView column) {
    const int field = row.Fields().indexOf(column);
    if (field < 0)
        return {};
    return trimmed(valueText(row.Fields().Item(field).Value(), ReportLocale(QLocale::c()))).toString();
}

bool columnFlag(ado::Recordset& row, QStringView column, bool missing) {
    const int field = row.Fields().indexOf(column);
    return field < 0 ? missing : row.Fields().Item(field).Value().toBool();
}

} // namespace zkp::app
