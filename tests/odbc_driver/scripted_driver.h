#pragma once

#include <sql.h>
#include <sqlext.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zkp::scripted {

/// One thing that the driver says of a failed call.
struct Word {
    const char* state;
    std::int32_t native;
    std::u16string text;
};

struct Column {
    std::u16string name;
    SQLSMALLINT type = SQL_WVARCHAR;
    SQLULEN size = 50;
};

/// What a statement is answered with.
struct Answer {
    std::vector<Column> columns;
    std::vector<std::vector<std::u16string>> records; ///< the last one for all that follow
    std::size_t rows = 0;
    std::size_t failsBehind = SIZE_MAX; ///< records until the link breaks; 0 for the statement itself
    std::vector<Word> words;            ///< of the failure
    SQLLEN written = -1;                ///< records that the statement changed
    std::size_t further = 0;            ///< results that follow, of the same records
};

/// By the statement's text; no records of one text column for any that has no answer of its own. `links` are
/// those that stand.
Answer answerTo(const std::u16string& statement, int links);

/// The catalogue: one table, dbo.frms2, without a key.
Answer tables();
Answer columnsOf(const std::u16string& table);
Answer primaryKey();

} // namespace zkp::scripted
