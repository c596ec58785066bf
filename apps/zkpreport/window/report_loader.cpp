#include "window/report_loader.h"

#include "base/text.h"

#include <QLocale>

namespace zkp::app {

namespace {

ado::RecordsetPtr openRecords(const ZkpGrid& grid) {
    const auto records = grid.RecordSource().value<ado::RecordsetPtr>();
    return records && records->State() == ado::adStateOpen ? records : nullptr;
}

/// A failed load leaves no recordset that could tell its statement.
QString builtStatement(ZkpGrid& grid, const ado::RecordsetPtr& records) {
    if (records)
        return records->Source();
    return grid.SqlOnRunTime() ? grid.SQLRun().toString() : grid.NormalSQL();
}

} // namespace

void prepareReport(ZkpGrid& grid, const ado::ConnectionPtr& connection, const ReportEntry& report,
                   const std::vector<DictionaryField>& fields, const QString& userId) {
    grid.setLocale(QLocale(QLocale::Greek, QLocale::Greece));
    grid.setclmns(report.dictionary);
    layColumns(grid, startingFields(fields));
    // Over a source that stands by itself the first four columns sort.
    const bool isComposed = !isBlank(report.masterTable);
    grid.setSqlOnRunTime(isComposed);
    if (isComposed)
        grid.setOrderBy(grid.ColDataField(0));
    grid.Fill(connection, report.source, ZKP_Table_QUERY, userId);
}

LoadRecord loadReport(ZkpGrid& grid, LoadWatch& watch, const QString& filter) {
    grid.setFilter(filter); // the builders write the translated one, with the rights, over it
    watch.begin(grid.Cn());
    grid.refresh();
    watch.end();

    const ado::RecordsetPtr records = openRecords(grid);
    LoadRecord record;
    record.isLoaded = records && !watch.sawBox();
    record.sent = watch.statementSent();
    record.statementMs = watch.statementMs();
    record.wholeMs = watch.wholeMs();
    record.built = builtStatement(grid, records);
    record.records = records ? static_cast<int>(records->RecordCount()) : 0;
    return record;
}

} // namespace zkp::app
