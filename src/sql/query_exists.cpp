#include "sql/query_exists.h"

#include "ado/recordset.h"
#include "base/error.h"
#include "base/text.h"

namespace zkp {

namespace {

/// Nothing where the provider has no such list.
ado::RecordsetPtr tables(const ado::ConnectionPtr& connection) {
    if (!connection)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"));
    try {
        return connection->OpenSchema(ado::adSchemaTables);
    } catch (const Error& error) {
        if (error.number() == kErrNotSupported)
            return nullptr;
        throw;
    }
}

} // namespace

bool QueryExists(const ado::ConnectionPtr& connection, const QString& name) {
    const ado::RecordsetPtr list = tables(connection);
    if (!list)
        return false;
    const QString wanted = nameKey(name);
    bool found = false;
    for (; !list->Eof(); list->MoveNext())
        found = found || nameKey(list->Collect(QStringLiteral("TABLE_NAME")).toString()) == wanted;
    return found;
}

} // namespace zkp
