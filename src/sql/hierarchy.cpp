#include "sql/hierarchy.h"

#include "base/text.h"
#include "base/value.h"

namespace zkp {

namespace {

/// The levels that compare a second column with the identity at that level.
struct Level {
    QStringView code;
    QStringView column;
};
constexpr Level kLevels[] = {
    {u"1", u"AgencyIdentity"},
    {u"2", u"AssistantIdentity"},
    {u"3", u"UnitIdentity"},
    {u"4", u"ManagerIdentity"},
};

bool isOwnRowsOnly(const QString& level) {
    return level == QStringLiteral("0") || level == QStringLiteral("5");
}

/// Empty for any other level: such a user sees all rows.
QString secondColumn(const QString& level) {
    for (const Level& known : kLevels)
        if (level == known.code)
            return known.column.toString();
    return {};
}

QString quoted(const QString& text) {
    return u'\'' + text + u'\'';
}

QString fieldText(ado::Recordset& row, int index) {
    return valueText(row.Fields().Item(index).Value(), ReportLocale(QLocale::c()));
}

} // namespace

void Hierarchy::LoadIerarxia() {
    ado::Recordset row;
    row.Open(QStringLiteral(" exec Sec_GetUserIerarxiaID ") + quoted(identity_.ProductID), inputs_.source.Cn);
    identity_.Ierarxia = fieldText(row, 0);
    identity_.IerID = fieldText(row, 1);
    row.Close();
}

QString Hierarchy::normalized(const QString& filter) {
    const QString key = nameKey(filter);
    return key.isEmpty() || key == QStringLiteral("TRUE") ? QStringLiteral(" 0=0 ") : filter;
}

void Hierarchy::restrictFilter() {
    QString filter = normalized(inputs_.data.Filter);
    if (!identity_.ProductID.isEmpty()) {
        const QString column = secondColumn(identity_.Ierarxia);
        if (isOwnRowsOnly(identity_.Ierarxia)) {
            filter +=
                QStringLiteral(" and ProductIdentity = ") + quoted(trimmed(identity_.ProductID).toString());
        } else if (!column.isEmpty()) {
            // Two blanks at the front for level 1 alone, as wanted.
            filter += (identity_.Ierarxia == QStringLiteral("1") ? QStringLiteral("  and (")
                                                                 : QStringLiteral(" and (")) +
                      QStringLiteral("ProductIdentity = ") + quoted(identity_.ProductID) +
                      QStringLiteral(" or ") + column + QStringLiteral(" = ") + quoted(identity_.IerID) +
                      u')';
        }
    }
    if (filter != inputs_.data.Filter)
        inputs_.setFilter(filter);
}

QString Hierarchy::restricted(const QString& filter) const {
    if (identity_.ProductID.isEmpty())
        return filter;
    if (isOwnRowsOnly(identity_.Ierarxia))
        return filter + QStringLiteral("  and (ProductIdentity) = ") + quoted(identity_.ProductID);
    QString column = secondColumn(identity_.Ierarxia);
    if (column.isEmpty())
        return filter;
    if (identity_.Ierarxia == QStringLiteral("2"))
        column = QStringLiteral("assistantIdentity"); // a small a here, as wanted
    return filter + QStringLiteral(" and ((ProductIdentity) = ") + quoted(identity_.ProductID) +
           QStringLiteral(" or (") + column + QStringLiteral(") = ") + quoted(identity_.IerID) + u')';
}

QString Hierarchy::recordsetFilter() const {
    if (isOwnRowsOnly(identity_.Ierarxia))
        return QStringLiteral(" ProductIdentity = ") + quoted(identity_.ProductID);
    const QString column = secondColumn(identity_.Ierarxia);
    if (column.isEmpty())
        return {};
    return QStringLiteral(" (ProductIdentity = ") + quoted(identity_.ProductID) + QStringLiteral(" or ") +
           column + QStringLiteral(" = ") + quoted(identity_.IerID) + u')';
}

} // namespace zkp
