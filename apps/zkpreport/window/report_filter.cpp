#include "window/report_filter.h"

#include "base/text.h"
#include "host/scripted_host.h"
#include "window/texts.h"
#include "zkp_grid.h"

namespace zkp::app {

namespace {

/// A filter as a load of the report would translate it, without the standing condition; as it is where
/// it can't be translated, which the load then tells.
QString translated(const ReportEntry& report, const ado::ConnectionPtr& connection, const QString& filter) {
    ZkpGrid grid(std::make_shared<ScriptedHost>());
    grid.setclmns(report.dictionary);
    grid.setSqlOnRunTime(true);
    grid.Fill(connection, report.source, ZKP_Table_QUERY);
    grid.setFilter(filter);
    QString tables;
    grid.TranslateFilter(tables);
    return grid.Filter();
}

} // namespace

UserFilter reportFilter(const ReportEntry& report, const ado::ConnectionPtr& connection,
                        const QString& typed) {
    UserFilter filter = checkUserFilter(typed);
    if (!filter.isAccepted())
        return filter;
    const bool isTyped = !filter.text.isEmpty();
    if (!isTyped)
        filter.text = QStringLiteral("TRUE");
    else if (!isBlank(report.masterTable) && !isInOneBracket(translated(report, connection, filter.text)))
        return {{}, texts::keyInConstant()};
    if (!isBlank(report.masterFilter))
        filter.text = u'(' + report.masterFilter + QStringLiteral(") and ") + filter.text;
    return filter;
}

} // namespace zkp::app
