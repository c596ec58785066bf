#include "sql/grouped_statement.h"

#include "base/text.h"
#include "sql/statement_text.h"

namespace zkp {

bool isLossRatioKey(const QString& key) {
    return key == QStringLiteral("LR") || key == QStringLiteral("LR1") || key == QStringLiteral("LR2") ||
           key == QStringLiteral("LR3");
}

namespace {

const QString kLossRatioColumns =
    QStringLiteral(", case when SUM(POSONLR)>0 then (SUM(Poson) / SUM(POSONLR)) else 0 end AS LR"
                   ", case when SUM(POSON)>0 then SUM(PosonLR) / SUM(POSON) else 0 end  AS LR1"
                   ",Sum(Poson) - Sum(PosonLR) AS LR2"
                   ",case when  SUM(POSON)>0 then (Sum(PosonLR) * 100) / Sum(Poson) else 100 end AS LR3");

bool wants(const QString& wanted, const char* prefix, const QString& key) {
    return wanted.contains(QLatin1String(prefix) + key + u']');
}

} // namespace

QString GroupedStatement::GroupedSQL() {
    if (isBlank(inputs_.grouping.Groupby))
        return {};
    inputs_.beginFilter();
    QString select = inputs_.grouping.Groupby + QStringLiteral(", Count(*) As Cnt");
    const QString order = orderText();
    const QString wanted = wantedColumns();

    ado::Recordset& row = *dictionary_.recordset();
    if (row.RecordCount() > 0)
        row.MoveFirst();
    if (wanted.contains(QStringLiteral("[POS_CNT]")))
        select += u',' + countPercentage();
    for (; !row.Eof(); row.MoveNext()) {
        if (inputs_.data.LossRatio && isLossRatioKey(textOf(row.Fields().Item(u"dtfld").Value())))
            continue;
        addAggregates(select, wanted, row);
    }
    if (inputs_.data.LossRatio)
        select += kLossRatioColumns;

    hierarchy_.restrictFilter();
    const QString source = inputs_.sourceText();
    const QString from =
        inputs_.source.SourceType == ZKP_Table_QUERY ? source : u'(' + source + QStringLiteral(") AA");
    return QStringLiteral("SELECT DISTINCT ") + select + QStringLiteral(" FROM ") + from +
           QStringLiteral(" Where ") + inputs_.data.Filter + QStringLiteral(" Group By ") +
           inputs_.grouping.Groupby + order;
}

/// The last of several factors isn't sorted on, as wanted.
QString GroupedStatement::orderText() const {
    const QString by = QStringLiteral(" order by ");
    const bool sorted = !isBlank(inputs_.data.OrderBy);
    const QString sort = ReplaceStringIntoAString(inputs_.data.OrderBy, inputs_.sorting.OrderByPhysical,
                                                  inputs_.sorting.OrderByAlias);
    const qsizetype lastComma = inputs_.grouping.Groupby.lastIndexOf(u',');
    if (lastComma >= 0)
        return by + inputs_.grouping.Groupby.left(lastComma) + (sorted ? u',' + sort : QString());
    return by + (sorted ? sort : inputs_.grouping.Groupby);
}

/// The bracketed names of the grid's aggregate columns. A blank field counts among them, as wanted.
QString GroupedStatement::wantedColumns() {
    QString wanted;
    for (int i = 0; i < inputs_.cols(); ++i) {
        const QString field = inputs_.dataField(i);
        if (!QStringLiteral("POS_AVG_MIN_MAX_").contains(nameKey(field.left(4))) && !inputs_.isTotalled(i))
            continue;
        inputs_.wantPercentColumns(true);
        appendItem(wanted, u'[' + nameKey(field) + u']');
    }
    return wanted;
}

/// The parent group: all factors but the innermost, each equal to the outer row's.
QString GroupedStatement::correlation(const QString& alias) const {
    QString conditions;
    for (int j = 0; j <= inputs_.grouping.GroupFactorCount - 2; ++j) {
        if (j >= inputs_.grouping.GroupFactors.size())
            throw Error(kErrSubscript, QStringLiteral("Subscript out of range"),
                        QStringLiteral("GroupedSQL"));
        const QString& factor = inputs_.factor(j);
        appendItem(conditions,
                   inputs_.sourceText() + QStringLiteral(".[") + factor + QStringLiteral("] = Rs__") + alias +
                       QStringLiteral(".[") + factor + u']',
                   QStringLiteral(" And "));
    }
    return conditions;
}

QString GroupedStatement::parentFilter(const QString& alias) const {
    const QString conditions = correlation(alias);
    return isBlank(conditions) ? inputs_.data.Filter
                               : inputs_.data.Filter + QStringLiteral(" and ") + conditions;
}

QString GroupedStatement::countPercentage() const {
    const QString alias = QStringLiteral("_CNT");
    return QStringLiteral("(Count(*) * 100) / (SELECT case when Count(*)=0 then 1 else Count(*) End FROM ") +
           inputs_.sourceText() + QStringLiteral(" As Rs__") + alias + QStringLiteral(" Where ") +
           Hierarchy::normalized(parentFilter(alias)) + QStringLiteral(") AS POS_CNT");
}

/// The condition of a percentage is not checked for blank here, unlike the count's; wanted.
void GroupedStatement::addAggregates(QString& select, const QString& wanted, ado::Recordset& row) const {
    const QString stored = trimmed(textOf(row.Fields().Item(u"dtfld").Value())).toString();
    const QString key = upper(stored);
    const bool percentage = wanted.contains(QStringLiteral("POS_") + key + u']');
    if (isSet(row.Fields().Item(u"Sum").Value()) &&
        (wants(wanted, "[SUM_", key) || wants(wanted, "[POS_", key) || wants(wanted, "[AVG_", key) ||
         wants(wanted, "[MAX_", key) || wants(wanted, "[MIN_", key))) {
        select += QStringLiteral(", Sum([") + stored + QStringLiteral("]) As [SUM_") + key + u']';
        if (percentage)
            select += QStringLiteral(", (Sum([") + key +
                      QStringLiteral("]) * 100) / (SELECT case when Sum([") + key +
                      QStringLiteral("])>0 then Sum([") + key + QStringLiteral("]) ELSE 1 END  FROM ") +
                      inputs_.sourceText() + QStringLiteral(" As Rs__") + key + QStringLiteral(" Where ") +
                      parentFilter(key) + QStringLiteral(") AS POS_") + key;
    }
    if (isSet(row.Fields().Item(u"Avg").Value()) && wants(wanted, "[AVG_", key))
        select += QStringLiteral(", Avg([") + key + QStringLiteral("]) As AVG_") + key;
    if (isSet(row.Fields().Item(u"Min").Value()) && wants(wanted, "[MIN_", key))
        select += QStringLiteral(", Min([") + key + QStringLiteral("]) As MIN_") + key;
    if (isSet(row.Fields().Item(u"Max").Value()) && wants(wanted, "[MAX_", key))
        select += QStringLiteral(", Max([") + key + QStringLiteral("]) As MAX_") + key;
}

} // namespace zkp
