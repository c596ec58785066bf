#pragma once

#include "store/chunk_stage.h"
#include "store/column.h"

#include <optional>

namespace zkp::store {

/// Fills one column value by value and gives it out in compact encodings. Kinds may be mixed.
class ColumnBuilder {
public:
    ColumnBuilder();
    ColumnBuilder(ColumnBuilder&&) noexcept = default;
    ColumnBuilder& operator=(ColumnBuilder&&) noexcept = default;

    void appendNull();
    void appendBoolean(bool value);
    void appendInteger(std::int64_t value);
    void appendAmount(Currency value);
    void appendReal(double value);
    /// Milliseconds since 1970-01-01 00:00 with no time zone.
    void appendDate(std::int64_t milliseconds);
    /// Any bytes; meant as UTF-8.
    void appendText(std::string_view utf8);
    void appendBinary(std::string_view bytes);
    /// A value as base/value.h has it.
    void append(const QVariant& value);
    /// A value of another column, byte for byte.
    void appendCopy(const Column& column, std::size_t row);
    /// No dictionary: every text is kept where it stands.
    void keepTextsWhole() { giveUpDictionary(); }

    std::size_t size() const { return rows_; }
    /// What has been appended so far: whether a kind was among it, and whether an integer needed
    /// more than 32 bits.
    bool has(ValueKind kind) const { return (kinds_ >> static_cast<unsigned>(kind) & 1u) != 0; }
    bool hasLongInteger() const { return longInteger_; }

    /// The finished column; the builder is not used afterwards.
    std::shared_ptr<const Column> finish();

private:
    void note(ValueKind kind) { kinds_ |= 1u << static_cast<unsigned>(kind); }
    void appended();
    void closeChunk(bool last);
    bool repeatsTooLittle(bool last) const;
    void giveUpDictionary();

    std::shared_ptr<TextDictionary> texts_;
    std::optional<TextLookup> lookup_; ///< gone once the column keeps its texts whole
    ChunkStage stage_;
    std::vector<ChunkPtr> chunks_;
    std::size_t rows_ = 0;
    std::size_t textRows_ = 0; ///< texts looked up in the dictionary
    unsigned kinds_ = 0;
    bool longInteger_ = false;
};

/// A column with one value changed, or appended when the row is the column's size. Shares all
/// other chunks with the given one.
std::shared_ptr<const Column> withValue(const std::shared_ptr<const Column>& column, std::size_t row,
                                        const QVariant& value);

} // namespace zkp::store
