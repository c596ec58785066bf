#pragma once

#include <string>

namespace zkp::bench {

/// Makes a SQLite file with the table POLICIES: six texts, four of them Greek, three amounts declared
/// MONEY and an integer, as reports have them: few branches and products, some thousand customers, one
/// text that no two records share. The same data for the same number of rows.
void makeReportDatabase(const std::string& file, int rows);

/// Steps through a statement's records and touches every value. Gives a sum that depends on all of them.
unsigned long long readEveryValue(const std::string& file, const std::string& statement);

} // namespace zkp::bench
