#include "totals_data.h"

#include "report_data.h"

#include "ado/connection.h"

namespace zkp::bench {

using namespace Qt::StringLiterals;

void makeTotalsDatabase(const QString& file, int rows) {
    makeReportDatabase(file.toStdString(), rows);
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s + file);
    connection->Execute(u"create table QRN_Main (GenKey smallint, GenSubKey smallint, GenValue text)"_s);
    connection->Execute(u"insert into QRN_Main values (2, 6, '30'), (2, 7, '0')"_s);
    connection->Execute(u"create table Reports (RecSource text, MasterTable text, RKeyname text, "
                        "MasterFilter text)"_s);
    connection->Execute(u"insert into Reports values ('POLICIES', 'POLICIES', null, null)"_s);
    connection->Execute(
        u"create table CLMNS (dtfld text, Cptn text, wdth integer, Algn smallint, isgroup bit, "
        "isTot bit, visbl integer, IsPublic integer, [Sum] bit, [Avg] bit, [Min] bit, "
        "[Max] bit, crosstabdate bit, SOURCEFIELDNAME text, SourceTableName text, Expr text, "
        "KeyMaster text, foreignkey text)"_s);
    for (const QString& field : {u"BRANCH"_s, u"PRODUCT"_s, u"CITY"_s, u"AGENT"_s, u"NET"_s, u"PREMIUM"_s})
        connection->Execute(
            u"insert into CLMNS values ('%1', '%1', 1000, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, '%1', "
            "'POLICIES', null, 'POLICYNO', 'POLICYNO')"_s.arg(field));
}

} // namespace zkp::bench
