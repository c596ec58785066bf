#pragma once

#include "store/chunks.h"

namespace zkp::store {

/// The rows of the chunk that is being filled, in a form that is quick to append to; taken out in
/// the compact form that suits them. Starts as numbers, coded texts or bytes by its first value,
/// and becomes mixed when a value of another kind comes.
class ChunkStage {
public:
    /// The dictionary may grow while the stage is in use.
    explicit ChunkStage(std::shared_ptr<const TextDictionary> texts)
        : texts_(std::move(texts)) {}

    std::size_t size() const { return rows_; }
    void clear();

    void appendNull();
    /// A Boolean, Integer, Amount, Date, or (as its bits) a Double.
    void appendNumber(ValueKind kind, std::int64_t value);
    /// The number of a dictionary text.
    void appendCode(std::uint32_t code);
    void appendBytes(ValueKind kind, std::string_view bytes);
    /// From here on the chunk keeps its texts whole.
    void dropCodes();

    ChunkPtr take();

private:
    enum class Form : std::uint8_t { Empty, Numbers, Codes, Bytes, Mixed };

    void start(Form form, ValueKind kind);
    void pushNull();
    void pushValue() {
        if (anyNull_)
            nulls_.push_back(false);
        ++rows_;
    }
    bool widenToDouble(ValueKind kind, std::int64_t& value);
    void toMixed();
    void pushMixed(ValueKind kind, std::int64_t payload);
    void pushMixedBytes(ValueKind kind, std::string_view bytes);

    std::shared_ptr<const TextDictionary> texts_;
    Form form_ = Form::Empty;
    ValueKind kind_ = ValueKind::Null;
    std::size_t rows_ = 0;
    bool anyNull_ = false;
    std::vector<bool> nulls_;           ///< filled from the first null on
    std::vector<std::int64_t> numbers_; ///< Numbers; payloads of Mixed
    std::vector<std::uint32_t> codes_;  ///< Codes
    std::vector<std::uint64_t> ends_;   ///< Bytes
    std::vector<char> arena_;           ///< Bytes and Mixed
    std::vector<ValueKind> kinds_;      ///< Mixed
};

} // namespace zkp::store
