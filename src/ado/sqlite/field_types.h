#pragma once

#include "ado/provider.h"
#include "store/column_builder.h"

namespace zkp::ado::sqlite {

/// How a column's values are kept.
enum class Storage : std::uint8_t { AsGiven, Amount, Date, Boolean };

/// What a column was declared as; type 0 when it was not declared (expressions).
struct Declared {
    int type = 0;
    int size = 0;
    Storage storage = Storage::AsGiven;
};

/// From the words in the table's definition ("NVARCHAR(50)"); null for an expression.
Declared declaredType(const char* words);

/// The published type and size of a field once its values are known.
FieldInfo fieldInfo(const QString& name, const Declared& declared, const store::ColumnBuilder& values);
int definedSize(const Declared& declared, int type);

/// The moment in an ISO text (2026-11-20, or with a blank or T and a time of day), as milliseconds
/// since 1970-01-01; nothing when it is none.
std::optional<std::int64_t> parseIsoMoment(std::string_view text);

} // namespace zkp::ado::sqlite
