#include "sql/joins.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

QString Joins::MakeFromAndJoins(QString& Tables) {
    const ReportState& state = inputs_.state;
    QString from;
    try {
        if (!isBlank(state.FilterTables))
            Tables += QStringLiteral(", ") + state.FilterTables;
        const QString master = nameKey(state.MasterTable);
        const QStringList parts = Tables.split(u',');
        from = u' ' + master + u' ';
        // What stands before the first comma is no table.
        for (qsizetype i = 1; i < parts.size(); ++i) {
            if (nameKey(parts[i]) == master)
                continue;
            const QString table = trimmed(parts[i]).toString();
            const QString condition = FindJoinON(table);
            const QString left = nameKey(from) == master ? from : u'(' + from + u')';
            from = left + QStringLiteral(" LEFT JOIN [") + table + QStringLiteral("] ON ") + condition;
        }
    } catch (const std::exception&) {
        boxes_.msgBox(texts::fromFailed(), kMsgBoxCritical);
    }
    return from;
}

QString Joins::FindJoinON(const QString& Table) {
    const ReportState& state = inputs_.state;
    if (isBlank(state.clmns))
        return {};
    try {
        ado::Recordset row;
        row.Open(QStringLiteral("Select TOP 1 * From ") + state.clmns +
                     QStringLiteral(" Where SourceTableName = '") + upper(Table) + u'\'',
                 state.Cn, ado::adOpenStatic);
        const QString masterKey = nameKey(textOrEmpty(row.Fields().Item(u"KeyMaster").Value()));
        // The foreign key alone keeps its case, as wanted.
        const QString foreignKey = trimmed(textOrEmpty(row.Fields().Item(u"foreignkey").Value())).toString();
        return u'[' + nameKey(state.MasterTable) + QStringLiteral("].[") + masterKey +
               QStringLiteral("] = [") + nameKey(Table) + QStringLiteral("].[") + foreignKey + u']';
    } catch (const std::exception&) {
        boxes_.msgBox(texts::joinFailed(), kMsgBoxCritical);
        return {};
    }
}

} // namespace zkp
