#include "window/plain_report.h"

#include <QLocale>
#include <QStringList>

namespace zkp::app {

namespace {

QString source() {
    return QStringLiteral("POLICIESDATA");
}
QString dictionary() {
    return QStringLiteral("POLICIESCLMNS");
}

/// The fields that the list shows, of the many that the source has.
QStringList fields() {
    return {QStringLiteral("POLICYNO"),    QStringLiteral("STARTDATE"), QStringLiteral("CUSTOMER"),
            QStringLiteral("PRODUCTNAME"), QStringLiteral("AGENTNAME"), QStringLiteral("BRANCH"),
            QStringLiteral("INSTALMENTS"), QStringLiteral("PREMIUM"),   QStringLiteral("NET"),
            QStringLiteral("COMMISSION")};
}

void layColumns(ZkpGrid& grid, const ado::ConnectionPtr& connection) {
    const QStringList shown = fields();
    grid.setCols(static_cast<int>(shown.size()));
    const auto rows = connection->Execute(QStringLiteral("SELECT * FROM %1").arg(dictionary()));
    for (; !rows->Eof(); rows->MoveNext()) {
        const int column = static_cast<int>(shown.indexOf(rows->Collect(QStringLiteral("dtfld")).toString()));
        if (column < 0)
            continue;
        grid.setColDataField(column, shown.at(column));
        grid.setColCaption(column, rows->Collect(QStringLiteral("Cptn")).toString());
        grid.setColWidth(column, rows->Collect(QStringLiteral("wdth")).toDouble());
        grid.setColAlignment(column, rows->Collect(QStringLiteral("Algn")).toInt());
    }
}

} // namespace

void showPlainReport(ZkpGrid& grid, const ado::ConnectionPtr& connection) {
    grid.setLocale(QLocale(QLocale::Greek, QLocale::Greece));
    grid.setclmns(dictionary());
    layColumns(grid, connection);
    const QString statement = QStringLiteral("SELECT %1 FROM %2 ORDER BY POLICYNO")
                                  .arg(fields().join(QLatin1String(", ")), source());
    grid.Fill(connection, statement, ZKP_SQLStatement);
    grid.refresh();
}

} // namespace zkp::app
