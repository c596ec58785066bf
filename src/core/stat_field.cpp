#include "core/stat_field.h"

#include "base/error.h"

namespace zkp {

std::size_t StatFieldList::place(int index) const {
    if (index < 1 || index > Count())
        throw Error(kErrSubscript, QStringLiteral("Subscript out of range"));
    return static_cast<std::size_t>(index - 1);
}

StatFieldList& statFields() {
    static StatFieldList fields;
    return fields;
}

} // namespace zkp
