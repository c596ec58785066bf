#pragma once

#include "ado/recordset.h"
#include "rights/made_database.h"
#include "zkp_grid.h"

#include <QStringList>

#include <optional>
#include <ostream>
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

/// A field's value in a form that compares: its text, or for a number its ten-thousandths.
struct Cell {
    explicit Cell(const QString& text);

    /// Where an average becomes an amount its last digit may fall to either side.
    bool operator==(const Cell& other) const;
    bool operator<(const Cell& other) const { return text < other.text; }

    std::string text;
    std::optional<long long> number;
};
void PrintTo(const Cell& cell, std::ostream* out);

using Rows = std::vector<std::vector<Cell>>;

/// Sets a control up for a report. Aggregate columns are marked as totalled.
void setUp(ZkpGrid& grid, const Report& report);
void fill(ZkpGrid& grid, const Report& report, const ado::ConnectionPtr& connection,
          const QString& user = {});

/// The fields of all records by name, in the order of the records. Numbers are rounded to four decimals,
/// Booleans are 0 and 1, dates ISO without a time at midnight, null is "NULL".
Rows rowsOf(const ado::RecordsetPtr& records, const QStringList& fields);
/// What a hand-written statement gives, in the same form.
Rows byHand(const std::string& statement);
Rows byHand(const demo::test::Reader& database, const std::string& statement);
/// For results whose order is of no meaning.
Rows sorted(Rows rows);

} // namespace zkp::rights
