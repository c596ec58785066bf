#pragma once

#include "core/properties.def"

#include <QString>

namespace zkp {

/// Who is looking. A host says it; Hierarchy finds the level and the identity at that level.
struct IdentityState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_IDENTITY_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
