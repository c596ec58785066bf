#include "window/user_list.h"

#include "ado/recordset.h"
#include "base/value.h"
#include "sql/query_exists.h"
#include "window/table_text.h"
#include "window/texts.h"

#include <QLocale>

#include <algorithm>

namespace zkp::app {

namespace {

QString rightsOf(const QString& level, const QString& identity) {
    if (level == QLatin1String("0") || level == QLatin1String("5"))
        return texts::ownRows(level);
    if (level == QLatin1String("1"))
        return texts::ownRowsAndAgency(identity);
    if (level == QLatin1String("2"))
        return texts::ownRowsAndAssistant(identity);
    if (level == QLatin1String("3"))
        return texts::ownRowsAndUnit(identity);
    if (level == QLatin1String("4"))
        return texts::ownRowsAndManager(identity);
    return texts::noCondition(level);
}

} // namespace

std::vector<UserEntry> readUsers(const ado::ConnectionPtr& connection) {
    std::vector<UserEntry> users;
    const QString table = QStringLiteral("SECUSERS");
    if (QueryExists(connection, table)) {
        const auto rows = connection->Execute(QStringLiteral("SELECT * FROM ") + table);
        for (; !rows->Eof(); rows->MoveNext()) {
            const QString id = columnText(*rows, u"UserID");
            if (!id.isEmpty())
                users.push_back({id, texts::userEntry(columnText(*rows, u"FullName"), id)});
        }
    }
    std::sort(users.begin(), users.end(), [](const UserEntry& a, const UserEntry& b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    users.insert(users.begin(), UserEntry{{}, texts::allRows()});
    return users;
}

QString rightsText(const ado::ConnectionPtr& connection, const QString& userId) {
    if (userId.isEmpty())
        return {};
    const auto row = connection->Execute(QStringLiteral("exec Sec_GetUserIerarxiaID '%1'").arg(userId));
    const auto text = [&](int field) {
        return valueText(row->Fields().Item(field).Value(), ReportLocale(QLocale::c()));
    };
    return rightsOf(text(0), text(1)); // untrimmed: a level with a blank is another level
}

} // namespace zkp::app
