#include "ado/sqlite/like.h"

#include "ado/text_compare.h"

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

/// The pattern of a statement is most often one for all rows and is kept between them.
const Characters& keptPattern(sqlite3_context* context, sqlite3_value* value, char32_t escape) {
    if (const auto* kept = static_cast<const Characters*>(sqlite3_get_auxdata(context, 0)))
        return *kept;
    auto made = std::make_unique<Characters>(patternOf(capitalsOf(value), escape));
    const Characters& pattern = *made;
    sqlite3_set_auxdata(context, 0, made.release(),
                        [](void* kept) { delete static_cast<Characters*>(kept); });
    return pattern;
}

/// like(pattern, text [, escape])
void like(sqlite3_context* context, int count, sqlite3_value** values) {
    for (int i = 0; i < count; ++i) {
        if (sqlite3_value_type(values[i]) == SQLITE_NULL)
            return sqlite3_result_null(context);
    }
    const Characters escape = count > 2 ? capitalsOf(values[2]) : Characters(1, kNoEscape);
    if (escape.size() != 1)
        return sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
    sqlite3_result_int(context,
                       matches(keptPattern(context, values[0], escape.front()), capitalsOf(values[1])));
}

} // namespace

void registerLike(sqlite3* handle) {
    for (const int count : {2, 3})
        sqlite3_create_function_v2(handle, "like", count,
                                   SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr, like,
                                   nullptr, nullptr, nullptr);
}

} // namespace zkp::ado::sqlite
