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

/// The texts of the group items that a select also has in its list, by which a server that gives groups
/// in any order is told to sort them; empty for a statement that has an order of its own, or no groups.
QStringList groupsToSortBy(const std::vector<Token>& statement);

} // namespace zkp::ado::dialect
