#include "ado/sqlite/collation.h"

#include "ado/records/text_compare.h"

namespace zkp::ado::sqlite {

namespace {

int collate(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return compareTexts({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                        {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

} // namespace

void registerTextCollation(sqlite3* handle) {
    sqlite3_create_collation_v2(handle, kTextCollation, SQLITE_UTF8, nullptr, collate, nullptr);
}

} // namespace zkp::ado::sqlite
