#include "sql/user_filter.h"

#include "base/text.h"
#include "sql/filter_keys.h"
#include "sql/guarded_filter.h"

namespace zkp {

QString UserFilter::set(const QString& text) {
    const GuardedFilter filter = guardedFilter(text, inputs_.data.AllowSubselects);
    if (!filter.refusal.isEmpty())
        return filter.refusal;
    QString refusal = refusalOfKeys(filter.condition, filter.offset);
    if (refusal.isEmpty())
        inputs_.setTypedFilter(filter.condition);
    return refusal;
}

/// A dictionary that can't be read yet has the load look again.
QString UserFilter::refusalOfKeys(const QString& condition, qsizetype offset) const {
    if (!inputs_.data.SqlOnRunTime || isBlank(inputs_.data.clmns) || !inputs_.source.Cn ||
        inputs_.source.Cn->State() != ado::adStateOpen)
        return {};
    WatchedCondition watched(condition);
    try {
        for (FilterKeys keys(inputs_.data, inputs_.source); keys.next();)
            if (keys.hasPhysical())
                watched.replaceKey(keys.key(), keys.physical());
    } catch (const std::exception&) {
        return {};
    }
    return watched.refusal(offset);
}

} // namespace zkp
