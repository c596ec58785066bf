#include "core/group_factors.h"

#include "base/number.h"
#include "base/text.h"

#include <algorithm>

namespace zkp {

short GroupFactorFlags::FindGroupNum(int cols) const {
    short count = 0;
    for (int number = 1; number <= std::min(cols, columns_.Count()); ++number)
        count += columns_.Item(number).ForTot ? 1 : 0;
    return count;
}

void GroupFactorFlags::CheckGroupBy(int cols) {
    grouping_.GroupFactorCount = 0;
    grouping_.givenGroupby.reset();
    QStringList fields;
    for (int c = 0; c < std::min(cols, columns_.Count()); ++c) {
        const Column& column = columns_.ofGridColumn(c);
        if (!column.ForTot)
            continue;
        if (!isBlank(column.Datafield))
            fields << column.Datafield;
        ++grouping_.GroupFactorCount;
    }
    if (fields.isEmpty())
        grouping_.GroupFactors.clear();
    grouping_.Groupby = fields.join(u',');
    events_.notify(QStringLiteral("Groupby"));
}

void GroupFactorFlags::setGroupby(const QString& text) {
    grouping_.Groupby = text;
    events_.notify(QStringLiteral("Groupby"));
}

QStringList GroupFactorFlags::takeFactors() {
    const QStringList factors = grouping_.Groupby.split(u',');
    grouping_.GroupFactors = factors;
    grouping_.GroupFactorCount = toInt16(factors.size());
    return factors;
}

} // namespace zkp
