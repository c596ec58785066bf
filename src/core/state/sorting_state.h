#pragma once

#include "core/properties.def"

#include <QString>

#include <optional>

namespace zkp {

/// The order of the rows. RowSorting writes it.
struct SortingState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_SORTING_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    double SortDescending = 0; ///< direction of the control's own order: ascending when 0
    double SortAscending = 0;
    std::optional<int> SortColumn; ///< of the last sort by column or custom sort
};

} // namespace zkp
