#pragma once

#include "base/currency.h"

#include <QDateTime>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace zkp::store {

/// What one stored value is. A column may mix kinds, as SQLite's do.
enum class ValueKind : std::uint8_t { Null, Boolean, Integer, Amount, Double, Date, Text, Binary };

/// Values of one field for all records of a result: typed, immutable, shared by recordsets, their
/// clones and the grid. Rows are numbered from 0 in the order of the fetch; a row outside is a
/// programming error. Reading is constant time and safe from any thread.
class Column {
public:
    virtual ~Column() = default;

    virtual std::size_t size() const = 0;
    virtual ValueKind kind(std::size_t row) const = 0;
    bool isNull(std::size_t row) const { return kind(row) == ValueKind::Null; }

    /// Boolean (0 or 1) and Integer values.
    virtual std::int64_t integer(std::size_t row) const = 0;
    /// Amount values.
    virtual Currency amount(std::size_t row) const = 0;
    /// Double values.
    virtual double real(std::size_t row) const = 0;
    /// Date values, as milliseconds since 1970-01-01 00:00 with no time zone.
    virtual std::int64_t milliseconds(std::size_t row) const = 0;
    /// Text (UTF-8 as the database holds it) and Binary values; valid while the column lives.
    virtual std::string_view bytes(std::size_t row) const = 0;

    /// The value as a host sees it (see base/value.h). Bytes that are not UTF-8 are replaced.
    QVariant value(std::size_t row) const;

    /// Where the column keeps repeated texts once: the number that stands for this row's text, below
    /// textCodes(), so that a test of the text can be made once per number. kNoTextCode for a row
    /// that is no text or is kept whole.
    virtual std::uint32_t textCode(std::size_t row) const = 0;
    virtual std::uint32_t textCodes() const = 0;
    static constexpr std::uint32_t kNoTextCode = UINT32_MAX;

    /// Bytes that the column occupies, for the memory figures.
    virtual std::size_t memoryUsed() const = 0;
};

/// A moment without time zone from its milliseconds, and back.
QDateTime dateFromMilliseconds(std::int64_t milliseconds);
std::int64_t millisecondsFromDate(const QDateTime& moment);

} // namespace zkp::store
