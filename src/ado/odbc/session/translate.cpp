#include "ado/odbc/session/translate.h"

#include "base/text.h"

namespace zkp::ado::odbc {

dialect::Rewritten translate(Session& session, const QString& statement) {
    const dialect::ServerFacts facts{
        [&session](const std::vector<dialect::Token>& tokens) { return session.catalogue().namesIn(tokens); },
        [&session] { return session.collation(); }, [&session] { return session.hasSigma(); }};
    switch (session.dialect()) {
    case Dialect::PostgreSql:
        return dialect::rewriteForPostgres(statement, facts);
    case Dialect::MariaDb:
        return dialect::rewriteForMariaDb(statement, facts);
    default:
        return {statement, {}};
    }
}

/// The catalogue has all names that are not kept in small letters, or on MariaDB all tables.
QString nameAsKept(Session& session, const QString& name) {
    if (session.dialect() == Dialect::SqlServer)
        return name;
    const QString quoted = u'[' + name + u']';
    const QString usual = session.dialect() == Dialect::PostgreSql ? name.toLower() : name;
    return session.catalogue()
        .namesIn(dialect::tokenize(quoted, session.dialect()))
        .spelling.value(nameKey(name), usual);
}

QString quotedName(const Session& session, const QString& name) {
    switch (session.dialect()) {
    case Dialect::MariaDb:
        return u'`' + QString(name).replace(u'`', QStringLiteral("``")) + u'`';
    case Dialect::PostgreSql:
        return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
    default:
        return u'[' + QString(name).replace(u']', QStringLiteral("]]")) + u']';
    }
}

} // namespace zkp::ado::odbc
