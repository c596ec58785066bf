#include "ado/records/text_compare.h"

#include <QChar>

#include <array>
#include <cstdint>

namespace zkp::ado {

namespace {

constexpr char32_t kReplacement = 0xfffd;

/// Capitals of the first two Unicode blocks and Greek, looked up rather than asked for.
constexpr char32_t kTableEnd = 0x400;

const std::array<char32_t, kTableEnd>& capitals() {
    static const auto table = [] {
        std::array<char32_t, kTableEnd> t;
        for (char32_t c = 0; c < kTableEnd; ++c)
            t[c] = QChar::toUpper(c);
        return t;
    }();
    return table;
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

/// The character at a place, which moves behind it; one byte at a time where it is no UTF-8.
char32_t nextCharacter(std::string_view text, std::size_t& at) {
    const auto first = static_cast<unsigned char>(text[at++]);
    if (first < 0x80)
        return first;
    const int more = first >= 0xf0 && first < 0xf5 ? 3 : first >= 0xe0 ? 2 : first >= 0xc2 ? 1 : 0;
    if (more == 0 || first >= 0xf5 || at + static_cast<std::size_t>(more) > text.size())
        return kReplacement;
    char32_t c = first & (0x3fu >> more);
    for (int i = 0; i < more; ++i) {
        if (!isContinuation(text[at + static_cast<std::size_t>(i)]))
            return kReplacement;
        c = c << 6 | (static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]) & 0x3f);
    }
    at += static_cast<std::size_t>(more);
    return c;
}

char32_t capital(char32_t c) {
    return c < kTableEnd ? capitals()[c] : QChar::toUpper(c);
}

void appendUtf8(std::string& text, char32_t c) {
    const auto byte = [](char32_t b) { return static_cast<char>(b); };
    if (c < 0x80) {
        text += byte(c);
    } else if (c < 0x800) {
        text += {byte(0xc0 | c >> 6), byte(0x80 | (c & 0x3f))};
    } else if (c < 0x10000) {
        text += {byte(0xe0 | c >> 12), byte(0x80 | (c >> 6 & 0x3f)), byte(0x80 | (c & 0x3f))};
    } else {
        text += {byte(0xf0 | c >> 18), byte(0x80 | (c >> 12 & 0x3f)), byte(0x80 | (c >> 6 & 0x3f)),
                 byte(0x80 | (c & 0x3f))};
    }
}

} // namespace

int compareTexts(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        const char32_t x = capital(nextCharacter(a, i));
        const char32_t y = capital(nextCharacter(b, j));
        if (x != y)
            return x < y ? -1 : 1;
    }
    return (i < a.size()) - (j < b.size());
}

std::string textKey(std::string_view text) {
    std::string key;
    key.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        appendUtf8(key, capital(nextCharacter(text, i)));
    return key;
}

std::u32string textCapitals(std::string_view text) {
    std::u32string capitals;
    capitals.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        capitals += capital(nextCharacter(text, i));
    return capitals;
}

} // namespace zkp::ado
