#pragma once

#include <QString>

namespace zkp::bench {

/// The table POLICIES (see report_data.h) with a dictionary and a master table, so that totals reports
/// of it can be composed at run time.
void makeTotalsDatabase(const QString& file, int rows);

} // namespace zkp::bench
