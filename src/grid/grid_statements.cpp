#include "zkp_grid.h"

#include "grid/parts.h"
#include "sql/statement_text.h"

// The statements and their steps, one line each.

namespace zkp {

QString ZkpGrid::RunTimeSQL() {
    return run([&](Parts& p) { return p.statements.runTime.RunTimeSQL(); });
}
QString ZkpGrid::RunTimeSQLCounter() {
    return run([&](Parts& p) { return p.statements.runTime.RunTimeSQLCounter(); });
}
QString ZkpGrid::NormalSQL() {
    return run([&](Parts& p) { return p.statements.normal.NormalSQL(); });
}
QString ZkpGrid::GroupedSQL() {
    return run([&](Parts& p) { return p.statements.grouped.GroupedSQL(); });
}
QString ZkpGrid::RunTimeStatsSQL() {
    return run([&](Parts& p) { return p.statements.statistics.RunTimeStatsSQL(); });
}
QString ZkpGrid::RunTimePosSql() {
    return run([&](Parts& p) { return p.statements.percentageStatement.RunTimePosSql(); });
}
QString ZkpGrid::DetailStatement() {
    return run([&](Parts& p) { return p.statements.dispatch.DetailStatement(); });
}
void ZkpGrid::OpenTotalRecordset() {
    run([&](Parts& p) { p.statements.dispatch.OpenTotalRecordset(); });
}

QString ZkpGrid::makefldSql(const QString& FieldName, QString& Tables, bool WithAlias) {
    return run([&](Parts& p) { return p.statements.fields.makefldSql(FieldName, Tables, WithAlias); });
}

void ZkpGrid::FindMaster() {
    run([&](Parts& p) { p.statements.masterTable.FindMaster(); });
}
QString ZkpGrid::MakeFromAndJoins(QString& Tables) {
    return run([&](Parts& p) { return p.statements.joins.MakeFromAndJoins(Tables); });
}
QString ZkpGrid::FindJoinON(const QString& Table) {
    return run([&](Parts& p) { return p.statements.joins.FindJoinON(Table); });
}
QString ZkpGrid::setUserFilter(const QString& text) {
    return run([&](Parts& p) { return p.statements.userFilter.set(text); });
}
void ZkpGrid::TranslateFilter(QString& Tables) {
    run([&](Parts& p) { p.statements.translation.TranslateFilter(Tables); });
}
void ZkpGrid::LoadIerarxia() {
    run([&](Parts& p) { p.statements.hierarchy.LoadIerarxia(); });
}
void ZkpGrid::LoadDictionary() {
    run([&](Parts& p) { p.load.driver.LoadDictionary(); });
}

bool ZkpGrid::MakeRecordset() {
    return run([&](Parts& p) { return p.load.driver.MakeRecordset(); });
}

ado::RecordsetPtr ZkpGrid::OpenDetailRecordset() {
    return run([&](Parts& p) {
        p.load.driver.OpenDetailRecordset();
        return p.core.source.get();
    });
}

void ZkpGrid::LoadRows() {
    run([&](Parts& p) { p.load.reader.LoadRows(); });
}

QString ZkpGrid::ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                          const QString& StrDest) {
    return zkp::ReplaceStringIntoAString(StrForReplace, StrSource, StrDest);
}

QString ZkpGrid::GETGeneral(int IntGenKey, int IntGenSubKey, QString& StrGenDescription) {
    return run([&](Parts& p) {
        return p.statements.settings.GETGeneral(IntGenKey, IntGenSubKey, StrGenDescription);
    });
}

bool ZkpGrid::SETGeneral(int IntGenKey, int IntGenSubKey, const QString& StrGenDescription) {
    return run([&](Parts& p) {
        return p.statements.settings.SETGeneral(IntGenKey, IntGenSubKey, StrGenDescription);
    });
}

} // namespace zkp
