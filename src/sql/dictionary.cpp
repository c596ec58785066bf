#include "sql/dictionary.h"

#include "base/text.h"

namespace zkp {

bool Dictionary::isNamed() const {
    return !isBlank(data_.clmns);
}

ado::RecordsetPtr Dictionary::recordset() {
    if (!recordset_)
        recordset_ = std::make_shared<ado::Recordset>();
    return recordset_;
}

bool Dictionary::isOpen() const {
    return recordset_ && recordset_->State() == ado::adStateOpen;
}

void Dictionary::load() {
    if (!isNamed())
        return;
    const ado::RecordsetPtr rows = recordset();
    if (rows->State() == ado::adStateClosed)
        open(whereClause());
    else if (rows->RecordCount() > 0)
        rows->MoveFirst();
}

void Dictionary::loadForEmptyReport() {
    const ado::RecordsetPtr rows = recordset();
    if (rows->State() == ado::adStateOpen)
        rows->Close();
    open(
        data_.TotalForm
            ? QStringLiteral(" where visbl=1 and (isGroup or [Sum] or [Avg] or [Min] or [Max]) order by cptn")
            : QStringLiteral(" where visbl = 1  order by cptn"));
}

/// The blanks are as the statements have always had them.
QString Dictionary::whereClause() const {
    const bool restricted = !identity_.ProductID.isEmpty();
    if (!data_.TotalForm)
        return restricted ? QStringLiteral(" where visbl = 1 and IsPublic <> 0 order by cptn")
                          : QStringLiteral(" where visbl = 1  order by cptn");
    const QString aggregates = QStringLiteral(
        " and (isGroup = 1 or [Sum] = 1 or [Avg] = 1 or [Min] =1  or [Max] = 1) order by cptn");
    return (restricted ? QStringLiteral(" where visbl = 1 and IsPublic <> 0")
                       : QStringLiteral(" where visbl = 1")) +
           aggregates;
}

void Dictionary::open(const QString& where) {
    recordset()->Open(QStringLiteral("Select * from ") + data_.clmns + where, source_.Cn, ado::adOpenStatic);
}

} // namespace zkp
