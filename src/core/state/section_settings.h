#pragma once

#include "base/color.h"
#include "core/properties.def"

#include <QString>

namespace zkp {

/// Colours and fonts of the sections. Only a host writes them, or a saved shape.
struct SectionSettings {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_SECTION_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
