#pragma once

#include "zkp_grid.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zkp::reportcases {

/// A small report: records, factors, columns and switches.
struct RandomReport {
    using Key = std::optional<QString>; ///< nothing for a null

    /// In a totals report's grid: a group of the innermost factor.
    struct Record {
        std::vector<Key> keys;
        std::optional<std::int64_t> amount; ///< in ten-thousandths
        std::int64_t count = 0;             ///< records of a group; the number of a plain record
    };
    struct Column {
        QString field;
        bool factor = false;
        bool sum = false;
        bool balance = false;
    };

    bool totalForm = false;
    bool euro = true;
    bool sorted = true;
    bool runTime = false; ///< the statement is composed from the dictionary
    bool heard = false;   ///< somebody hears `RetrieveRow`, so that rows are read one by one
    int factors = 0;
    std::vector<Record> stored; ///< in the order of the table
    std::vector<Column> columns;

    /// The records in the order of the grid; in a totals report the groups.
    std::vector<Record> shown() const;
    QString description() const;
};

/// 0 to 4 factors (1 to 4 in the totals form), 1 to 40 records, few different keys.
RandomReport randomReport(std::uint32_t seed, bool totalForm);

/// The tables that all reports share: records of up to four keys, and their dictionary.
void makeTables(const ado::ConnectionPtr& connection);

/// Puts the report's records into the table, and gives the control its columns and its source.
void setUp(ZkpGrid& grid, const ado::ConnectionPtr& connection, const RandomReport& report);

} // namespace zkp::reportcases
