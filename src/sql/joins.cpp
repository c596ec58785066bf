#include "sql/joins.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

QString Joins::MakeFromAndJoins(QString& Tables) {
    QString from;
    try {
        if (!isBlank(inputs_.data.FilterTables))
            Tables += QStringLiteral(", ") + inputs_.data.FilterTables;
        const QString master = nameKey(inputs_.master.MasterTable);
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
        inputs_.tellFailure(texts::fromFailed());
    }
    return from;
}

QString Joins::FindJoinON(const QString& Table) {
    if (isBlank(inputs_.data.clmns))
        return {};
    try {
        ado::Recordset row;
        row.Open(QStringLiteral("Select TOP 1 * From ") + inputs_.data.clmns +
                     QStringLiteral(" Where SourceTableName = '") + upper(Table) + u'\'',
                 inputs_.source.Cn, ado::adOpenStatic);
        const QString masterKey = nameKey(textOrEmpty(row.Fields().Item(u"KeyMaster").Value()));
        // The foreign key alone keeps its case, as wanted.
        const QString foreignKey = trimmed(textOrEmpty(row.Fields().Item(u"foreignkey").Value())).toString();
        return u'[' + nameKey(inputs_.master.MasterTable) + QStringLiteral("].[") + masterKey +
               QStringLiteral("] = [") + nameKey(Table) + QStringLiteral("].[") + foreignKey + u']';
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::joinFailed());
        return {};
    }
}

} // namespace zkp
