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
    return inputs_.data.SqlOnRunTime && !isBlank(inputs_.master.MasterTable);
}

QString StatementDispatch::DetailStatement() {
    return composesAtRunTime() ? runTime_.RunTimeSQL() : normal_.NormalSQL();
}

void StatementDispatch::OpenTotalRecordset() {
    groups_.recallFactors();
    if (!isBlank(inputs_.grouping.Groupby))
        groups_.MakeFixedForGroup();
    const QString statement = composesAtRunTime() ? statistics_.RunTimeStatsSQL() : grouped_.GroupedSQL();

    const ado::RecordsetPtr records = source_.ready();
    if (records->State() == ado::adStateOpen)
        records->Close();
    if (!inputs_.source.Cn)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"), QStringLiteral("Cn"));
    inputs_.source.Cn->setCommandTimeout(seconds(kTotalsTime));
    inputs_.notes.asking(statement, inputs_.source.Cn,
                         [&] { records->Open(statement, inputs_.source.Cn, ado::adOpenStatic); });
    if (composesAtRunTime() && !statement.contains(u"order by", Qt::CaseInsensitive))
        keepGroupsTogether(*records, inputs_.grouping.GroupFactors);
    if (inputs_.data.HasPercentColumns)
        source_.keepForPercentages(records->Clone());
    inputs_.source.Cn->setCommandTimeout(seconds(kNormalTime));
}

int StatementDispatch::seconds(int subKey) {
    QString description;
    return toInt32(QVariant(settings_.GETGeneral(kTimesKey, subKey, description)));
}

} // namespace zkp
