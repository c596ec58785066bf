#include "load/percentages.h"

#include "base/error_in_flight.h"
#include "base/format.h"
#include "base/text.h"
#include "base/texts/failures.h"
#include "core/state/lifetime.h"

namespace zkp {

QString Percentages::PercentOfParent(const QString& field, int r, std::optional<int> level) {
    try {
        const int parent = level.value_or(grouping_.GroupFactorCount - 2);
        const QString name = field == u"CNT" ? field : QStringLiteral("SUM_") + field;
        const double a = GroupValueSum(parent, name, r);
        const double b = GroupValueSum(parent + 1, name, r);
        if (a != 0 && b != 0)
            return formatNumber(b * 100 / a, NumberFormat::Plain2, surface_.locale());
    } catch (const ControlDestroyed&) {
        throw;
    } catch (...) {
        notes_.failed(errorInFlight());
        boxes_.msgBox(texts::percentFailed(), kMsgBoxCritical);
    }
    return QStringLiteral("0.00");
}

double Percentages::GroupValueSum(int level, const QString& name, int r) {
    try {
        return sumOf(level, name, r);
    } catch (const ControlDestroyed&) {
        throw;
    } catch (...) {
        notes_.failed(errorInFlight());
        if (!std::exchange(told_, true))
            boxes_.msgBox(texts::subtotalsFailed(), kMsgBoxCritical);
        return 0;
    }
}

double Percentages::sumOf(int level, const QString& name, int r) {
    if (!source_.TotalsRecordset)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"),
                    QStringLiteral("TotalsRecordset"));
    index_.use(source_.TotalsRecordset, surface_.locale());
    return index_.sum(keysOf(level, r), name).toDouble();
}

/// The keys end at a column without a field and at a repeated value's mark.
std::vector<GroupValueIndex::Key> Percentages::keysOf(int level, int r) const {
    std::vector<GroupValueIndex::Key> keys;
    for (int k = 0; k <= level; ++k) {
        const QString text = trimmed(surface_.TextMatrix(r, k)).toString();
        const QString field = trimmed(columns_.ofGridColumn(k).Datafield).toString();
        if (field.isEmpty() || text == u"----")
            break;
        keys.push_back({field, text});
    }
    return keys;
}

} // namespace zkp
