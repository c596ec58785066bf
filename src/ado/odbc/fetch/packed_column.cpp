#include "ado/odbc/fetch/packed_column.h"

#include "ado/constants.h"
#include "ado/odbc/fetch/amount_text.h"
#include "ado/odbc/session/wide_text.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

namespace zkp::ado::odbc {

namespace {

constexpr std::int64_t kDayMilliseconds = 86'400'000;
/// What one long value asked for is not kept for the next rows.
constexpr std::size_t kMostBytesKept = 4u << 20;

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

void appendReal(store::ColumnBuilder& builder, double value, bool isAmount) {
    const auto amount = isAmount ? Currency::fromDouble(value) : std::nullopt;
    if (amount)
        builder.appendAmount(*amount);
    else
        builder.appendReal(value);
}

void appendAmount(store::ColumnBuilder& builder, std::string_view digits, bool isWhole) {
    if (const auto whole = isWhole ? wholeFromText(digits) : std::nullopt)
        builder.appendInteger(*whole);
    else if (const auto amount = amountFromText(digits))
        builder.appendAmount(*amount);
    else
        builder.appendReal(std::strtod(std::string(digits).c_str(), nullptr));
}

} // namespace

void PackedColumn::clear() {
    sizes_.clear();
    filled_ = 0;
    if (bytes_.size() > kMostBytesKept)
        bytes_ = {};
}

char* PackedColumn::roomFor(std::size_t more) {
    if (filled_ + more > bytes_.size())
        bytes_.resize(std::max(filled_ + more, 2 * bytes_.size()));
    return bytes_.data() + std::exchange(filled_, filled_ + more);
}

void PackedColumn::add(std::string_view bytes) {
    sizes_.push_back(static_cast<SQLLEN>(bytes.size()));
    if (!bytes.empty())
        std::memcpy(roomFor(bytes.size()), bytes.data(), bytes.size());
}

void PackedColumn::addFixed(const char* values, const SQLLEN* sizes, std::size_t rows) {
    sizes_.insert(sizes_.end(), sizes, sizes + rows);
    std::memcpy(roomFor(rows * type_.width), values, rows * type_.width);
}

void PackedColumn::addSized(const char* values, const SQLLEN* sizes, std::size_t rows) {
    sizes_.insert(sizes_.end(), sizes, sizes + rows);
    char* to = roomFor(rows * type_.width);
    for (std::size_t row = 0; row < rows; ++row) {
        const auto size = static_cast<std::size_t>(std::max<SQLLEN>(sizes[row], 0));
        std::memcpy(to, values + row * type_.width, size);
        to += size;
    }
    filled_ = static_cast<std::size_t>(to - bytes_.data());
}

void PackedColumn::appendTo(store::ColumnBuilder& builder) {
    switch (type_.transfer) {
    case Transfer::Integer:
        return appendFixed<std::int64_t>(builder, [&](std::int64_t v) { builder.appendInteger(v); });
    case Transfer::Boolean:
        return appendFixed<char>(builder, [&](char v) { builder.appendBoolean(v != 0); });
    case Transfer::Double:
        return appendFixed<double>(builder,
                                   [&](double v) { appendReal(builder, v, type_.info.type == adCurrency); });
    case Transfer::Date:
        return appendFixed<SQL_DATE_STRUCT>(
            builder, [&](const SQL_DATE_STRUCT& v) { appendDate(builder, milliseconds(v)); });
    case Transfer::Moment:
        return appendFixed<SQL_TIMESTAMP_STRUCT>(
            builder, [&](const SQL_TIMESTAMP_STRUCT& v) { appendDate(builder, milliseconds(v)); });
    case Transfer::Amount:
        return appendSized(builder, [&](std::string_view v) { appendAmount(builder, v, type_.isWhole); });
    case Transfer::Binary:
        return appendSized(builder, [&](std::string_view v) { builder.appendBinary(v); });
    case Transfer::Text:
        return appendSized(builder, [&](std::string_view v) { appendText(builder, v); });
    }
}

template <class T, class F>
void PackedColumn::appendFixed(store::ColumnBuilder& builder, F&& append) const {
    for (std::size_t row = 0; row < sizes_.size(); ++row) {
        if (sizes_[row] == SQL_NULL_DATA) {
            builder.appendNull();
            continue;
        }
        T value;
        std::memcpy(&value, bytes_.data() + row * type_.width, sizeof value);
        append(value);
    }
}

template <class F>
void PackedColumn::appendSized(store::ColumnBuilder& builder, F&& append) const {
    const char* value = bytes_.data();
    for (const SQLLEN size : sizes_) {
        if (size == SQL_NULL_DATA) {
            builder.appendNull();
            continue;
        }
        append({value, static_cast<std::size_t>(size)});
        value += size;
    }
}

void PackedColumn::appendText(store::ColumnBuilder& builder, std::string_view bytes) {
    if (type_.isUtf8)
        return builder.appendText(bytes);
    toUtf8({reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / sizeof(char16_t)}, utf8_);
    builder.appendText(utf8_);
}

} // namespace zkp::ado::odbc
