#pragma once

#include "core/properties.def"

#include <QString>

namespace zkp {

/// The key of the current row. KeyColumn writes it.
struct KeyState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_KEY_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
