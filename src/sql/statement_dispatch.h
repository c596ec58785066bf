#pragma once

#include "core/group_columns.h"
#include "sql/grouped_statement.h"
#include "sql/normal_statement.h"
#include "sql/run_time_statement.h"
#include "sql/settings_store.h"
#include "sql/statistics_statement.h"

namespace zkp {

/// Which statement a load runs, and the opening of a totals report.
class StatementDispatch {
public:
    StatementDispatch(BuilderInputs& inputs, RecordSource& source, GroupColumns& groups,
                      SettingsStore& settings, NormalStatement& normal, RunTimeStatement& runTime,
                      GroupedStatement& grouped, StatisticsStatement& statistics)
        : inputs_(inputs)
        , source_(source)
        , groups_(groups)
        , settings_(settings)
        , normal_(normal)
        , runTime_(runTime)
        , grouped_(grouped)
        , statistics_(statistics) {}

    /// The detail statement: from the dictionary when statements are composed at run time and there is
    /// a master table, otherwise over the source's own names.
    QString DetailStatement();
    /// Opens the totals statement. Failures reach the caller; a failed statement leaves the
    /// connection's `CommandTimeout` at the long value, as wanted.
    void OpenTotalRecordset();

private:
    bool composesAtRunTime() const;
    int seconds(int subKey);

    BuilderInputs& inputs_;
    RecordSource& source_;
    GroupColumns& groups_;
    SettingsStore& settings_;
    NormalStatement& normal_;
    RunTimeStatement& runTime_;
    GroupedStatement& grouped_;
    StatisticsStatement& statistics_;
};

} // namespace zkp
