#pragma once

#include "core/properties.def"

namespace zkp {

/// How far a load has come. The parts of a load write it.
struct LoadState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_LOAD_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    bool TotalsNeeded = false;
    bool LoadFinished = false;
    int RowCapacity = 0;
};

} // namespace zkp
