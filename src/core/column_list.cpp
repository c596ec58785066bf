#include "core/column_list.h"

#include "base/error.h"

#include <algorithm>

namespace zkp {

namespace {

void checkNumber(int number, int count) {
    if (number < 1 || number > count)
        throw Error(kErrSubscript, QStringLiteral("Subscript out of range"), QStringLiteral("Columns"));
}

} // namespace

Column& ColumnList::Item(int number) {
    checkNumber(number, Count());
    return *items_[static_cast<std::size_t>(number - 1)];
}

const Column& ColumnList::Item(int number) const {
    checkNumber(number, Count());
    return *items_[static_cast<std::size_t>(number - 1)];
}

Column& ColumnList::Add(Column column, int before) {
    if (before != 0)
        checkNumber(before, Count());
    const auto place = before == 0 ? items_.end() : items_.begin() + (before - 1);
    return **items_.insert(place, std::make_unique<Column>(std::move(column)));
}

void ColumnList::Remove(int number) {
    checkNumber(number, Count());
    items_.erase(items_.begin() + (number - 1));
}

void ColumnList::Move(int number, int place) {
    checkNumber(number, Count());
    checkNumber(place, Count());
    const auto item = items_.begin() + (number - 1);
    const auto target = items_.begin() + (place - 1);
    if (item < target)
        std::rotate(item, item + 1, target + 1);
    else
        std::rotate(target, item, item + 1);
}

} // namespace zkp
