#pragma once

#include "base/color.h"
#include "base/currency.h"
#include "core/properties.def"

#include <QString>

namespace zkp {

/// The printed page. Only a host writes it, or a saved shape.
struct PrintSettings {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_PRINT_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
