#include "ado/records/value_classes.h"

#include "ado/records/text_compare.h"

#include <algorithm>
#include <numeric>

namespace zkp::ado {

using store::Column;
using store::ValueKind;

namespace {

int kindOrder(ValueKind kind) {
    switch (kind) {
    case ValueKind::Null:
        return 0;
    case ValueKind::Boolean:
    case ValueKind::Integer:
    case ValueKind::Amount:
    case ValueKind::Double:
        return 1;
    case ValueKind::Date:
        return 2;
    case ValueKind::Text:
        return 3;
    case ValueKind::Binary:
        return 4;
    }
    return 0;
}

ExactNumber numberOf(const Column& column, std::size_t row) {
    switch (column.kind(row)) {
    case ValueKind::Amount:
        return ExactNumber::fromAmount(column.amount(row));
    case ValueKind::Double:
        return ExactNumber::fromDouble(column.real(row));
    default:
        return ExactNumber::fromInteger(column.integer(row));
    }
}

} // namespace

ValueClasses::ValueClasses(std::shared_ptr<const Column> column)
    : column_(std::move(column))
    , examples_{0}
    , ofCode_(column_->textCodes(), 0) {
    classes_.reserve(column_->size());
    for (std::size_t row = 0; row < column_->size(); ++row)
        classes_.push_back(classify(row));
    ofCode_ = {};
}

template <class Map, class Key>
std::uint32_t ValueClasses::classIn(Map& map, Key&& key, std::size_t row) {
    const auto [entry, isNew] = map.try_emplace(std::forward<Key>(key), count());
    if (isNew)
        examples_.push_back(static_cast<std::uint32_t>(row));
    return entry->second;
}

std::uint32_t ValueClasses::classify(std::size_t row) {
    switch (column_->kind(row)) {
    case ValueKind::Null:
        return 0;
    case ValueKind::Boolean:
        return classIn(booleans_, column_->integer(row) != 0, row);
    case ValueKind::Date:
        return classIn(dates_, column_->milliseconds(row), row);
    case ValueKind::Text:
        return classifyText(row);
    case ValueKind::Binary:
        return classIn(binaries_, std::string(column_->bytes(row)), row);
    default:
        return classIn(numbers_, numberOf(*column_, row), row);
    }
}

std::uint32_t ValueClasses::classifyText(std::size_t row) {
    const std::uint32_t code = column_->textCode(row);
    if (code == Column::kNoTextCode)
        return classIn(texts_, textKey(column_->bytes(row)), row);
    if (ofCode_[code] == 0)
        ofCode_[code] = classIn(texts_, textKey(column_->bytes(row)), row);
    return ofCode_[code];
}

std::vector<std::uint32_t> ValueClasses::classesOf(const FilterLiteral& literal) const {
    std::vector<std::uint32_t> found;
    const auto look = [&found](const auto& map, const auto& key) {
        const auto entry = map.find(key);
        if (entry != map.end() && std::find(found.begin(), found.end(), entry->second) == found.end())
            found.push_back(entry->second);
    };
    look(texts_, literal.key);
    if (literal.milliseconds)
        look(dates_, *literal.milliseconds);
    if (literal.real) {
        look(numbers_, literal.asIntegerSees());
        look(numbers_, literal.asAmountSees());
        look(numbers_, ExactNumber::fromDouble(*literal.real));
        look(booleans_, *literal.real != 0);
    }
    return found;
}

bool ValueClasses::precedes(std::uint32_t a, std::uint32_t b) const {
    if (a == 0 || b == 0)
        return a == 0 && b != 0;
    const std::size_t rowA = examples_[a];
    const std::size_t rowB = examples_[b];
    const int kindA = kindOrder(column_->kind(rowA));
    const int kindB = kindOrder(column_->kind(rowB));
    if (kindA != kindB)
        return kindA < kindB;
    switch (column_->kind(rowA)) {
    case ValueKind::Date:
        return column_->milliseconds(rowA) < column_->milliseconds(rowB);
    case ValueKind::Text:
        return compareTexts(column_->bytes(rowA), column_->bytes(rowB)) < 0;
    case ValueKind::Binary:
        return column_->bytes(rowA) < column_->bytes(rowB);
    default:
        return numberOf(*column_, rowA) < numberOf(*column_, rowB);
    }
}

const std::vector<std::uint32_t>& ValueClasses::ranks() {
    if (!ranks_.empty())
        return ranks_;
    std::vector<std::uint32_t> ordered(count());
    std::iota(ordered.begin(), ordered.end(), 0u);
    std::sort(ordered.begin(), ordered.end(), [this](auto a, auto b) { return precedes(a, b); });
    ranks_.resize(count());
    for (std::uint32_t place = 0; place < ordered.size(); ++place)
        ranks_[ordered[place]] = place;
    return ranks_;
}

} // namespace zkp::ado
