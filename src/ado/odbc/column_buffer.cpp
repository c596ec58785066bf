#include "ado/odbc/column_buffer.h"

#include "ado/constants.h"
#include "ado/odbc/amount_text.h"
#include "ado/odbc/wide_text.h"

#include <chrono>
#include <cstdlib>
#include <cstring>

namespace zkp::ado::odbc {

namespace {

constexpr std::int64_t kDayMilliseconds = 86'400'000;

/// Nothing for a day that is none: MariaDB keeps dates with a month or day of 0.
std::optional<std::int64_t> midnight(int year, unsigned month, unsigned day) {
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!date.ok())
        return std::nullopt;
    return std::chrono::sys_days(date).time_since_epoch().count() * kDayMilliseconds;
}

std::optional<std::int64_t> milliseconds(const SQL_DATE_STRUCT& date) {
    return midnight(date.year, date.month, date.day);
}

std::optional<std::int64_t> milliseconds(const SQL_TIMESTAMP_STRUCT& moment) {
    const auto day = midnight(moment.year, moment.month, moment.day);
    if (!day)
        return std::nullopt;
    return *day + ((moment.hour * 60ll + moment.minute) * 60 + moment.second) * 1000 +
           moment.fraction / 1'000'000;
}

void appendDate(store::ColumnBuilder& builder, std::optional<std::int64_t> moment) {
    if (moment)
        builder.appendDate(*moment);
    else
        builder.appendNull();
}

std::size_t signOf(const ColumnType& type) {
    if (type.transfer == Transfer::Text)
        return type.isUtf8 ? 1 : sizeof(SQLWCHAR);
    return type.transfer == Transfer::Amount ? 1 : 0;
}

} // namespace

ColumnBuffer::ColumnBuffer(const ColumnType& type, int column, std::size_t rows)
    : type_(type)
    , column_(column)
    , room_(type.width - signOf(type))
    , bytes_(type.width * rows)
    , lengths_(rows) {}

SQLSMALLINT ColumnBuffer::cType() const {
    switch (type_.transfer) {
    case Transfer::Integer:
        return SQL_C_SBIGINT;
    case Transfer::Boolean:
        return SQL_C_BIT;
    case Transfer::Double:
        return SQL_C_DOUBLE;
    case Transfer::Amount:
        return SQL_C_CHAR;
    case Transfer::Date:
        return SQL_C_TYPE_DATE;
    case Transfer::Moment:
        return SQL_C_TYPE_TIMESTAMP;
    case Transfer::Binary:
        return SQL_C_BINARY;
    default:
        return type_.isUtf8 ? SQL_C_CHAR : SQL_C_WCHAR;
    }
}

void ColumnBuffer::bind(const Statement& statement) {
    statement.check(SQLBindCol(statement.get(), static_cast<SQLUSMALLINT>(column_ + 1), cType(),
                               bytes_.data(), static_cast<SQLLEN>(type_.width), lengths_.data()));
}

bool ColumnBuffer::hasSize() const {
    return type_.transfer == Transfer::Text || type_.transfer == Transfer::Binary ||
           type_.transfer == Transfer::Amount;
}

/// Drivers give the whole length of a value that was cut, or that it is unknown. Digits behind a point are
/// more than enough, those ahead of it count.
bool ColumnBuffer::isCut(std::size_t row) const {
    const SQLLEN length = lengths_[row];
    if (length == SQL_NULL_DATA || (length != SQL_NO_TOTAL && static_cast<std::size_t>(length) <= room_))
        return false;
    return type_.transfer != Transfer::Amount ||
           std::string_view(at(row), room_).find('.') == std::string_view::npos;
}

void ColumnBuffer::readCut(std::size_t rows, LongValues& values) {
    cut_.clear();
    for (std::size_t row = 0; hasSize() && row < rows; ++row) {
        if (!isCut(row))
            continue;
        values.goTo(row);
        const std::string* bytes = values.read(column_, cType());
        cut_.emplace(row, bytes ? std::optional(*bytes) : std::nullopt);
    }
}

void ColumnBuffer::read(LongValues& values, store::ColumnBuilder& builder) {
    const std::string* bytes = values.read(column_, cType());
    if (!bytes) {
        builder.appendNull();
    } else if (hasSize()) {
        appendWhole(builder, *bytes);
    } else {
        std::memcpy(bytes_.data(), bytes->data(), std::min(bytes->size(), type_.width));
        lengths_[0] = static_cast<SQLLEN>(bytes->size());
        appendTo(builder, 1, values);
    }
}

void ColumnBuffer::appendTo(store::ColumnBuilder& builder, std::size_t rows, LongValues& values) {
    switch (type_.transfer) {
    case Transfer::Integer:
        return appendFixed<std::int64_t>(builder, rows, [&](std::int64_t v) { builder.appendInteger(v); });
    case Transfer::Boolean:
        return appendFixed<char>(builder, rows, [&](char v) { builder.appendBoolean(v != 0); });
    case Transfer::Double:
        return appendFixed<double>(builder, rows, [&](double v) { appendReal(builder, v); });
    case Transfer::Date:
        return appendFixed<SQL_DATE_STRUCT>(
            builder, rows, [&](const SQL_DATE_STRUCT& v) { appendDate(builder, milliseconds(v)); });
    case Transfer::Moment:
        return appendFixed<SQL_TIMESTAMP_STRUCT>(
            builder, rows, [&](const SQL_TIMESTAMP_STRUCT& v) { appendDate(builder, milliseconds(v)); });
    case Transfer::Amount:
    case Transfer::Binary:
    case Transfer::Text:
        return appendSized(builder, rows, values);
    }
}

template <class T, class F>
void ColumnBuffer::appendFixed(store::ColumnBuilder& builder, std::size_t rows, F&& append) {
    for (std::size_t row = 0; row < rows; ++row) {
        if (lengths_[row] == SQL_NULL_DATA) {
            builder.appendNull();
            continue;
        }
        T value;
        std::memcpy(&value, at(row), sizeof value);
        append(value);
    }
}

void ColumnBuffer::appendReal(store::ColumnBuilder& builder, double value) const {
    const auto amount = type_.info.type == adCurrency ? Currency::fromDouble(value) : std::nullopt;
    if (amount)
        builder.appendAmount(*amount);
    else
        builder.appendReal(value);
}

void ColumnBuffer::appendSized(store::ColumnBuilder& builder, std::size_t rows, LongValues& values) {
    for (std::size_t row = 0; row < rows; ++row) {
        const SQLLEN length = lengths_[row];
        if (length == SQL_NULL_DATA)
            builder.appendNull();
        else if (isCut(row))
            appendCut(builder, row, values);
        else
            appendWhole(builder, {at(row), std::min(static_cast<std::size_t>(length), room_)});
    }
}

void ColumnBuffer::appendCut(store::ColumnBuilder& builder, std::size_t row, LongValues& values) {
    const auto there = cut_.find(row);
    if (there == cut_.end()) {
        values.goTo(row);
        read(values, builder);
    } else if (there->second) {
        appendWhole(builder, *there->second);
    } else {
        builder.appendNull();
    }
}

void ColumnBuffer::appendWhole(store::ColumnBuilder& builder, std::string_view bytes) {
    if (type_.transfer == Transfer::Binary)
        builder.appendBinary(bytes);
    else if (type_.transfer == Transfer::Text)
        appendOneText(builder, bytes);
    else
        appendOneAmount(builder, bytes);
}

void ColumnBuffer::appendOneAmount(store::ColumnBuilder& builder, std::string_view digits) const {
    if (const auto whole = type_.isWhole ? wholeFromText(digits) : std::nullopt)
        builder.appendInteger(*whole);
    else if (const auto amount = amountFromText(digits))
        builder.appendAmount(*amount);
    else
        builder.appendReal(std::strtod(std::string(digits).c_str(), nullptr));
}

void ColumnBuffer::appendOneText(store::ColumnBuilder& builder, std::string_view bytes) {
    if (type_.isUtf8)
        return builder.appendText(bytes);
    toUtf8({reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / sizeof(char16_t)}, utf8_);
    builder.appendText(utf8_);
}

} // namespace zkp::ado::odbc
