#pragma once

#include "core/column.h"

#include <memory>
#include <vector>

namespace zkp {

/// The collection `Columns`: items count from 1. Items are records with an address of their own, so
/// that adding or removing others does not move them.
class ColumnList {
public:
    int Count() const { return static_cast<int>(items_.size()); }

    /// Error kErrSubscript outside 1 to Count.
    Column& Item(int number);
    const Column& Item(int number) const;

    /// The record of a grid column, counted from 0.
    Column& ofGridColumn(int index) { return Item(index + 1); }
    const Column& ofGridColumn(int index) const { return Item(index + 1); }

    /// Adds a record at the end, or before item `before` (from 1).
    Column& Add(Column column = {}, int before = 0);
    void Remove(int number);
    /// Puts an item at another place among the rest; it stays the same record.
    void Move(int number, int place);

private:
    std::vector<std::unique_ptr<Column>> items_;
};

} // namespace zkp
