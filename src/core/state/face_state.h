#pragma once

#include "core/properties.def"

namespace zkp {

/// The control on its form: what shows of it, its size (twips) and pointer. Only a host writes it.
struct FaceState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_FACE_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    double Width = 0;
    double Height = 0;
    int MousePointer = 0;
};

} // namespace zkp
