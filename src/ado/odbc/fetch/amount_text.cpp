#include "ado/odbc/fetch/amount_text.h"

#include <charconv>

namespace zkp::ado::odbc {

namespace {

constexpr int kDecimals = 4;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::optional<Currency> amountFromText(std::string_view digits) {
    const bool negative = !digits.empty() && digits.front() == '-';
    if (negative || (!digits.empty() && digits.front() == '+'))
        digits.remove_prefix(1);
    std::int64_t scaled = 0;
    int decimals = -1; // before the point
    bool any = false;
    bool roundUp = false;
    for (const char c : digits) {
        if (c == '.' && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (!isDigit(c))
            return std::nullopt;
        any = true;
        if (decimals == kDecimals) {
            roundUp = c >= '5';
            ++decimals;
        }
        if (decimals > kDecimals)
            continue;
        if (__builtin_mul_overflow(scaled, 10, &scaled) || __builtin_add_overflow(scaled, c - '0', &scaled))
            return std::nullopt;
        decimals += decimals >= 0 ? 1 : 0;
    }
    for (int i = decimals < 0 ? 0 : decimals; i < kDecimals; ++i) {
        if (__builtin_mul_overflow(scaled, 10, &scaled))
            return std::nullopt;
    }
    if (!any || __builtin_add_overflow(scaled, roundUp ? 1 : 0, &scaled))
        return std::nullopt;
    return Currency{negative ? -scaled : scaled};
}

std::optional<std::int64_t> wholeFromText(std::string_view digits) {
    std::int64_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, value);
    if (failure != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

} // namespace zkp::ado::odbc
