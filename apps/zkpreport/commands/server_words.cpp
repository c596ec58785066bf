#include "commands/server_words.h"

#include "ado/recordset.h"
#include "base/currency.h"
#include "base/error.h"

#include <QDateTime>
#include <QRegularExpression>

namespace zkp::app {

ServerWords::ServerWords(const ado::ConnectionPtr& connection) {
    const QString version =
        connection->Execute(QStringLiteral("SELECT version()"))->Fields().Item(0).Value().toString();
    isPostgres_ = version.startsWith(QStringLiteral("PostgreSQL"));
    if (!isPostgres_ && !version.contains(QStringLiteral("MariaDB")))
        throw Error(kErrNotSupported,
                    QStringLiteral("The demonstration database goes into PostgreSQL or MariaDB, not into %1")
                        .arg(version));
    isOtherCharacterSet_ =
        !isPostgres_ && connection->Execute(QStringLiteral("SELECT @@character_set_database"))
                                ->Fields()
                                .Item(0)
                                .Value()
                                .toString() != QStringLiteral("utf8mb4");
}

/// In a database of utf8mb4 the tables have its collation.
QString ServerWords::tableOptions() const {
    return isOtherCharacterSet_ ? QStringLiteral(" CHARACTER SET utf8mb4") : QString();
}

QString ServerWords::type(const QString& declared, int length) const {
    const QString word = declared.toUpper();
    if (word == u"MONEY")
        return QStringLiteral("DECIMAL(19,4)");
    if (word == u"BIT")
        return isPostgres_ ? QStringLiteral("BOOLEAN") : QStringLiteral("BIT(1)");
    if (word == u"DOUBLE")
        return QStringLiteral("DOUBLE PRECISION");
    if (word == u"TIMESTAMP")
        return isPostgres_ ? word : QStringLiteral("DATETIME");
    if (word == u"BLOB")
        return isPostgres_ ? QStringLiteral("BYTEA") : QStringLiteral("LONGBLOB");
    if (word != u"TEXT")
        return word;
    // Bounded texts come in blocks; a little more room than the data need.
    if (length <= 100)
        return QStringLiteral("VARCHAR(%1)").arg(length == 0 ? 255 : length <= 50 ? 100 : 200);
    return length <= 500 ? QStringLiteral("VARCHAR(1000)") : word;
}

QString ServerWords::constant(const QVariant& value) const {
    if (!value.isValid())
        return QStringLiteral("NULL");
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toPlainText();
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    case QMetaType::LongLong:
        return value.toString();
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(QStringLiteral("''yyyy-MM-dd HH:mm:ss''"));
    case QMetaType::QByteArray: {
        const QString digits = QString::fromLatin1(value.toByteArray().toHex());
        return isPostgres_ ? QStringLiteral("'\\x%1'").arg(digits) : QStringLiteral("X'%1'").arg(digits);
    }
    default:
        return u'\'' + value.toString().replace(u'\'', QStringLiteral("''")) + u'\'';
    }
}

QString ServerWords::expression(QString text) const {
    static const QRegularExpression year(
        QStringLiteral("CAST\\(SUBSTR\\(([A-Za-z.\\[\\]]+), 1, 4\\) AS INTEGER\\)"));
    static const QRegularExpression days(QStringLiteral(
        "CAST\\(JULIANDAY\\(([A-Za-z.\\[\\]]+)\\) - JULIANDAY\\(([A-Za-z.\\[\\]]+)\\) AS INTEGER\\)"));
    static const QRegularExpression real(QStringLiteral("\\* (1|100)\\.0 /"));
    text.replace(year, QStringLiteral("CAST(EXTRACT(YEAR FROM \\1) AS INTEGER)"));
    text.replace(days, isPostgres_ ? QStringLiteral("(\\1 - \\2)") : QStringLiteral("DATEDIFF(\\1, \\2)"));
    text.replace(real, isPostgres_ ? QStringLiteral("* CAST(\\1 AS DOUBLE PRECISION) /")
                                   : QStringLiteral("* \\1e0 /"));
    return text;
}

QString ServerWords::hierarchyProcedure() const {
    if (isPostgres_)
        return QStringLiteral("CREATE FUNCTION Sec_GetUserIerarxiaID(who TEXT) RETURNS TABLE (Ierarxia TEXT, "
                              "IerID TEXT) LANGUAGE sql STABLE AS 'SELECT CAST(u.Ierarxia AS TEXT), "
                              "CAST(u.IerID AS TEXT) FROM SECUSERS u WHERE u.UserID = who'");
    return QStringLiteral("CREATE PROCEDURE Sec_GetUserIerarxiaID(who VARCHAR(100) CHARACTER SET utf8mb4) "
                          "READS SQL DATA SELECT Ierarxia, IerID FROM SECUSERS WHERE UserID = who");
}

/// MariaDB's driver lists the tables of every database.
QString ServerWords::findContents() const {
    return QStringLiteral(
               "SELECT table_name FROM information_schema.tables WHERE table_schema = %1 UNION ALL "
               "SELECT routine_name FROM information_schema.routines WHERE routine_schema = %1 AND "
               "lower(routine_name) = 'sec_getuserierarxiaid'")
        .arg(isPostgres_ ? QStringLiteral("current_schema()") : QStringLiteral("DATABASE()"));
}

} // namespace zkp::app
