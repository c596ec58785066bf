#pragma once

#include "ado/connection.h"
#include "zkp_grid.h"

#include <vector>

namespace zkp::app {

/// A field that a dictionary offers.
struct DictionaryField {
    QString key;
    QString caption;
    QString table;    ///< the table it comes from; empty for a calculated one that names none
    double width = 0; ///< twips
    int alignment = 0;
    bool isGroup = false;
    bool isTotal = false;
};

/// The fields that a dictionary offers, in the order of its table: the visible ones, and of them only
/// those for everybody when a user with restricted rights is looking. Failures are Error.
std::vector<DictionaryField> readFields(const ado::ConnectionPtr& connection, const QString& dictionary,
                                        bool isRestricted);

/// The fields that a report starts with, ten at most, in the order of the dictionary: what tells a row from
/// the others, one name of each thing that it belongs to, and amounts.
std::vector<DictionaryField> startingFields(const std::vector<DictionaryField>& fields);

/// Makes the columns of a control: a field, caption, width and alignment each.
void layColumns(ZkpGrid& grid, const std::vector<DictionaryField>& fields);

} // namespace zkp::app
