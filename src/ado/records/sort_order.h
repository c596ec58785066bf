#pragma once

#include "ado/records/filter.h"
#include "ado/records/records.h"

namespace zkp::ado {

/// The rows of the records that a filter lets through, in the order of the fetch.
std::vector<std::uint32_t> filteredRows(const Condition& condition, Records& records);
std::vector<std::uint32_t> allRows(const Records& records);

/// Puts rows into the order of a text of field names with ASC or DESC, joined by ","; rows that it
/// does not tell apart stay as they are. Error 3001 for a text that can't be read, 3265 for an unknown field.
void sortRows(std::vector<std::uint32_t>& rows, const QString& order, Records& records);

} // namespace zkp::ado
