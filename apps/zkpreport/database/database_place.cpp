#include "database/database_place.h"

#include "base/error.h"

#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace zkp::app {

namespace {

const QString kScheme = QStringLiteral("sqlite:");
/// What stands in braces may hold ";", and "}}" for a "}".
const QString kValue = QStringLiteral("(\\{(?:[^}]|\\}\\})*\\}?|[^;\\n]*)");

/// By the key that it begins with: one that every driver knows, or in front of no file's name a word.
bool isConnectionString(const QString& named) {
    static const QRegularExpression keyword(
        QStringLiteral("^\\W*(?:DRIVER|DSN|FILEDSN|SERVER|DATABASE|UID|PWD|DIALECT)\\s*="),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression word(QStringLiteral("^[^=/\\\\.]*="));
    return named.contains(QLatin1String("://")) || named.contains(keyword) ||
           (named.contains(word) && !QFileInfo::exists(named));
}

/// The values of a connection string by their keys, in capitals; the first one counts.
QHash<QString, QString> valuesOf(const QString& connectionString) {
    static const QRegularExpression part(QStringLiteral("(?:^|;)\\s*([^=;]*?)\\s*=\\s*") + kValue);
    QHash<QString, QString> values;
    for (auto parts = part.globalMatch(connectionString); parts.hasNext();) {
        const QRegularExpressionMatch found = parts.next();
        const QString key = found.captured(1).toUpper();
        QString value = found.captured(2).trimmed();
        if (value.startsWith(u'{') && value.endsWith(u'}'))
            value = value.sliced(1, value.size() - 2).replace(QLatin1String("}}"), QLatin1String("}"));
        if (!values.contains(key))
            values.insert(key, value);
    }
    return values;
}

QString firstOf(const QHash<QString, QString>& values, std::initializer_list<const char*> keys) {
    for (const char* key : keys)
        if (const QString value = values.value(QLatin1String(key)); !value.isEmpty())
            return value;
    return {};
}

QString serverName(const QString& connectionString) {
    const auto values = valuesOf(connectionString);
    const QString database = firstOf(values, {"DATABASE", "DB"});
    const QString server = firstOf(values, {"SERVER", "SERVERNAME", "HOST", "DSN", "FILEDSN"});
    if (database.isEmpty() || server.isEmpty())
        return database.isEmpty() && server.isEmpty() ? QStringLiteral("ODBC") : database + server;
    return QStringLiteral("%1 (%2)").arg(database, server);
}

/// Runs what opens a connection; its failures keep no password in their words.
template <class F>
void opening(F open) {
    try {
        open();
    } catch (const Error& error) {
        throw Error(error.number(), withoutPasswords(error.description().trimmed()), error.source());
    }
}

} // namespace

DatabasePlace::DatabasePlace(const QString& named) {
    const bool isScheme = named.startsWith(kScheme, Qt::CaseInsensitive);
    isServer_ = !isScheme && isConnectionString(named);
    if (!isServer_)
        file_ = isScheme ? named.sliced(kScheme.size()) : named;
    connectionString_ = isServer_ ? named : kScheme + file_;
    name_ = withoutPasswords(isServer_ ? serverName(named) : QFileInfo(file_).fileName());
}

bool DatabasePlace::isMissing() const {
    return !isServer_ && !QFileInfo::exists(file_);
}

ado::ConnectionPtr DatabasePlace::open(int mode) const {
    auto connection = std::make_shared<ado::Connection>();
    connection->setMode(mode);
    opening([&] { connection->Open(connectionString_); });
    return connection;
}

void DatabasePlace::reconnect(ado::Connection& connection) const {
    if (!isServer_)
        return;
    try {
        connection.Execute(QStringLiteral("SELECT 1"));
        return;
    } catch (const Error&) { // opening tells why
    }
    opening([&] {
        try {
            connection.Open();
        } catch (const Error& error) {
            if (error.number() != kErrObjectOpen)
                throw;
        }
    });
}

QString withoutPasswords(QString text) {
    static const QRegularExpression pair(QStringLiteral("(\\w*(?:PWD|PASSWORD|PASSWD)\\s*=\\s*)") + kValue,
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression address(QStringLiteral("://\\S*@"));
    text.replace(address, QStringLiteral("://…@"));
    return text.replace(pair, QStringLiteral("\\1…"));
}

} // namespace zkp::app
