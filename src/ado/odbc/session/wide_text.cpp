#include "ado/odbc/session/wide_text.h"

namespace zkp::ado::odbc {

namespace {

char* put(char* at, char32_t c) {
    const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x80) {
        *at++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *at++ = static_cast<char>(0xC0 | c >> 6);
        *at++ = tail(c);
    } else if (c < 0x10000) {
        *at++ = static_cast<char>(0xE0 | c >> 12);
        *at++ = tail(c >> 6);
        *at++ = tail(c);
    } else {
        *at++ = static_cast<char>(0xF0 | c >> 18);
        *at++ = tail(c >> 12);
        *at++ = tail(c >> 6);
        *at++ = tail(c);
    }
    return at;
}

} // namespace

void toUtf8(std::u16string_view text, std::string& utf8) {
    utf8.resize(text.size() * 3);
    char* at = utf8.data();
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        const bool high = c >= 0xD800 && c < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00u);
        else if (c >= 0xD800 && c < 0xE000)
            c = 0xFFFD;
        at = put(at, c);
    }
    utf8.resize(static_cast<std::size_t>(at - utf8.data()));
}

} // namespace zkp::ado::odbc
