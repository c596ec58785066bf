#pragma once

#include "base/color.h"
#include "core/properties.def"

namespace zkp {

/// The band on the current row with the colours that it covers, and rows in turns of two colours. RowMarking
/// writes what changes with the rows.
struct MarkingState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_MARKING_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
