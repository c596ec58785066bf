#include "ado/records/records.h"

#include "base/text.h"

namespace zkp::ado {

Records::Records(Result result)
    : fields(std::move(result.fields))
    , table(std::move(result.table)) {
    for (int i = static_cast<int>(fields.size()) - 1; i >= 0; --i)
        byName_.insert(nameKey(fields[static_cast<std::size_t>(i)].name), i);
}

int Records::indexOf(QStringView name) const {
    return byName_.value(nameKey(name), -1);
}

void Records::setTable(store::Table changed) {
    table = std::move(changed);
    index.clear();
    ++version;
}

} // namespace zkp::ado
