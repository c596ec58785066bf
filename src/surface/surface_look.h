#pragma once

#include "base/color.h"
#include "surface/surface_names.def"

#include <QString>
#include <QVariant>

namespace zkp {

#define ZKP_MEMBER(Type, Name, ...) Type Name = __VA_ARGS__;

/// Plain settings that a view reads.
struct SurfaceLook {
    ZKP_GRIDSURFACE_LOOK(ZKP_MEMBER)
    bool operator==(const SurfaceLook&) const = default;
};

/// Where a surface stands on the control, in twips, and whether it shows.
struct SurfacePlace {
    ZKP_GRIDSURFACE_PLACE(ZKP_MEMBER)
    bool operator==(const SurfacePlace&) const = default;
};

#undef ZKP_MEMBER

} // namespace zkp
