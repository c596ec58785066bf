#pragma once

#include "print_qt.h"
#include "store/column_builder.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace zkp::test {

/// Bytes that stand in a column as a binary value.
struct Bytes {
    std::string bytes;
};
/// A moment, as milliseconds since 1970.
struct Moment {
    std::int64_t milliseconds = 0;
};

using SampleValue =
    std::variant<std::monostate, bool, std::int64_t, Currency, double, Moment, std::string, Bytes>;

/// A column of exactly these values.
inline std::shared_ptr<const store::Column> sampleColumn(const std::vector<SampleValue>& values) {
    struct Append {
        store::ColumnBuilder builder;
        void operator()(std::monostate) { builder.appendNull(); }
        void operator()(bool value) { builder.appendBoolean(value); }
        void operator()(std::int64_t value) { builder.appendInteger(value); }
        void operator()(Currency value) { builder.appendAmount(value); }
        void operator()(double value) { builder.appendReal(value); }
        void operator()(Moment value) { builder.appendDate(value.milliseconds); }
        void operator()(const std::string& value) { builder.appendText(value); }
        void operator()(const Bytes& value) { builder.appendBinary(value.bytes); }
    } append;
    for (const SampleValue& value : values)
        std::visit(append, value);
    return append.builder.finish();
}

/// Texts "<prefix>0", "<prefix>1"...
inline std::shared_ptr<const store::Column> numberedTexts(const std::string& prefix, int count) {
    std::vector<SampleValue> values;
    for (int i = 0; i < count; ++i)
        values.emplace_back(prefix + std::to_string(i));
    return sampleColumn(values);
}

} // namespace zkp::test
