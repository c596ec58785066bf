#include "store/column_builder.h"

#include "store/chunked_column.h"

#include <algorithm>
#include <bit>

namespace zkp::store {

namespace {

/// A longer text is hardly ever repeated and dear to look up.
constexpr std::size_t kLongestCoded = 1024;
/// The dictionary's offsets are 32 bits wide.
constexpr std::size_t kLargestDictionary = 1u << 31;

} // namespace

ColumnBuilder::ColumnBuilder()
    : texts_(std::make_shared<TextDictionary>())
    , lookup_(*texts_)
    , stage_(texts_) {}

void ColumnBuilder::appended() {
    ++rows_;
    if (stage_.size() == kChunkRows)
        closeChunk(false);
}

void ColumnBuilder::appendNull() {
    note(ValueKind::Null);
    stage_.appendNull();
    appended();
}

void ColumnBuilder::appendBoolean(bool value) {
    note(ValueKind::Boolean);
    stage_.appendNumber(ValueKind::Boolean, value ? 1 : 0);
    appended();
}

void ColumnBuilder::appendInteger(std::int64_t value) {
    note(ValueKind::Integer);
    if (value != static_cast<std::int32_t>(value))
        longInteger_ = true;
    stage_.appendNumber(ValueKind::Integer, value);
    appended();
}

void ColumnBuilder::appendAmount(Currency value) {
    note(ValueKind::Amount);
    stage_.appendNumber(ValueKind::Amount, value.scaled);
    appended();
}

void ColumnBuilder::appendReal(double value) {
    note(ValueKind::Double);
    stage_.appendNumber(ValueKind::Double, std::bit_cast<std::int64_t>(value));
    appended();
}

void ColumnBuilder::appendDate(std::int64_t milliseconds) {
    note(ValueKind::Date);
    stage_.appendNumber(ValueKind::Date, milliseconds);
    appended();
}

void ColumnBuilder::appendText(std::string_view utf8) {
    note(ValueKind::Text);
    if (lookup_ && (utf8.size() > kLongestCoded || texts_->bytes() > kLargestDictionary))
        giveUpDictionary();
    if (lookup_) {
        ++textRows_;
        stage_.appendCode(lookup_->findOrAdd(utf8));
    } else {
        stage_.appendBytes(ValueKind::Text, utf8);
    }
    appended();
}

void ColumnBuilder::appendBinary(std::string_view bytes) {
    note(ValueKind::Binary);
    stage_.appendBytes(ValueKind::Binary, bytes);
    appended();
}

void ColumnBuilder::append(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return appendAmount(value.value<Currency>());
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return appendNull();
    case QMetaType::Bool:
        return appendBoolean(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
        return appendInteger(value.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return appendReal(value.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return appendDate(millisecondsFromDate(value.toDateTime()));
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return appendBinary({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }
    default: {
        const QByteArray text = value.toString().toUtf8();
        return appendText({text.constData(), static_cast<std::size_t>(text.size())});
    }
    }
}

void ColumnBuilder::appendCopy(const Column& column, std::size_t row) {
    switch (column.kind(row)) {
    case ValueKind::Null:
        return appendNull();
    case ValueKind::Boolean:
        return appendBoolean(column.integer(row) != 0);
    case ValueKind::Integer:
        return appendInteger(column.integer(row));
    case ValueKind::Amount:
        return appendAmount(column.amount(row));
    case ValueKind::Double:
        return appendReal(column.real(row));
    case ValueKind::Date:
        return appendDate(column.milliseconds(row));
    case ValueKind::Text:
        return appendText(column.bytes(row));
    case ValueKind::Binary:
        return appendBinary(column.bytes(row));
    }
}

/// Different texts are so many among those seen that a dictionary costs more than it saves. The
/// first chunk alone decides only in clear cases, since a later one may repeat its texts.
bool ColumnBuilder::repeatsTooLittle(bool last) const {
    const double seen = static_cast<double>(textRows_);
    const double most = last ? 0.6 : chunks_.size() < 4 ? 0.97 : 0.85;
    return texts_->size() > seen * most;
}

void ColumnBuilder::giveUpDictionary() {
    stage_.dropCodes();
    lookup_.reset();
    if (chunks_.empty())
        *texts_ = {};
    texts_->shrink();
}

void ColumnBuilder::closeChunk(bool last) {
    if (lookup_ && textRows_ > 0 && (!last || chunks_.empty()) && repeatsTooLittle(last))
        giveUpDictionary();
    chunks_.push_back(stage_.take());
}

std::shared_ptr<const Column> ColumnBuilder::finish() {
    if (stage_.size() > 0)
        closeChunk(true);
    lookup_.reset();
    texts_->shrink();
    return std::make_shared<ChunkedColumn>(std::move(chunks_), rows_, std::move(texts_));
}

std::shared_ptr<const Column> withValue(const std::shared_ptr<const Column>& column, std::size_t row,
                                        const QVariant& value) {
    const auto& whole = static_cast<const ChunkedColumn&>(*column);
    const std::size_t chunk = row >> kChunkBits;
    const std::size_t begin = chunk << kChunkBits;
    const std::size_t rows = std::max(row + 1, whole.size());

    ColumnBuilder builder;
    builder.keepTextsWhole(); // the column's texts have numbers in its own dictionary only
    for (std::size_t i = begin; i < std::min(rows, begin + kChunkRows); ++i) {
        if (i == row)
            builder.append(value);
        else
            builder.appendCopy(whole, i);
    }
    const auto changed = std::static_pointer_cast<const ChunkedColumn>(builder.finish());

    std::vector<ChunkPtr> chunks = whole.chunks();
    chunks.resize(std::max(chunks.size(), chunk + 1));
    chunks[chunk] = changed->chunks().front();
    return std::make_shared<ChunkedColumn>(std::move(chunks), rows, whole.texts());
}

} // namespace zkp::store
