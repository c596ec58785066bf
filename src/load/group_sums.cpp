#include "load/group_sums.h"

#include "base/error.h"

namespace zkp {

/// A handler may have started the sums anew for another shape while a row was written.
GroupSums::Cell& GroupSums::at(int row, int column) {
    if (row < 0 || row >= rows() || column < 0 || column >= shape_.columns || cells_.empty())
        throw Error(kErrInvalidArrayIndex, QStringLiteral("There is no sum at %1, %2").arg(row).arg(column));
    return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(shape_.columns) +
                  static_cast<std::size_t>(column)];
}

const GroupSums::Cell& GroupSums::at(int row, int column) const {
    return const_cast<GroupSums*>(this)->at(row, column);
}

GroupSums::Cell GroupSums::taken(const GroupRow& record, int column, bool withNumber) {
    if (!withNumber)
        return {record.text(column), Decimal()};
    if (const auto format = record.format(column))
        return {{}, record.number(column), false, format};
    return {record.text(column), record.number(column)};
}

void GroupSums::add(Cell& cell, const Decimal& number) {
    cell.number += number;
    cell.isSum = true;
}

void GroupSums::clear(const GroupShape& shape, const ReportLocale& locale) {
    shape_ = shape;
    locale_ = locale;
    cells_.assign(static_cast<std::size_t>(rows()) * static_cast<std::size_t>(shape.columns), {});
}

void GroupSums::start(const GroupRow& first) {
    for (int c = 0; c < shape_.columns; ++c) {
        at(shape_.factors, c).text = QStringLiteral("  ");
        at(rows() - 1, c).text = QStringLiteral(" ");
    }
    for (const int c : shape_.summed)
        at(shape_.factors, c) = at(rows() - 1, c) = taken(first, c, true);
    for (int k = 0; k <= shape_.lastLevel(); ++k)
        open(k, first);
}

void GroupSums::open(int level, const GroupRow& record) {
    for (int c = 0; c <= level; ++c)
        at(level + 1, c) = taken(record, c, false);
    for (const int c : shape_.summed)
        at(level + 1, c) = taken(record, c, true);
}

void GroupSums::addToGrandSums(const GroupRow& record) {
    for (const int c : shape_.summed)
        add(at(rows() - 1, c), record.number(c));
}

void GroupSums::addToGroups(const GroupRow& record) {
    for (const int c : shape_.summed)
        if (c >= shape_.factors)
            for (int k = 0; k < shape_.factors; ++k)
                add(at(k + 1, c), record.number(c));
}

void GroupSums::addRun(int column, const Decimal& sum) {
    add(at(rows() - 1, column), sum);
    if (column >= shape_.factors && shape_.hasGroups())
        for (int k = 0; k < shape_.factors; ++k)
            add(at(k + 1, column), sum);
}

/// Where one key differs the joined texts differ too; only several can make up for each other.
bool GroupSums::breaksAt(const GroupRow& record) const {
    int differing = 0;
    for (int k = 0; k <= shape_.lastLevel(); ++k)
        differing += isKeyOpen(k, record) ? 0 : 1;
    if (differing < 2)
        return differing == 1;
    QString now;
    QString open;
    for (int k = 0; k <= shape_.lastLevel(); ++k) {
        now += u' ' + record.text(k);
        open += u' ' + text(k + 1, k);
    }
    return now != open;
}

bool GroupSums::isKeyOpen(int level, const GroupRow& record) const {
    return text(level + 1, level) == record.text(level);
}

void GroupSums::reset(int level, const GroupRow& record) {
    for (int k = level; k <= shape_.lastLevel(); ++k)
        open(k, record);
    for (int k = level - 1; k >= 0; --k)
        for (const int c : shape_.summed) {
            Cell& cell = at(k + 1, c);
            const Decimal number = record.number(c);
            if (cell.number.isZero() && !number.isZero())
                cell = taken(record, c, true);
            else if (!number.isZero())
                add(cell, number);
        }
}

QString GroupSums::text(int row, int column) const {
    const Cell& cell = at(row, column);
    if (cell.isSum)
        return cell.number.plainText(locale_);
    return cell.format ? formatNumber(cell.number, *cell.format, locale_) : cell.text;
}

} // namespace zkp
