#pragma once

#include "ado/records/filter_literal.h"
#include "store/column.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace zkp::ado {

/// The rows of one column put into classes of values that a comparison takes for equal: texts
/// without case, numbers by their value. Class 0 is null.
class ValueClasses {
public:
    explicit ValueClasses(std::shared_ptr<const store::Column> column);

    std::uint32_t classOf(std::size_t row) const { return classes_[row]; }
    std::uint32_t count() const { return static_cast<std::uint32_t>(examples_.size()); }
    /// The classes that equal a literal: none, one, or several in a column of mixed kinds.
    std::vector<std::uint32_t> classesOf(const FilterLiteral& literal) const;
    /// The place of each class in ascending order: null, numbers, dates, texts, binary values.
    const std::vector<std::uint32_t>& ranks();

private:
    struct NumberHash {
        std::size_t operator()(const ExactNumber& number) const {
            return std::hash<double>{}(number.value) ^ std::hash<std::int64_t>{}(number.rest);
        }
    };
    std::uint32_t classify(std::size_t row);
    std::uint32_t classifyText(std::size_t row);
    template <class Map, class Key>
    std::uint32_t classIn(Map& map, Key&& key, std::size_t row);
    bool precedes(std::uint32_t a, std::uint32_t b) const;

    std::shared_ptr<const store::Column> column_;
    std::vector<std::uint32_t> classes_;
    std::vector<std::uint32_t> examples_; ///< a row of each class
    std::vector<std::uint32_t> ofCode_;   ///< by text code; 0 is unknown
    std::vector<std::uint32_t> ranks_;
    std::unordered_map<std::string, std::uint32_t> texts_;
    std::unordered_map<std::string, std::uint32_t> binaries_;
    std::unordered_map<ExactNumber, std::uint32_t, NumberHash> numbers_;
    std::unordered_map<std::int64_t, std::uint32_t> dates_;
    std::unordered_map<bool, std::uint32_t> booleans_;
};

} // namespace zkp::ado
