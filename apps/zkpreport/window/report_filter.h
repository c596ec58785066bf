#pragma once

#include "window/report_list.h"
#include "window/user_filter.h"

namespace zkp::app {

/// What `Filter` gets for a report and a user's filter, or why the filter is refused.
///
/// The report's standing condition stands in front already: a load leaves it out where the filter holds
/// its text, and so a user could switch it off. And since keys are translated inside constants too,
/// the filter must keep to its brackets after the translation as well. A blank filter becomes `TRUE`.
UserFilter reportFilter(const ReportEntry& report, const ado::ConnectionPtr& connection,
                        const QString& typed);

} // namespace zkp::app
