#include "scripted_driver.h"

namespace zkp::scripted {

namespace {

Answer oneColumn(std::u16string name, SQLSMALLINT type, std::u16string value, std::size_t rows = 1) {
    return {{{std::move(name), type, 50}}, {{std::move(value)}}, rows, SIZE_MAX, {}, -1};
}

Answer failure(std::vector<Word> words, std::size_t behind = 0) {
    Answer answer = oneColumn(u"A", SQL_WVARCHAR, u"x", 10'000);
    answer.failsBehind = behind;
    answer.words = std::move(words);
    return answer;
}

const std::vector<Word> kLinkBroken{{"08S01", 10054, u"[Scripted] Communication link failure"}};

/// A result of the catalogue, its columns by their number alone.
Answer catalogue(std::size_t columns, std::vector<std::vector<std::u16string>> records) {
    const std::size_t rows = records.size();
    return {std::vector<Column>(columns, Column{u"C", SQL_WVARCHAR, 50}),
            std::move(records),
            rows,
            SIZE_MAX,
            {},
            -1};
}

std::u16string number(int value) {
    const std::string digits = std::to_string(value);
    return std::u16string(digits.begin(), digits.end());
}

std::vector<std::u16string> columnRecord(const char16_t* name, int type, int place) {
    std::vector<std::u16string> record(18);
    record[1] = u"dbo";
    record[2] = u"frms2";
    record[3] = name;
    record[4] = number(type);
    record[6] = u"100";
    record[8] = u"0";
    record[16] = number(place);
    return record;
}

/// A record of frms2, with its key once more behind it when it was asked for so.
Answer savedTemplate(bool withKey) {
    std::vector<Column> columns{{u"lstCode"}, {u"ZKP_", SQL_LONGVARBINARY, 0}, {u"datein"}};
    if (withKey)
        columns.push_back({u"lstCode"});
    return {columns, {{u"old", u"", u"", u"old"}}, 1, SIZE_MAX, {}, -1};
}

} // namespace

Answer answerTo(const std::u16string& statement, int links) {
    if (statement == u"links")
        return oneColumn(u"N", SQL_WVARCHAR, number(links));
    if (statement == u"two results") {
        Answer answer = oneColumn(u"V", SQL_WVARCHAR, u"value");
        answer.further = 1;
        return answer;
    }
    if (statement == u"three words")
        return failure({{"42000", 102, u"[Scripted] Incorrect syntax near 'words'."},
                        {"01000", 3621, u"[Scripted] The statement has been terminated."},
                        {"42000", 8180, u"[Scripted] Statement(s) could not be prepared."}});
    if (statement == u"no words")
        return failure({});
    if (statement == u"link broken")
        return failure(kLinkBroken);
    if (statement == u"link breaks behind 3000")
        return failure(kLinkBroken, 3'000);
    // A type of the vendor's own, and the one that says "unknown".
    if (statement == u"vendor type")
        return oneColumn(u"V", -370, u"value");
    if (statement == u"unknown type")
        return oneColumn(u"U", SQL_UNKNOWN_TYPE, u"value");
    if (statement == u"halves of characters")
        return oneColumn(u"T", SQL_WVARCHAR, {u'a', char16_t(0xD83D), u'b', char16_t(0xDE00), u'Ω'});
    if (statement == u"long name")
        return oneColumn(std::u16string(128, u'Ω'), SQL_WVARCHAR, u"value");
    if (statement == u"longer than told")
        return oneColumn(u"A", SQL_WVARCHAR, std::u16string(101, u'x'), 5'000);
    if (statement.starts_with(u"INSERT"))
        return oneColumn(u"lstCode", SQL_WVARCHAR, u"x");
    if (statement.starts_with(u"SELECT TOP (2) 1 AS found"))
        return oneColumn(u"found", SQL_WVARCHAR, u"1");
    if (statement.starts_with(u"UPDATE"))
        return {{}, {}, 0, SIZE_MAX, {}, 1};
    if (statement == u"select * FROM  frms2  WHERE [lstCode] = ?")
        return savedTemplate(false);
    if (statement.ends_with(u" where lstCode = 'old'"))
        return savedTemplate(statement.starts_with(u"select * ,") || statement.starts_with(u"select *,"));
    return oneColumn(u"A", SQL_WVARCHAR, u"", 0);
}

Answer tables() {
    return catalogue(5, {{u"", u"dbo", u"frms2", u"TABLE", u""}});
}

Answer columnsOf(const std::u16string& table) {
    if (table != u"frms2")
        return catalogue(18, {});
    return catalogue(18,
                     {columnRecord(u"lstCode", SQL_WVARCHAR, 1), columnRecord(u"ZKP_", SQL_LONGVARBINARY, 2),
                      columnRecord(u"datein", SQL_TYPE_TIMESTAMP, 3)});
}

Answer primaryKey() {
    return catalogue(6, {});
}

} // namespace zkp::scripted
