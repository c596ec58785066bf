#include "surface/cell_text.h"

#include "base/format.h"
#include "base/number.h"
#include "base/value.h"

namespace zkp {

namespace {

using store::Column;
using store::ValueKind;

QString textOf(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString ownText(const Column& column, std::size_t record, const ReportLocale& locale) {
    switch (column.kind(record)) {
    case ValueKind::Null:
        return {};
    case ValueKind::Boolean:
        return column.integer(record) != 0 ? QStringLiteral("True") : QStringLiteral("False");
    case ValueKind::Integer:
        return QString::number(column.integer(record));
    case ValueKind::Amount:
        return valueText(QVariant::fromValue(column.amount(record)), locale);
    case ValueKind::Double:
        return locale.doubleText(column.real(record));
    case ValueKind::Date:
        return locale.dateText(store::dateFromMilliseconds(column.milliseconds(record)));
    case ValueKind::Text:
    case ValueKind::Binary:
        return textOf(column.bytes(record));
    }
    return {};
}

double dayNumber(std::int64_t milliseconds) {
    constexpr double kDaysTo1970 = 25569; // from 30 December 1899
    constexpr double kMillisecondsOfDay = 86'400'000;
    return kDaysTo1970 + static_cast<double>(milliseconds) / kMillisecondsOfDay;
}

QString formatted(const Column& column, std::size_t record, NumberFormat format, const ReportLocale& locale) {
    switch (column.kind(record)) {
    case ValueKind::Null:
        return formatNumber(Currency{}, format, locale);
    case ValueKind::Boolean:
        return formatNumber(Currency::fromWhole(column.integer(record) != 0 ? -1 : 0), format, locale);
    case ValueKind::Integer:
        return formatNumber(column.integer(record), format, locale);
    case ValueKind::Amount:
        return formatNumber(column.amount(record), format, locale);
    case ValueKind::Double:
        return formatNumber(column.real(record), format, locale);
    case ValueKind::Date:
        return formatNumber(dayNumber(column.milliseconds(record)), format, locale);
    case ValueKind::Text: {
        const QString text = textOf(column.bytes(record));
        const std::optional<double> number = toNumber(text, locale);
        return number ? formatNumber(*number, format, locale) : text;
    }
    case ValueKind::Binary:
        return textOf(column.bytes(record));
    }
    return {};
}

/// The amount as its format shows it: half away from zero.
Currency roundedAmount(Currency amount, CellFormat format) {
    if (format == CellFormat::OwnText)
        return amount;
    const std::int64_t unit = format == CellFormat::Grouped2 ? 100 : Currency::kScale;
    const std::int64_t rest = amount.scaled % unit; // has the sign of the amount
    const std::int64_t away = rest >= unit / 2 ? 1 : rest <= -(unit / 2) ? -1 : 0;
    std::int64_t rounded = 0;
    const bool fits = !__builtin_mul_overflow(amount.scaled / unit + away, unit, &rounded);
    return Currency{fits ? rounded : amount.scaled};
}

} // namespace

QString boundText(const CellBinding& binding, std::size_t record, const ReportLocale& locale) {
    if (!binding.column || record >= binding.column->size())
        return {};
    switch (binding.format) {
    case CellFormat::Blank:
        return {};
    case CellFormat::OwnText:
        return ownText(*binding.column, record, locale);
    case CellFormat::Grouped2:
        return formatted(*binding.column, record, NumberFormat::Grouped2, locale);
    case CellFormat::Grouped0:
        return formatted(*binding.column, record, NumberFormat::Grouped0, locale);
    }
    return {};
}

std::optional<Currency> boundAmount(const CellBinding& binding, std::size_t record) {
    if (!binding.column || binding.format == CellFormat::Blank || record >= binding.column->size())
        return std::nullopt;
    switch (binding.column->kind(record)) {
    case ValueKind::Amount:
        return roundedAmount(binding.column->amount(record), binding.format);
    case ValueKind::Integer: {
        std::int64_t scaled = 0;
        if (__builtin_mul_overflow(binding.column->integer(record), Currency::kScale, &scaled))
            return std::nullopt;
        return Currency{scaled};
    }
    case ValueKind::Null:
        return binding.format == CellFormat::OwnText ? std::nullopt : std::optional(Currency{});
    default:
        return std::nullopt;
    }
}

bool isBoundBlank(const CellBinding& binding, std::size_t record) {
    if (!binding.column || binding.format == CellFormat::Blank || record >= binding.column->size())
        return true;
    switch (binding.column->kind(record)) {
    case ValueKind::Null:
        return binding.format == CellFormat::OwnText;
    case ValueKind::Text:
    case ValueKind::Binary:
        return binding.column->bytes(record).find_first_not_of(' ') == std::string_view::npos;
    default:
        return false;
    }
}

std::optional<double> boundNumber(const CellBinding& binding, std::size_t record) {
    if (!binding.column || binding.format == CellFormat::Blank || record >= binding.column->size())
        return std::nullopt;
    switch (binding.column->kind(record)) {
    case ValueKind::Integer:
        return static_cast<double>(binding.column->integer(record));
    case ValueKind::Amount:
        return roundedAmount(binding.column->amount(record), binding.format).toDouble();
    default:
        return std::nullopt;
    }
}

} // namespace zkp
