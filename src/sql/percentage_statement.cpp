#include "sql/percentage_statement.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

QString PercentageStatement::RunTimePosSql() {
    try {
        return build();
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::percentagesFailed());
        return {};
    }
}

QString PercentageStatement::build() {
    if (isBlank(inputs_.master.MasterTable))
        master_.FindMaster();
    QString tables = QStringLiteral(", ") + inputs_.master.MasterTable + u' ';
    if (isBlank(inputs_.grouping.Groupby))
        return {};

    QString groups;
    QString select;
    for (int i = 0; i < inputs_.factorCount(); ++i) {
        appendItem(groups, fields_.makefldSql(inputs_.factor(i), tables, false));
        appendItem(select, fields_.makefldSql(inputs_.dataField(i), tables));
    }
    // Never cleared, so that each percentage column adds all of it once more; wanted.
    QString percentTables;
    for (int i = inputs_.grouping.GroupFactorCount; i < inputs_.cols(); ++i) {
        const QString column = nameKey(inputs_.dataField(i));
        if (!column.startsWith(QStringLiteral("POS_")))
            continue;
        if (column == QStringLiteral("POS_CNT")) {
            appendItem(select, QStringLiteral("Count(") + countKey() + QStringLiteral(") AS CNT"));
            continue;
        }
        const QString base = mid(column, 5);
        const QString expression = fields_.makefldSql(base, percentTables, false);
        tables += u' ' + percentTables + u' ';
        appendItem(select, QStringLiteral("SUM(") + expression + QStringLiteral(") AS SUM_") + base);
    }
    const QString from = joins_.MakeFromAndJoins(tables);
    hierarchy_.restrictFilter();
    QString statement = QStringLiteral("SELECT DISTINCT ") + select + QStringLiteral(" FROM ") + from +
                        QStringLiteral(" Where ") + inputs_.data.Filter;
    if (!isBlank(groups))
        statement += QStringLiteral(" Group By ") + groups;
    return statement;
}

QString PercentageStatement::countKey() const {
    return isBlank(inputs_.master.RKeyname)
               ? QStringLiteral("*")
               : trimmed(QString(inputs_.master.MasterTable + u'.' + inputs_.master.RKeyname)).toString();
}

} // namespace zkp
