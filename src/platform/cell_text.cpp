#include "platform/cell_text.h"

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

std::optional<double> boundNumber(const CellBinding& binding, std::size_t record) {
    if (!binding.column || binding.format == CellFormat::Blank || record >= binding.column->size())
        return std::nullopt;
    const ValueKind kind = binding.column->kind(record);
    if (kind == ValueKind::Integer)
        return static_cast<double>(binding.column->integer(record));
    if (kind != ValueKind::Amount)
        return std::nullopt;
    const std::int64_t scaled = binding.column->amount(record).scaled;
    if (binding.format == CellFormat::OwnText)
        return static_cast<double>(scaled) / Currency::kScale;
    const std::int64_t unit = binding.format == CellFormat::Grouped2 ? 100 : Currency::kScale;
    const std::int64_t rest = scaled % unit; // has the sign of the amount
    const std::int64_t away = rest >= unit / 2 ? 1 : rest <= -(unit / 2) ? -1 : 0;
    return static_cast<double>(scaled / unit + away) / static_cast<double>(Currency::kScale / unit);
}

} // namespace zkp
