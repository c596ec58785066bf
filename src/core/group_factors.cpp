#include "core/group_factors.h"

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
    state_.GroupFactorCount = 0;
    state_.givenGroupby.reset();
    QStringList fields;
    for (int c = 0; c < std::min(cols, columns_.Count()); ++c) {
        const Column& column = columns_.ofGridColumn(c);
        if (!column.ForTot)
            continue;
        if (!isBlank(column.Datafield))
            fields << column.Datafield;
        ++state_.GroupFactorCount;
    }
    if (fields.isEmpty())
        state_.GroupFactors.clear();
    state_.Groupby = fields.join(u',');
    events_.notify(QStringLiteral("Groupby"));
}

} // namespace zkp
