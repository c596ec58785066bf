#include "window/report_filter.h"

#include "base/text.h"
#include "host/scripted_host.h"
#include "zkp_grid.h"

namespace zkp::app {

ReportFilter reportFilter(const ReportEntry& report, const ado::ConnectionPtr& connection,
                          const QString& typed) {
    ZkpGrid grid(std::make_shared<ScriptedHost>());
    grid.setclmns(report.dictionary);
    grid.setSqlOnRunTime(!isBlank(report.masterTable));
    grid.Fill(connection, report.source, ZKP_Table_QUERY);
    const QString refusal = grid.setUserFilter(typed);
    if (!refusal.isEmpty())
        return {{}, refusal};
    const QString standing =
        isBlank(report.masterFilter) ? QString() : u'(' + report.masterFilter + QStringLiteral(") and ");
    return {standing + grid.Filter(), {}};
}

} // namespace zkp::app
