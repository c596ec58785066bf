#include "template/template_name.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"

#include <limits>

namespace zkp {

namespace {

constexpr qsizetype kCodeLength = 4; // a report's code stands in front of the number

struct FrontNumber {
    double value = 0;
    bool hasDigits = false;
    qsizetype end = 0; ///< behind its last character
};

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

FrontNumber frontNumber(QStringView text) {
    FrontNumber number;
    qsizetype at = 0;
    while (at < text.size() && text[at] == u' ')
        ++at;
    const bool isNegative = at < text.size() && text[at] == u'-';
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    double whole = 0;
    double fraction = 0;
    double place = 1; // of the fraction's last digit
    bool hasPoint = false;
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == u'.' && !hasPoint)); ++at) {
        if (text[at] == u'.') {
            hasPoint = true;
            continue;
        }
        const int digit = text[at].unicode() - u'0';
        number.hasDigits = true;
        if (!hasPoint) {
            whole = whole * 10 + digit;
        } else if (place < 1e300) {
            fraction = fraction * 10 + digit;
            place *= 10;
        }
    }
    number.end = at;
    number.value = (isNegative ? -1 : 1) * (whole + fraction / place);
    return number;
}

std::int16_t inSixteenBits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = roundHalfEven(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max()))
        throw Error(kErrOverflow, QStringLiteral("Overflow"));
    return static_cast<std::int16_t>(rounded);
}

} // namespace

double leadingNumber(QStringView text) {
    return frontNumber(text).value;
}

std::int16_t strictInt16(QStringView text) {
    const QStringView bare = trimmed(text);
    const FrontNumber number = frontNumber(bare);
    if (!number.hasDigits || number.end != bare.size())
        throw Error(kErrTypeMismatch, QStringLiteral("Type mismatch"));
    return inSixteenBits(number.value);
}

TemplatePlace placeToOpen(const QString& name) {
    const std::int16_t number = inSixteenBits(leadingNumber(mid(name, kCodeLength + 1)));
    return number >= 1 ? TemplatePlace{number, name} : TemplatePlace{std::nullopt, name};
}

TemplatePlace placeToSave(const QString& name) {
    const QString tail = mid(name, kCodeLength + 1);
    return leadingNumber(tail) > 0 ? TemplatePlace{strictInt16(tail), name}
                                   : TemplatePlace{std::nullopt, name};
}

} // namespace zkp
