#include "store/chunks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

namespace zkp::store {

namespace {

class NullChunk final : public Chunk {
public:
    explicit NullChunk(std::size_t rows)
        : rows_(rows) {}
    std::size_t size() const override { return rows_; }
    ValueKind kind(std::size_t) const override { return ValueKind::Null; }
    std::size_t memoryUsed() const override { return sizeof *this; }

private:
    std::size_t rows_;
};

template <class T>
class NumberChunk final : public Chunk {
public:
    NumberChunk(ValueKind kind, std::int64_t factor, std::span<const std::int64_t> values,
                const NullMap& nulls)
        : kind_(kind)
        , factor_(factor)
        , nulls_(nulls) {
        values_.reserve(values.size());
        for (const std::int64_t value : values)
            values_.push_back(static_cast<T>(value / factor));
    }
    std::size_t size() const override { return values_.size(); }
    ValueKind kind(std::size_t row) const override { return nulls_.contains(row) ? ValueKind::Null : kind_; }
    std::int64_t integer(std::size_t row) const override { return values_[row] * factor_; }
    double real(std::size_t row) const override { return static_cast<double>(integer(row)); }
    std::size_t memoryUsed() const override {
        return sizeof *this + values_.capacity() * sizeof(T) + nulls_.memoryUsed();
    }

private:
    ValueKind kind_;
    std::int64_t factor_;
    std::vector<T> values_;
    NullMap nulls_;
};

class DoubleChunk final : public Chunk {
public:
    DoubleChunk(std::span<const std::int64_t> bits, const NullMap& nulls)
        : bits_(bits.begin(), bits.end())
        , nulls_(nulls) {}
    std::size_t size() const override { return bits_.size(); }
    ValueKind kind(std::size_t row) const override {
        return nulls_.contains(row) ? ValueKind::Null : ValueKind::Double;
    }
    double real(std::size_t row) const override { return std::bit_cast<double>(bits_[row]); }
    std::size_t memoryUsed() const override {
        return sizeof *this + bits_.capacity() * sizeof(std::int64_t) + nulls_.memoryUsed();
    }

private:
    std::vector<std::int64_t> bits_;
    NullMap nulls_;
};

template <class T>
class CodedChunk final : public Chunk {
public:
    CodedChunk(std::span<const std::uint32_t> codes, std::shared_ptr<const TextDictionary> texts)
        : codes_(codes.begin(), codes.end())
        , texts_(std::move(texts)) {}
    std::size_t size() const override { return codes_.size(); }
    ValueKind kind(std::size_t row) const override {
        return codes_[row] == 0 ? ValueKind::Null : ValueKind::Text;
    }
    std::string_view bytes(std::size_t row) const override {
        return codes_[row] == 0 ? std::string_view() : texts_->text(codes_[row] - 1u);
    }
    std::uint32_t textCode(std::size_t row) const override {
        return codes_[row] == 0 ? Column::kNoTextCode : codes_[row] - 1u;
    }
    std::size_t memoryUsed() const override { return sizeof *this + codes_.capacity() * sizeof(T); }

private:
    std::vector<T> codes_;
    std::shared_ptr<const TextDictionary> texts_;
};

template <class Offset>
class BytesChunk final : public Chunk {
public:
    BytesChunk(ValueKind kind, std::span<const std::uint64_t> ends, std::span<const char> arena,
               const NullMap& nulls)
        : kind_(kind)
        , arena_(arena.begin(), arena.end())
        , nulls_(nulls) {
        ends_.reserve(ends.size());
        for (const std::uint64_t end : ends)
            ends_.push_back(static_cast<Offset>(end));
    }
    std::size_t size() const override { return ends_.size(); }
    ValueKind kind(std::size_t row) const override { return nulls_.contains(row) ? ValueKind::Null : kind_; }
    std::string_view bytes(std::size_t row) const override {
        const std::size_t start = row == 0 ? 0 : ends_[row - 1];
        return {arena_.data() + start, ends_[row] - start};
    }
    std::size_t memoryUsed() const override {
        return sizeof *this + arena_.capacity() + ends_.capacity() * sizeof(Offset) + nulls_.memoryUsed();
    }

private:
    ValueKind kind_;
    std::vector<char> arena_;
    std::vector<Offset> ends_;
    NullMap nulls_;
};

class MixedChunk final : public Chunk {
public:
    MixedChunk(std::span<const ValueKind> kinds, std::span<const std::int64_t> payloads,
               std::span<const char> arena)
        : kinds_(kinds.begin(), kinds.end())
        , payloads_(payloads.begin(), payloads.end())
        , arena_(arena.begin(), arena.end()) {}
    std::size_t size() const override { return kinds_.size(); }
    ValueKind kind(std::size_t row) const override { return kinds_[row]; }
    std::int64_t integer(std::size_t row) const override { return payloads_[row]; }
    double real(std::size_t row) const override { return std::bit_cast<double>(payloads_[row]); }
    std::string_view bytes(std::size_t row) const override {
        if (kinds_[row] != ValueKind::Text && kinds_[row] != ValueKind::Binary)
            return {};
        const char* at = arena_.data() + payloads_[row];
        std::uint64_t length = 0;
        std::memcpy(&length, at, sizeof length);
        return {at + sizeof length, length};
    }
    std::size_t memoryUsed() const override {
        return sizeof *this + kinds_.capacity() + payloads_.capacity() * sizeof(std::int64_t) +
               arena_.capacity();
    }

private:
    std::vector<ValueKind> kinds_;
    std::vector<std::int64_t> payloads_;
    std::vector<char> arena_;
};

/// The largest of some likely factors that divides every value.
std::int64_t commonFactor(ValueKind kind, std::span<const std::int64_t> values) {
    static constexpr std::array<std::int64_t, 2> kAmountFactors{10'000, 100};
    static constexpr std::array<std::int64_t, 2> kDateFactors{86'400'000, 1'000};
    std::span<const std::int64_t> factors;
    if (kind == ValueKind::Amount)
        factors = kAmountFactors;
    else if (kind == ValueKind::Date)
        factors = kDateFactors;
    for (const std::int64_t factor : factors) {
        if (std::all_of(values.begin(), values.end(), [factor](std::int64_t v) { return v % factor == 0; }))
            return factor;
    }
    return 1;
}

template <class T>
bool fits(std::int64_t least, std::int64_t greatest) {
    return least >= std::numeric_limits<T>::min() && greatest <= std::numeric_limits<T>::max();
}

/// Whole and small enough to come back as the same double.
bool isWhole(double value) {
    return std::abs(value) <= 9.0e15 && value == std::trunc(value) && !(value == 0 && std::signbit(value));
}

} // namespace

NullMap::NullMap(const std::vector<bool>& nulls) {
    for (std::size_t row = 0; row < nulls.size(); ++row) {
        if (!nulls[row])
            continue;
        if (bits_.empty())
            bits_.resize((nulls.size() + 63) / 64);
        bits_[row >> 6] |= std::uint64_t(1) << (row & 63);
    }
}

ChunkPtr makeNullChunk(std::size_t rows) {
    return std::make_shared<NullChunk>(rows);
}

ChunkPtr makeNumberChunk(ValueKind kind, std::span<const std::int64_t> values, const NullMap& nulls) {
    const std::int64_t factor = commonFactor(kind, values);
    const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
    const std::int64_t low = *least / factor;
    const std::int64_t high = *greatest / factor;
    if (fits<std::int8_t>(low, high))
        return std::make_shared<NumberChunk<std::int8_t>>(kind, factor, values, nulls);
    if (fits<std::int16_t>(low, high))
        return std::make_shared<NumberChunk<std::int16_t>>(kind, factor, values, nulls);
    if (fits<std::int32_t>(low, high))
        return std::make_shared<NumberChunk<std::int32_t>>(kind, factor, values, nulls);
    return std::make_shared<NumberChunk<std::int64_t>>(kind, factor, values, nulls);
}

ChunkPtr makeDoubleChunk(std::span<const std::int64_t> bits, const NullMap& nulls) {
    const auto whole = [](std::int64_t b) { return isWhole(std::bit_cast<double>(b)); };
    if (!std::all_of(bits.begin(), bits.end(), whole))
        return std::make_shared<DoubleChunk>(bits, nulls);
    std::vector<std::int64_t> values;
    values.reserve(bits.size());
    for (const std::int64_t b : bits)
        values.push_back(static_cast<std::int64_t>(std::bit_cast<double>(b)));
    return makeNumberChunk(ValueKind::Double, values, nulls);
}

ChunkPtr makeCodedChunk(std::span<const std::uint32_t> codes, std::shared_ptr<const TextDictionary> texts) {
    if (texts->size() <= UINT8_MAX)
        return std::make_shared<CodedChunk<std::uint8_t>>(codes, std::move(texts));
    if (texts->size() <= UINT16_MAX)
        return std::make_shared<CodedChunk<std::uint16_t>>(codes, std::move(texts));
    return std::make_shared<CodedChunk<std::uint32_t>>(codes, std::move(texts));
}

ChunkPtr makeBytesChunk(ValueKind kind, std::span<const std::uint64_t> ends, std::span<const char> arena,
                        const NullMap& nulls) {
    if (arena.size() <= UINT32_MAX)
        return std::make_shared<BytesChunk<std::uint32_t>>(kind, ends, arena, nulls);
    return std::make_shared<BytesChunk<std::uint64_t>>(kind, ends, arena, nulls);
}

ChunkPtr makeMixedChunk(std::span<const ValueKind> kinds, std::span<const std::int64_t> payloads,
                        std::span<const char> arena) {
    return std::make_shared<MixedChunk>(kinds, payloads, arena);
}

} // namespace zkp::store
