#pragma once

#include "ado/recordset.h"
#include "rights/made_database.h"
#include "zkp_grid.h"

#include <QStringList>

#include <string>
#include <vector>

namespace zkp::rights {

/// One report as a host sets it up.
struct Report {
    QString source;
    QString dictionary;
    QStringList columns;      ///< keys, or aggregate names in a totals report
    QStringList factors = {}; ///< group factors, in front of the columns
    bool totals = false;
    bool runTime = false;
    bool lossRatio = false;
    QString filter = {};
    QString orderBy = {};
};

using Rows = std::vector<std::vector<std::string>>;

/// Sets a control up for a report. Aggregate columns are marked as totalled.
void setUp(ZkpGrid& grid, const Report& report);
void fill(ZkpGrid& grid, const Report& report, const ado::ConnectionPtr& connection,
          const QString& user = {});

/// The fields of all records by name, as comparable text and in the order of the records. Numbers are
/// rounded to four decimals, Booleans are 0 and 1, dates ISO without a time at midnight, null is "NULL".
Rows rowsOf(const ado::RecordsetPtr& records, const QStringList& fields);
/// What a hand-written statement gives, in the same form.
Rows byHand(const std::string& statement);
Rows byHand(const demo::test::Reader& database, const std::string& statement);
/// For results whose order is of no meaning.
Rows sorted(Rows rows);

} // namespace zkp::rights
