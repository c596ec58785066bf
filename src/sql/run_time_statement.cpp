#include "sql/run_time_statement.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

QString RunTimeStatement::tablesAtStart() const {
    return QStringLiteral(" , ") + inputs_.master.MasterTable + u' ';
}

QString RunTimeStatement::RunTimeSQL() {
    QString statement;
    try {
        QString tables = tablesAtStart();
        translation_.TranslateFilter(tables);
        const QString fields = selectList(tables);
        const QString order = orderList(tables);
        const QString from = joins_.MakeFromAndJoins(tables);
        hierarchy_.restrictFilter(); // behind the joins, so that it adds none
        statement = QStringLiteral("SELECT ") + fields + QStringLiteral(" FROM ") + from +
                    QStringLiteral(" Where ") + inputs_.data.Filter;
        if (!isBlank(order))
            statement += QStringLiteral(" Order By ") + order;
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::runTimeFailed());
    }
    inputs_.keepStatement(statement);
    return statement;
}

QString RunTimeStatement::RunTimeSQLCounter() {
    try {
        QString tables = tablesAtStart();
        translation_.TranslateFilter(tables);
        const QString from = joins_.MakeFromAndJoins(tables);
        hierarchy_.restrictFilter();
        return QStringLiteral("SELECT Count(*) As Cnt FROM ") + from + QStringLiteral(" Where ") +
               inputs_.data.Filter;
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::counterFailed());
        return {};
    }
}

/// Group factors stand in the first columns, so they come first; then every column, hidden ones too.
QString RunTimeStatement::selectList(QString& Tables) {
    QString list;
    for (int i = 0; i < inputs_.factorCount(); ++i)
        if (!isBlank(inputs_.factor(i)))
            addField(list, inputs_.dataField(i), Tables);
    for (int i = 0; i < inputs_.cols(); ++i)
        addField(list, inputs_.dataField(i), Tables);
    return list;
}

/// An item whose text occurs anywhere in the list already is dropped, even as part of a longer one.
void RunTimeStatement::addField(QString& list, const QString& key, QString& Tables) {
    const QString item = fields_.makefldSql(key, Tables);
    if (!isBlank(item) && !nameKey(list).contains(nameKey(item)))
        appendItem(list, item, QStringLiteral(", "));
}

/// An unknown group key leaves a comma with nothing behind it, as wanted.
QString RunTimeStatement::orderList(QString& Tables) {
    QString order;
    for (int i = 0; i < inputs_.factorCount(); ++i) {
        const QString item = fields_.makefldSql(inputs_.factor(i), Tables, false);
        if (!isBlank(item) && isBlank(order))
            order = item;
        else
            order += u',' + item;
    }
    if (!isBlank(inputs_.data.OrderBy))
        appendItem(order, inputs_.data.OrderBy);
    return order;
}

} // namespace zkp
