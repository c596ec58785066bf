#include "zkp_grid.h"

#include "grid/parts.h"
#include "sql/statement_text.h"

// The statements and their steps, one line each.

namespace zkp {

QString ZkpGrid::RunTimeSQL() {
    return run([&](Parts& p) { return p.runTime.RunTimeSQL(); });
}
QString ZkpGrid::RunTimeSQLCounter() {
    return run([&](Parts& p) { return p.runTime.RunTimeSQLCounter(); });
}
QString ZkpGrid::NormalSQL() {
    return run([&](Parts& p) { return p.normal.NormalSQL(); });
}
QString ZkpGrid::GroupedSQL() {
    return run([&](Parts& p) { return p.grouped.GroupedSQL(); });
}
QString ZkpGrid::RunTimeStatsSQL() {
    return run([&](Parts& p) { return p.statistics.RunTimeStatsSQL(); });
}
QString ZkpGrid::RunTimePosSql() {
    return run([&](Parts& p) { return p.percentageStatement.RunTimePosSql(); });
}
QString ZkpGrid::DetailStatement() {
    return run([&](Parts& p) { return p.dispatch.DetailStatement(); });
}
void ZkpGrid::OpenTotalRecordset() {
    run([&](Parts& p) { p.dispatch.OpenTotalRecordset(); });
}

QString ZkpGrid::makefldSql(const QString& FieldName, QString& Tables, bool WithAlias) {
    return run([&](Parts& p) { return p.fields.makefldSql(FieldName, Tables, WithAlias); });
}

void ZkpGrid::FindMaster() {
    run([&](Parts& p) { p.masterTable.FindMaster(); });
}
QString ZkpGrid::MakeFromAndJoins(QString& Tables) {
    return run([&](Parts& p) { return p.joins.MakeFromAndJoins(Tables); });
}
QString ZkpGrid::FindJoinON(const QString& Table) {
    return run([&](Parts& p) { return p.joins.FindJoinON(Table); });
}
QString ZkpGrid::setUserFilter(const QString& text) {
    return run([&](Parts& p) { return p.userFilter.set(text); });
}
void ZkpGrid::TranslateFilter(QString& Tables) {
    run([&](Parts& p) { p.translation.TranslateFilter(Tables); });
}
void ZkpGrid::LoadIerarxia() {
    run([&](Parts& p) { p.hierarchy.LoadIerarxia(); });
}
void ZkpGrid::LoadDictionary() {
    run([&](Parts& p) { p.driver.LoadDictionary(); });
}

bool ZkpGrid::MakeRecordset() {
    return run([&](Parts& p) { return p.driver.MakeRecordset(); });
}

ado::RecordsetPtr ZkpGrid::OpenDetailRecordset() {
    return run([&](Parts& p) {
        p.driver.OpenDetailRecordset();
        return p.source.get();
    });
}

void ZkpGrid::LoadRows() {
    run([&](Parts& p) { p.reader.LoadRows(); });
}

QString ZkpGrid::ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                          const QString& StrDest) {
    return zkp::ReplaceStringIntoAString(StrForReplace, StrSource, StrDest);
}

QString ZkpGrid::GETGeneral(int IntGenKey, int IntGenSubKey, QString& StrGenDescription) {
    return run([&](Parts& p) { return p.settings.GETGeneral(IntGenKey, IntGenSubKey, StrGenDescription); });
}

bool ZkpGrid::SETGeneral(int IntGenKey, int IntGenSubKey, const QString& StrGenDescription) {
    return run([&](Parts& p) { return p.settings.SETGeneral(IntGenKey, IntGenSubKey, StrGenDescription); });
}

} // namespace zkp
