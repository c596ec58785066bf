#pragma once

#include "ado/dialect/tokenizer.h"

#include <QStringList>

namespace zkp::ado::dialect {

/// The names that a statement's records come back under, as it writes them: an alias, or the column at
/// the end of an item. Empty texts for items without a name; an empty list where a "*" makes their
/// number unknown, or for what is no select.
QStringList outputNames(const std::vector<Token>& statement);

/// The column behind each item of a select's list, where the item is a column with or without an alias;
/// empty texts for expressions, "*" for all columns.
QStringList sourceColumns(const std::vector<Token>& statement);

/// How a select that groups has to be told to sort its groups, for a server that gives them in any order.
struct GroupOrder {
    bool behindOrder = false;       ///< the select has an order of its own, which goes ahead
    std::vector<QStringView> items; ///< the group items that are in the select's list and not in its order
};
/// No items for what does not group, or is more than one select.
GroupOrder groupOrder(const std::vector<Token>& statement);

} // namespace zkp::ado::dialect
