#include "ado/sqlite/sqlite_base_table.h"

namespace zkp::ado::sqlite {

std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Database>&, const QString&,
                                         const RunOptions&) {
    return nullptr;
}

} // namespace zkp::ado::sqlite
