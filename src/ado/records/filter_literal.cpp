#include "ado/records/filter_literal.h"

#include "ado/records/text_compare.h"

#include <QDate>

#include <cmath>

namespace zkp::ado {

namespace {

/// A plain decimal as ten-thousandths, where it is one exactly.
std::optional<std::int64_t> exactAmount(const QString& source) {
    const auto point = source.indexOf(u'.');
    QString digits = source;
    qsizetype decimals = 0;
    if (point >= 0) {
        digits.remove(point, 1);
        decimals = source.size() - point - 1;
    }
    while (decimals > 4 && digits.endsWith(u'0')) {
        digits.chop(1);
        --decimals;
    }
    if (decimals > 4)
        return std::nullopt;
    bool ok = false;
    const qlonglong value = (digits + QString(4 - decimals, u'0')).toLongLong(&ok);
    return ok ? std::optional<std::int64_t>(value) : std::nullopt;
}

void setNumber(FilterLiteral& literal, const QString& source) {
    bool ok = false;
    const double real = source.toDouble(&ok);
    if (!ok || !std::isfinite(real))
        return;
    literal.real = real;
    literal.scaled = exactAmount(source);
    const qlonglong whole = source.toLongLong(&ok);
    if (ok)
        literal.whole = whole;
    else if (std::abs(real) < 9e15 && real == std::trunc(real))
        literal.whole = static_cast<std::int64_t>(real);
}

std::int64_t fromDate(const QDate& date) {
    return store::millisecondsFromDate(date.startOfDay());
}

} // namespace

ExactNumber ExactNumber::fromInteger(std::int64_t integer) {
    const auto nearest = static_cast<double>(integer);
    // 2^63 itself is the nearest double of the largest integers and has no integer of its own.
    if (nearest >= 9223372036854775808.0)
        return {nearest, integer - INT64_MAX - 1};
    return {nearest, integer - static_cast<std::int64_t>(nearest)};
}

ExactNumber ExactNumber::fromAmount(Currency amount) {
    const double nearest = amount.toDouble();
    const auto scaledBack = static_cast<long double>(nearest) * Currency::kScale;
    return {nearest,
            static_cast<std::int64_t>(static_cast<long double>(amount.scaled) - std::rint(scaledBack))};
}

FilterLiteral FilterLiteral::number(const QString& source) {
    FilterLiteral literal = text(source);
    setNumber(literal, source);
    return literal;
}

FilterLiteral FilterLiteral::text(const QString& text) {
    FilterLiteral literal;
    literal.key = textKey(text.toStdString());
    literal.milliseconds = parseFilterDate(text);
    setNumber(literal, text.trimmed());
    return literal;
}

FilterLiteral FilterLiteral::date(std::int64_t milliseconds) {
    FilterLiteral literal;
    literal.milliseconds = milliseconds;
    literal.key = store::dateFromMilliseconds(milliseconds).date().toString(Qt::ISODate).toStdString();
    return literal;
}

FilterLiteral FilterLiteral::boolean(bool value) {
    FilterLiteral literal;
    literal.real = value ? -1 : 0;
    literal.whole = value ? -1 : 0;
    literal.scaled = value ? -Currency::kScale : 0;
    literal.key = value ? "TRUE" : "FALSE";
    return literal;
}

ExactNumber FilterLiteral::asIntegerSees() const {
    return whole ? ExactNumber::fromInteger(*whole) : ExactNumber::fromDouble(real.value_or(0));
}

ExactNumber FilterLiteral::asAmountSees() const {
    return scaled ? ExactNumber::fromAmount({*scaled}) : ExactNumber::fromDouble(real.value_or(0));
}

std::optional<std::int64_t> parseFilterDate(const QString& text) {
    QDate date = QDate::fromString(text, QStringLiteral("M/d/yyyy"));
    if (!date.isValid())
        date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    return date.isValid() ? std::optional(fromDate(date)) : std::nullopt;
}

} // namespace zkp::ado
