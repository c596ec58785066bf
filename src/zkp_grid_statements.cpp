#include "zkp_grid.h"

#include "sql/statement_text.h"
#include "zkp_grid_parts.h"

// The statements and their steps, one line each.

namespace zkp {

QString ZkpGrid::RunTimeSQL() { return parts_->runTime.RunTimeSQL(); }
QString ZkpGrid::RunTimeSQLCounter() { return parts_->runTime.RunTimeSQLCounter(); }
QString ZkpGrid::NormalSQL() { return parts_->normal.NormalSQL(); }
QString ZkpGrid::GroupedSQL() { return parts_->grouped.GroupedSQL(); }
QString ZkpGrid::RunTimeStatsSQL() { return parts_->statistics.RunTimeStatsSQL(); }
QString ZkpGrid::RunTimePosSql() { return parts_->percentages.RunTimePosSql(); }
QString ZkpGrid::DetailStatement() { return parts_->dispatch.DetailStatement(); }
void ZkpGrid::OpenTotalRecordset() { parts_->dispatch.OpenTotalRecordset(); }

QString ZkpGrid::makefldSql(const QString& FieldName, QString& Tables, bool WithAlias) {
    return parts_->fields.makefldSql(FieldName, Tables, WithAlias);
}

void ZkpGrid::FindMaster() { parts_->masterTable.FindMaster(); }
QString ZkpGrid::MakeFromAndJoins(QString& Tables) { return parts_->joins.MakeFromAndJoins(Tables); }
QString ZkpGrid::FindJoinON(const QString& Table) { return parts_->joins.FindJoinON(Table); }
void ZkpGrid::TranslateFilter(QString& Tables) { parts_->translation.TranslateFilter(Tables); }
void ZkpGrid::LoadIerarxia() { parts_->hierarchy.LoadIerarxia(); }
void ZkpGrid::LoadDictionary() { parts_->driver.LoadDictionary(); }

QString ZkpGrid::ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                          const QString& StrDest) {
    return zkp::ReplaceStringIntoAString(StrForReplace, StrSource, StrDest);
}

QString ZkpGrid::GETGeneral(int IntGenKey, int IntGenSubKey, QString& StrGenDescription) {
    return parts_->settings.GETGeneral(IntGenKey, IntGenSubKey, StrGenDescription);
}

bool ZkpGrid::SETGeneral(int IntGenKey, int IntGenSubKey, const QString& StrGenDescription) {
    return parts_->settings.SETGeneral(IntGenKey, IntGenSubKey, StrGenDescription);
}

} // namespace zkp
