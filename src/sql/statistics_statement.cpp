#include "sql/statistics_statement.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/grouped_statement.h"
#include "sql/statement_text.h"

namespace zkp {

namespace {

const QString kLossRatioColumns =
    QStringLiteral(", CASE WHEN SUM(POSONLR)>0 THEN SUM(Poson) / SUM(POSONLR) ELSE 0 END AS LR"
                   ", CASE WHEN SUM(POSON)>0   THEN SUM(PosonLR) / SUM(POSON) ELSE 0 END AS LR1"
                   ",Sum(Poson) - Sum(PosonLR) AS LR2"
                   ", CASE WHEN  SUM(POSON)>0 THEN  (Sum(PosonLR) * 100) / Sum(Poson) ELSE 100 END AS LR3");

/// The aggregates in their order: the function and the alias prefix.
struct Aggregate {
    QLatin1String function; ///< also the name of the flag
    QLatin1String prefix;
};
const Aggregate kAggregates[] = {{QLatin1String("Sum"), QLatin1String("SUM_")},
                                 {QLatin1String("Avg"), QLatin1String("AVG_")},
                                 {QLatin1String("Min"), QLatin1String("MIN_")},
                                 {QLatin1String("Max"), QLatin1String("MAX_")}};

bool flag(ado::Recordset& row, const Aggregate& aggregate) {
    return isSet(row.Fields().Item(QString(aggregate.function)).Value());
}

/// Whether the grid asks for an aggregate: a search with no end mark, so that a longer key satisfies a
/// shorter one; the sum alone is looked for without regard to case. Wanted.
bool isWanted(const QString& wanted, const Aggregate& aggregate, const QString& key) {
    const QString name = aggregate.prefix + key;
    if (aggregate.prefix != QLatin1String("SUM_"))
        return wanted.contains(name);
    return upper(wanted).contains(name) || upper(wanted).contains(QStringLiteral("POS_") + key);
}

} // namespace

QString StatisticsStatement::RunTimeStatsSQL() {
    QString statement;
    try {
        QString tables = QStringLiteral(" , ") + inputs_.master.MasterTable + u' ';
        translation_.TranslateFilter(tables);
        if (isBlank(inputs_.grouping.Groupby))
            return {}; // `SQLRun` keeps the statement before
        statement = build(tables);
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::statisticsFailed());
    }
    inputs_.keepStatement(statement);
    return statement;
}

QString StatisticsStatement::build(QString& tables) {
    QString select = groupItems(tables) + QStringLiteral(", Count(*) as cnt ");
    const QString wanted = wantedColumns();
    select += aggregates(wanted, tables);
    if (inputs_.data.LossRatio)
        select += kLossRatioColumns;
    inputs_.setGroupby(groupList(tables));
    // With its alias, as wanted: a single key becomes a text that the database refuses.
    if (!isBlank(inputs_.data.OrderBy))
        inputs_.setOrderBy(fields_.makefldSql(inputs_.data.OrderBy, tables));
    const QString from = joins_.MakeFromAndJoins(tables);
    hierarchy_.restrictFilter();
    QString statement = QStringLiteral("SELECT DISTINCT ") + select + QStringLiteral(" FROM ") + from +
                        QStringLiteral(" Where ") + inputs_.data.Filter + QStringLiteral(" Group By ") +
                        inputs_.grouping.Groupby;
    if (!isBlank(inputs_.data.OrderBy))
        statement += QStringLiteral(" Order by ") + inputs_.data.OrderBy;
    return statement;
}

QString StatisticsStatement::groupItems(QString& tables) {
    QStringList items;
    for (int i = 0; i < inputs_.factorCount(); ++i)
        items << fields_.makefldSql(inputs_.dataField(i), tables);
    return items.join(u',');
}

/// The keys of the grid's aggregate columns. The first keeps its case, as wanted.
QString StatisticsStatement::wantedColumns() {
    QString wanted;
    inputs_.wantPercentColumns(false);
    for (int i = 0; i < inputs_.cols(); ++i) {
        const QString field = inputs_.dataField(i);
        if (upper(field.left(4)) == QStringLiteral("POS_"))
            inputs_.wantPercentColumns(true);
        if (!QStringLiteral("SUM_AVG_MIN_MAX_").contains(nameKey(field.left(4))) && !inputs_.isTotalled(i))
            continue;
        if (nameKey(wanted).contains(nameKey(field)))
            continue;
        wanted = isBlank(wanted) ? field : wanted + QStringLiteral(", ") + nameKey(field);
    }
    return wanted;
}

/// A dictionary row with any flag costs a look-up and may add its table, asked for or not.
QString StatisticsStatement::aggregates(const QString& wanted, QString& tables) {
    QString items;
    ado::Recordset& row = *dictionary_.recordset();
    if (row.RecordCount() > 0)
        row.MoveFirst();
    for (; !row.Eof(); row.MoveNext()) {
        const QString stored = textOf(row.Fields().Item(u"dtfld").Value());
        if (inputs_.data.LossRatio && isLossRatioKey(stored))
            continue;
        bool any = false;
        for (const Aggregate& aggregate : kAggregates)
            any = any || flag(row, aggregate);
        if (!any)
            continue;
        const QString key = nameKey(stored);
        const QString physical = fields_.makefldSql(key, tables, false);
        for (const Aggregate& aggregate : kAggregates)
            if (flag(row, aggregate) && isWanted(wanted, aggregate, key))
                items += QStringLiteral(", ") + aggregate.function + u'(' + physical +
                         QStringLiteral(") As ") + aggregate.prefix + key;
    }
    return items;
}

QString StatisticsStatement::groupList(QString& tables) {
    QStringList items;
    for (int i = 0; i < inputs_.factorCount(); ++i)
        items << fields_.makefldSql(inputs_.factor(i), tables, false);
    return items.join(u',');
}

} // namespace zkp
