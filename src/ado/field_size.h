#pragma once

#include "ado/constants.h"

#include <limits>

namespace zkp::ado {

/// `DefinedSize` of a field by its published type, in bytes; of texts and binary values `length`, or the
/// largest number where that is 0 and so unknown.
inline int definedSizeOf(int type, int length) {
    switch (type) {
    case adSmallInt:
    case adBoolean:
        return 2;
    case adInteger:
        return 4;
    case adDBDate:
        return 6;
    case adDBTimeStamp:
        return 16;
    case adVarChar:
    case adVarWChar:
    case adLongVarBinary:
        return length > 0 ? length : std::numeric_limits<int>::max();
    default:
        return 8;
    }
}

} // namespace zkp::ado
