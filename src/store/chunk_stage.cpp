#include "store/chunk_stage.h"

#include <bit>
#include <cstring>

namespace zkp::store {

namespace {

/// A buffer that one huge value has blown up is given back.
constexpr std::size_t kKeptArena = 4u << 20;

bool isExactDouble(std::int64_t value) {
    return value >= -(1ll << 53) && value <= (1ll << 53);
}

} // namespace

void ChunkStage::clear() {
    form_ = Form::Empty;
    kind_ = ValueKind::Null;
    rows_ = 0;
    anyNull_ = false;
    nulls_.clear();
    numbers_.clear();
    codes_.clear();
    ends_.clear();
    kinds_.clear();
    arena_.clear();
    if (arena_.capacity() > kKeptArena)
        arena_ = {};
}

/// Gives the nulls that came before the first value their place in the form.
void ChunkStage::start(Form form, ValueKind kind) {
    form_ = form;
    kind_ = kind;
    if (form == Form::Numbers)
        numbers_.assign(rows_, 0);
    else if (form == Form::Codes)
        codes_.assign(rows_, 0);
    else
        ends_.assign(rows_, 0);
}

void ChunkStage::pushNull() {
    if (!anyNull_) {
        anyNull_ = true;
        nulls_.assign(rows_, false);
    }
    nulls_.push_back(true);
    ++rows_;
}

void ChunkStage::appendNull() {
    switch (form_) {
    case Form::Empty:
        break;
    case Form::Numbers:
        numbers_.push_back(0);
        break;
    case Form::Codes:
        codes_.push_back(0);
        break;
    case Form::Bytes:
        ends_.push_back(arena_.size());
        break;
    case Form::Mixed:
        kinds_.push_back(ValueKind::Null);
        numbers_.push_back(0);
        break;
    }
    pushNull();
}

void ChunkStage::appendNumber(ValueKind kind, std::int64_t value) {
    if (form_ == Form::Empty)
        start(Form::Numbers, kind);
    if (form_ == Form::Numbers && (kind == kind_ || widenToDouble(kind, value))) {
        numbers_.push_back(value);
        pushValue();
        return;
    }
    pushMixed(kind, value);
}

/// A result that gives whole numbers and fractions in one column (sums do) stays one of doubles,
/// as long as every whole number is exact as a double.
bool ChunkStage::widenToDouble(ValueKind kind, std::int64_t& value) {
    if (kind == ValueKind::Integer && kind_ == ValueKind::Double) {
        if (!isExactDouble(value))
            return false;
        value = std::bit_cast<std::int64_t>(static_cast<double>(value));
        return true;
    }
    if (kind != ValueKind::Double || kind_ != ValueKind::Integer)
        return false;
    for (const std::int64_t number : numbers_) {
        if (!isExactDouble(number))
            return false;
    }
    for (std::int64_t& number : numbers_)
        number = std::bit_cast<std::int64_t>(static_cast<double>(number));
    kind_ = ValueKind::Double;
    return true;
}

void ChunkStage::appendCode(std::uint32_t code) {
    if (form_ == Form::Empty)
        start(Form::Codes, ValueKind::Text);
    if (form_ == Form::Codes) {
        codes_.push_back(code + 1);
        pushValue();
        return;
    }
    appendBytes(ValueKind::Text, texts_->text(code));
}

void ChunkStage::appendBytes(ValueKind kind, std::string_view bytes) {
    if (form_ == Form::Empty)
        start(Form::Bytes, kind);
    if (form_ == Form::Bytes && kind == kind_) {
        arena_.insert(arena_.end(), bytes.begin(), bytes.end());
        ends_.push_back(arena_.size());
        pushValue();
        return;
    }
    pushMixedBytes(kind, bytes);
}

void ChunkStage::dropCodes() {
    if (form_ != Form::Codes)
        return;
    form_ = Form::Bytes;
    ends_.reserve(codes_.size());
    for (const std::uint32_t code : codes_) {
        const std::string_view text = code == 0 ? std::string_view() : texts_->text(code - 1);
        arena_.insert(arena_.end(), text.begin(), text.end());
        ends_.push_back(arena_.size());
    }
    codes_.clear();
}

void ChunkStage::toMixed() {
    dropCodes();
    const auto isNullRow = [this](std::size_t row) { return anyNull_ && nulls_[row]; };
    kinds_.resize(rows_);
    for (std::size_t row = 0; row < rows_; ++row)
        kinds_[row] = isNullRow(row) ? ValueKind::Null : kind_;
    if (form_ == Form::Bytes) {
        const std::vector<char> whole = std::move(arena_);
        arena_ = {};
        numbers_.resize(rows_);
        for (std::size_t row = 0; row < rows_; ++row) {
            const std::uint64_t begin = row == 0 ? 0 : ends_[row - 1];
            const std::uint64_t length = ends_[row] - begin;
            numbers_[row] = static_cast<std::int64_t>(arena_.size());
            const char* size = reinterpret_cast<const char*>(&length);
            arena_.insert(arena_.end(), size, size + sizeof length);
            arena_.insert(arena_.end(), whole.data() + begin, whole.data() + begin + length);
        }
    }
    form_ = Form::Mixed;
}

void ChunkStage::pushMixed(ValueKind kind, std::int64_t payload) {
    if (form_ != Form::Mixed)
        toMixed();
    kinds_.push_back(kind);
    numbers_.push_back(payload);
    pushValue();
}

void ChunkStage::pushMixedBytes(ValueKind kind, std::string_view bytes) {
    if (form_ != Form::Mixed)
        toMixed();
    const std::uint64_t length = bytes.size();
    const char* size = reinterpret_cast<const char*>(&length);
    const auto place = static_cast<std::int64_t>(arena_.size());
    arena_.insert(arena_.end(), size, size + sizeof length);
    arena_.insert(arena_.end(), bytes.begin(), bytes.end());
    pushMixed(kind, place);
}

ChunkPtr ChunkStage::take() {
    const NullMap nulls = form_ == Form::Codes || form_ == Form::Mixed ? NullMap() : NullMap(nulls_);
    ChunkPtr chunk;
    switch (form_) {
    case Form::Empty:
        chunk = makeNullChunk(rows_);
        break;
    case Form::Numbers:
        chunk = kind_ == ValueKind::Double ? makeDoubleChunk(numbers_, nulls)
                                           : makeNumberChunk(kind_, numbers_, nulls);
        break;
    case Form::Codes:
        chunk = makeCodedChunk(codes_, texts_);
        break;
    case Form::Bytes:
        chunk = makeBytesChunk(kind_, ends_, arena_, nulls);
        break;
    case Form::Mixed:
        chunk = makeMixedChunk(kinds_, numbers_, arena_);
        break;
    }
    clear();
    return chunk;
}

} // namespace zkp::store
