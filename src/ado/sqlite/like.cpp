#include "ado/sqlite/like.h"

#include "ado/records/text_compare.h"

#include <memory>
#include <string>
#include <string_view>

namespace zkp::ado::sqlite {

namespace {

/// What a pattern says besides characters, beyond the last of these.
constexpr char32_t kAnyText = 0x110000;
constexpr char32_t kAnyCharacter = 0x110001;
constexpr char32_t kNoEscape = 0x110002;

using Characters = std::u32string;

Characters capitalsOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return textCapitals({text, static_cast<std::size_t>(sqlite3_value_bytes(value))});
}

Characters patternOf(const Characters& capitals, char32_t escape) {
    Characters pattern;
    bool escaped = false;
    for (const char32_t c : capitals) {
        if (!escaped && c == escape) {
            escaped = true;
            continue;
        }
        pattern += escaped ? c : c == U'%' ? kAnyText : c == U'_' ? kAnyCharacter : c;
        escaped = false;
    }
    return pattern;
}

/// Comes back to the last "%" alone: what an earlier one could take, the last can, too.
bool matches(const Characters& pattern, const Characters& text) {
    std::size_t p = 0;
    std::size_t behindAny = Characters::npos;
    std::size_t from = 0;
    for (std::size_t t = 0; t < text.size();) {
        if (p < pattern.size() && (pattern[p] == text[t] || pattern[p] == kAnyCharacter)) {
            ++p;
            ++t;
        } else if (p < pattern.size() && pattern[p] == kAnyText) {
            behindAny = ++p;
            from = t;
        } else if (behindAny != Characters::npos) {
            p = behindAny;
            t = ++from;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(kAnyText, p) == Characters::npos;
}

struct Pattern {
    Characters characters;
    char32_t escape;
};

/// The pattern, the text and the sign that takes the next sign's meaning away.
void like(sqlite3_context* context, int count, sqlite3_value** values) {
    for (int i = 0; i < count; ++i) {
        if (sqlite3_value_type(values[i]) == SQLITE_NULL)
            return sqlite3_result_null(context);
    }
    const Characters escape = count > 2 ? capitalsOf(values[2]) : Characters(1, kNoEscape);
    if (escape.size() != 1)
        return sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
    const Characters text = capitalsOf(values[1]);
    // The pattern of a statement is most often one for all rows and is kept between them.
    const auto* kept = static_cast<const Pattern*>(sqlite3_get_auxdata(context, 0));
    if (kept && kept->escape == escape.front())
        return sqlite3_result_int(context, matches(kept->characters, text));
    auto made =
        std::make_unique<Pattern>(Pattern{patternOf(capitalsOf(values[0]), escape.front()), escape.front()});
    sqlite3_result_int(context, matches(made->characters, text));
    sqlite3_set_auxdata(context, 0, made.release(), [](void* old) { delete static_cast<Pattern*>(old); });
}

} // namespace

void registerLike(sqlite3* handle) {
    for (const int count : {2, 3})
        sqlite3_create_function_v2(handle, "regexp", count, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like,
                                   nullptr, nullptr, nullptr);
}

} // namespace zkp::ado::sqlite
