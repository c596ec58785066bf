#include "ado/sqlite/row_batch.h"

#include <bit>
#include <new>

namespace zkp::ado::sqlite {

namespace {

void appendInteger(store::ColumnBuilder& builder, std::int64_t value, Storage storage) {
    std::int64_t scaled = 0;
    if (storage == Storage::Boolean)
        builder.appendBoolean(value != 0);
    else if (storage == Storage::Amount && !__builtin_mul_overflow(value, Currency::kScale, &scaled))
        builder.appendAmount({scaled});
    else
        builder.appendInteger(value);
}

void appendReal(store::ColumnBuilder& builder, double value, Storage storage) {
    if (storage == Storage::Amount) {
        if (const auto amount = Currency::fromDouble(value))
            return builder.appendAmount(*amount);
    }
    if (storage == Storage::Boolean)
        return builder.appendBoolean(value != 0);
    builder.appendReal(value);
}

void appendText(store::ColumnBuilder& builder, std::string_view text, Storage storage) {
    if (storage == Storage::Date) {
        if (const auto moment = parseIsoMoment(text))
            return builder.appendDate(*moment);
    }
    builder.appendText(text);
}

} // namespace

RowBatch::RowBatch(int columns)
    : columns_(static_cast<std::size_t>(columns)) {
    for (Cells& cells : columns_) {
        cells.types.resize(kRows);
        cells.payloads.resize(kRows);
    }
}

void RowBatch::clear() {
    rows_ = 0;
    bytes_ = 0;
    isLast = false;
    failure.reset();
    for (Cells& cells : columns_) {
        cells.bytes.clear();
        if (cells.bytes.capacity() > 4 * kBytes)
            cells.bytes = {};
    }
}

void RowBatch::addRow(sqlite3_stmt* statement) {
    int column = 0;
    for (Cells& cells : columns_) {
        // One look at the column instead of one for each of type, bytes and length. The value needs
        // no protection: nobody else uses the handle during the caller's turn.
        sqlite3_value* const value = sqlite3_column_value(statement, column++);
        const int type = sqlite3_value_type(value);
        std::int64_t& payload = cells.payloads[rows_];
        cells.types[rows_] = static_cast<std::uint8_t>(type);
        if (type == SQLITE_INTEGER)
            payload = sqlite3_value_int64(value);
        else if (type == SQLITE_FLOAT)
            payload = std::bit_cast<std::int64_t>(sqlite3_value_double(value));
        else if (type != SQLITE_NULL)
            payload = addBytes(cells, value, type);
    }
    ++rows_;
}

std::int64_t RowBatch::addBytes(Cells& cells, sqlite3_value* value, int type) {
    const void* bytes = type == SQLITE_TEXT ? sqlite3_value_text(value) : sqlite3_value_blob(value);
    const auto length = static_cast<std::size_t>(sqlite3_value_bytes(value));
    if (!bytes && (type == SQLITE_TEXT || length > 0))
        throw std::bad_alloc();
    const char* begin = static_cast<const char*>(bytes);
    cells.bytes.insert(cells.bytes.end(), begin, begin + length);
    bytes_ += length;
    return static_cast<std::int64_t>(length);
}

void RowBatch::appendTo(store::ColumnBuilder& builder, int column, Storage storage) const {
    const Cells& cells = columns_[static_cast<std::size_t>(column)];
    const char* bytes = cells.bytes.data();
    for (std::size_t row = 0; row < rows_; ++row) {
        const std::int64_t payload = cells.payloads[row];
        const auto length = static_cast<std::size_t>(payload);
        switch (cells.types[row]) {
        case SQLITE_INTEGER:
            appendInteger(builder, payload, storage);
            break;
        case SQLITE_FLOAT:
            appendReal(builder, std::bit_cast<double>(payload), storage);
            break;
        case SQLITE_TEXT:
            appendText(builder, {bytes, length}, storage);
            bytes += length;
            break;
        case SQLITE_BLOB:
            builder.appendBinary({bytes, length});
            bytes += length;
            break;
        default:
            builder.appendNull();
        }
    }
}

} // namespace zkp::ado::sqlite
