#include "ado/odbc/session/connection_text.h"

#include "base/error.h"
#include "base/text.h"

#include <QStringList>

namespace zkp::ado::odbc {

namespace {

/// The parts of a connection string; a ";" inside "{…}" separates none, and "}}" ends no bracket.
QStringList partsOf(const QString& text) {
    QStringList parts(QString{});
    bool inBraces = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'{' && parts.last().trimmed().endsWith(u'='))
            inBraces = true;
        else if (c == u'}' && inBraces && i + 1 < text.size() && text[i + 1] == u'}')
            parts.last() += text[i++];
        else if (c == u'}')
            inBraces = false;
        if (c == u';' && !inBraces)
            parts << QString();
        else
            parts.last() += c;
    }
    return parts;
}

Dialect dialectNamed(const QString& name) {
    const QString key = nameKey(name);
    if (key == u"SQLSERVER" || key == u"SQL SERVER")
        return Dialect::SqlServer;
    if (key == u"POSTGRESQL" || key == u"POSTGRES")
        return Dialect::PostgreSql;
    if (key == u"MARIADB" || key == u"MYSQL")
        return Dialect::MariaDb;
    throw Error(kErrDatabase,
                QStringLiteral("There is no dialect '%1': SqlServer, PostgreSQL or MariaDB").arg(name));
}

} // namespace

ConnectionText readConnectionText(const QString& text) {
    ConnectionText read;
    QStringList kept;
    for (const QString& part : partsOf(text)) {
        const qsizetype sign = part.indexOf(u'=');
        if (sign >= 0 && sameName(part.first(sign), u"Dialect"))
            read.dialect = dialectNamed(part.sliced(sign + 1));
        else
            kept << part;
    }
    read.forDriver = kept.join(u';');
    return read;
}

Dialect dialectOfServer(const QString& dbmsName) {
    const QString key = nameKey(dbmsName);
    if (key.contains(u"POSTGRES"))
        return Dialect::PostgreSql;
    return key.contains(u"MARIADB") || key.contains(u"MYSQL") ? Dialect::MariaDb : Dialect::SqlServer;
}

} // namespace zkp::ado::odbc
