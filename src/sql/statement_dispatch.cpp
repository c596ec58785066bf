#include "sql/statement_dispatch.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "sql/group_order.h"

namespace zkp {

namespace {

// General settings: the command times in seconds.
constexpr int kTimesKey = 2;
constexpr int kNormalTime = 6;
constexpr int kTotalsTime = 7;

} // namespace

bool StatementDispatch::composesAtRunTime() const {
    return inputs_.state.SqlOnRunTime && !isBlank(inputs_.state.MasterTable);
}

QString StatementDispatch::DetailStatement() {
    return composesAtRunTime() ? runTime_.RunTimeSQL() : normal_.NormalSQL();
}

void StatementDispatch::OpenTotalRecordset() {
    ReportState& state = inputs_.state;
    groups_.recallFactors();
    if (!isBlank(state.Groupby))
        groups_.MakeFixedForGroup();
    const QString statement = composesAtRunTime() ? statistics_.RunTimeStatsSQL() : grouped_.GroupedSQL();

    if (!state.ReportRecordset)
        state.ReportRecordset = std::make_shared<ado::Recordset>();
    const ado::RecordsetPtr records = state.ReportRecordset;
    if (records->State() == ado::adStateOpen)
        records->Close();
    if (!state.Cn)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"), QStringLiteral("Cn"));
    state.Cn->setCommandTimeout(seconds(kTotalsTime));
    inputs_.notes.asking(statement, state.Cn,
                         [&] { records->Open(statement, state.Cn, ado::adOpenStatic); });
    if (composesAtRunTime() && !statement.contains(u"order by", Qt::CaseInsensitive))
        keepGroupsTogether(*records, state.GroupFactors);
    if (state.HasPercentColumns)
        state.TotalsRecordset = records->Clone();
    state.Cn->setCommandTimeout(seconds(kNormalTime));
}

int StatementDispatch::seconds(int subKey) {
    QString description;
    return toInt32(QVariant(settings_.GETGeneral(kTimesKey, subKey, description)));
}

} // namespace zkp
