#include "rights/report.h"

#include "base/currency.h"

#include <QDateTime>

#include <algorithm>
#include <cstdlib>

namespace zkp::rights {

using namespace Qt::StringLiterals;

namespace {

bool isAggregate(const QString& column) {
    static const QStringList prefixes{u"SUM_"_s, u"AVG_"_s, u"MIN_"_s, u"MAX_"_s, u"POS_"_s};
    return prefixes.contains(column.left(4));
}

QString plainText(const QVariant& value) {
    if (!value.isValid())
        return u"NULL"_s;
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toPlainText();
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::QDateTime:
        return value.toDateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 15);
    default:
        return value.toString();
    }
}

} // namespace

Cell::Cell(const QString& given) {
    bool isNumber = false;
    const double value = given.toDouble(&isNumber);
    if (isNumber)
        number = qRound64(value * 10'000);
    const bool atMidnight = given.endsWith(u" 00:00:00"_s);
    text = (isNumber ? QString::number(*number) : atMidnight ? given.chopped(9) : given).toStdString();
}

bool Cell::operator==(const Cell& other) const {
    return number && other.number ? std::abs(*number - *other.number) <= 1 : text == other.text;
}

void PrintTo(const Cell& cell, std::ostream* out) {
    *out << (cell.number ? QString::number(static_cast<double>(*cell.number) / 10'000).toStdString()
                         : cell.text);
}

void setUp(ZkpGrid& grid, const Report& report) {
    const QStringList all = report.factors + report.columns;
    grid.setCols(static_cast<int>(all.size()));
    for (int c = 0; c < all.size(); ++c) {
        grid.setColDataField(c, all[c]);
        grid.setColForTot(c, c < report.factors.size());
        grid.setColTotals(c, report.totals && isAggregate(all[c]));
    }
    grid.setclmns(report.dictionary);
    grid.setTotalForm(report.totals);
    grid.setSqlOnRunTime(report.runTime);
    grid.setLossRatio(report.lossRatio);
    grid.setFilter(report.filter);
    grid.setOrderBy(report.orderBy);
}

void fill(ZkpGrid& grid, const Report& report, const ado::ConnectionPtr& connection, const QString& user) {
    grid.Fill(connection, report.source, ZKP_Table_QUERY, user);
}

Rows rowsOf(const ado::RecordsetPtr& records, const QStringList& fields) {
    Rows rows;
    if (!records || records->RecordCount() == 0)
        return rows;
    for (records->MoveFirst(); !records->Eof(); records->MoveNext()) {
        auto& row = rows.emplace_back();
        for (const QString& field : fields)
            row.emplace_back(plainText(records->Fields().Item(field).Value()));
    }
    return rows;
}

Rows byHand(const std::string& statement) {
    return byHand(madeDatabase(), statement);
}

Rows byHand(const demo::test::Reader& database, const std::string& statement) {
    Rows rows;
    for (const auto& given : database.rows(statement)) {
        auto& row = rows.emplace_back();
        for (const std::string& text : given)
            row.emplace_back(QString::fromStdString(text));
    }
    return rows;
}

Rows sorted(Rows rows) {
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace zkp::rights
