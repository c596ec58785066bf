#pragma once

#include "bag/property_value.h"

#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <array>

// The words of a bag's text, for the one that writes it and the one that reads it.

namespace zkp::bag_text {

inline constexpr QLatin1String kFirstLine("zkpgrid template 1");
inline constexpr QLatin1String kFirstLineStart("zkpgrid template ");
/// Without it a text that was cut at a line's end would pass.
inline constexpr QLatin1String kLastLine("end");

/// In the order of BagValue's alternatives.
inline constexpr std::array<QLatin1String, std::variant_size_v<BagValue>> kTypeNames{
    QLatin1String("boolean"), QLatin1String("int16"), QLatin1String("int32"),  QLatin1String("single"),
    QLatin1String("double"),  QLatin1String("text"),  QLatin1String("colour"), QLatin1String("font")};

inline constexpr QLatin1String kTrue("True");
inline constexpr QLatin1String kFalse("False");

struct Style {
    QLatin1String name;
    bool BagFont::*member;
};
inline constexpr std::array<Style, 4> kStyles{{{QLatin1String("bold"), &BagFont::bold},
                                               {QLatin1String("italic"), &BagFont::italic},
                                               {QLatin1String("underline"), &BagFont::underline},
                                               {QLatin1String("strikethru"), &BagFont::strikethru}}};

struct Escape {
    char16_t character;
    char16_t letter;
};
inline constexpr std::array<Escape, 5> kEscapes{
    {{u'"', u'"'}, {u'\\', u'\\'}, {u'\n', u'n'}, {u'\r', u'r'}, {u'\t', u't'}}};

inline bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

inline bool isBare(QStringView key) {
    return !key.isEmpty() && std::all_of(key.begin(), key.end(), [](QChar c) {
        return isDigit(c) || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_';
    });
}

} // namespace zkp::bag_text
