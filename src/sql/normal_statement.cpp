#include "sql/normal_statement.h"

#include "base/number.h"
#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

namespace {

QString bracketed(const QString& name) {
    return u'[' + name + u']';
}

} // namespace

QString NormalStatement::NormalSQL() {
    QString statement;
    try {
        inputs_.beginFilter();
        if (isBlank(inputs_.data.Filter))
            inputs_.setFilter(QStringLiteral(" true "));
        const QString fields = selectList();
        const QString order = orderList();
        QString source = inputs_.sourceText();
        QString select = QStringLiteral("SELECT ");
        if (nameKey(source) == QStringLiteral("QRYPRODUCT") && isProductOfCode151()) {
            source = QStringLiteral("QRYProductNik");
            select = QStringLiteral("SELECT DISTINCT ");
        }
        const QString filter = hierarchy_.restricted(Hierarchy::normalized(inputs_.data.Filter));
        statement = select + fields + QStringLiteral(" From ") + bracketed(source) +
                    QStringLiteral(" Where ") + filter;
        if (!isBlank(order))
            statement += QStringLiteral(" order by ") + order;
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::normalFailed());
    }
    return statement;
}

/// The group factors and each column's key once; the comparison is exact.
QString NormalStatement::selectList() const {
    if (inputs_.data.Fund)
        return QStringLiteral(" * ");
    QString list;
    for (int i = 0; i < inputs_.factorCount(); ++i)
        if (!isBlank(inputs_.factor(i)))
            appendItem(list, bracketed(inputs_.factor(i)));
    for (int i = 0; i < inputs_.columns.Count(); ++i) {
        const QString key = inputs_.dataField(i);
        if (!isBlank(key) && !list.contains(bracketed(key)))
            appendItem(list, bracketed(key));
    }
    return list;
}

/// Without an `OrderBy` the group factors are dropped and the first four columns sort, as wanted: a
/// source with fewer columns fails at the database.
QString NormalStatement::orderList() const {
    if (isBlank(inputs_.data.OrderBy))
        return QStringLiteral(" 1,2,3,4 ");
    QString order;
    for (int i = 0; i < inputs_.factorCount(); ++i)
        appendItem(order, bracketed(inputs_.factor(i)));
    appendItem(order, inputs_.data.OrderBy);
    return order;
}

bool NormalStatement::isProductOfCode151() const {
    ado::Recordset setting;
    setting.Open(QStringLiteral("SELECT GenValue from QRN_MAIN where GenKEY = 2 and GenSubKey=18"),
                 inputs_.source.Cn, ado::adOpenStatic);
    return !(setting.Bof() && setting.Eof()) && toInt16(setting.Fields().Item(0).Value()) == 151;
}

} // namespace zkp
