#pragma once

#include "window/report_list.h"

namespace zkp::app {

/// A user's filter as a load of a report takes it, or why it may not.
struct ReportFilter {
    QString text;    ///< for `Filter`
    QString refusal; ///< for the user, with its place; empty when the filter is accepted

    bool isAccepted() const { return refusal.isEmpty(); }
};

/// The filter in its brackets, with the report's standing condition in front: that holds in statements too
/// which aren't composed at run time.
ReportFilter reportFilter(const ReportEntry& report, const ado::ConnectionPtr& connection,
                          const QString& typed);

} // namespace zkp::app
