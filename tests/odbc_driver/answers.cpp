#include "scripted_driver.h"

namespace zkp::scripted {

namespace {

const std::vector<Word> kLinkBroken{{"08S01", 10054, u"[Scripted] Communication link failure"}};

Answer oneColumn(std::u16string name, SQLSMALLINT type, std::u16string value, std::size_t rows = 1) {
    return {{{std::move(name), type, 50}}, {std::move(value)}, rows, SIZE_MAX, {}};
}

} // namespace

Answer answerTo(const std::u16string& statement) {
    if (statement == u"three words")
        return {{},
                {},
                0,
                SIZE_MAX,
                {{"42000", 102, u"[Scripted] Incorrect syntax near 'words'."},
                 {"01000", 3621, u"[Scripted] The statement has been terminated."},
                 {"42000", 8180, u"[Scripted] Statement(s) could not be prepared."}}};
    if (statement == u"link broken")
        return {{}, {}, 0, SIZE_MAX, kLinkBroken};
    if (statement == u"link breaks behind 3000")
        return {{{u"A"}}, {u"x"}, 10'000, 3'000, kLinkBroken};
    if (statement == u"no words")
        return {{}, {}, 0, 0, {}};
    // A type of the vendor's own, and the one that says "unknown".
    if (statement == u"vendor type")
        return oneColumn(u"V", -370, u"value");
    if (statement == u"unknown type")
        return oneColumn(u"U", SQL_UNKNOWN_TYPE, u"value");
    if (statement == u"halves of characters")
        return oneColumn(u"T", SQL_WVARCHAR, {u'a', char16_t(0xD83D), u'b', char16_t(0xDE00), u'Ω'});
    if (statement == u"long name")
        return oneColumn(std::u16string(128, u'Ω'), SQL_WVARCHAR, u"value");
    return oneColumn(u"A", SQL_WVARCHAR, u"", 0);
}

} // namespace zkp::scripted
