#pragma once

#include "ado/recordset.h"
#include "core/properties.def"

#include <QString>
#include <QVariant>

namespace zkp {

/// Kept for hosts; no part looks at them.
struct HostMembers {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_HOST_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    bool CancelRequested = false;     ///< written by `CancelLoad`; nothing reads it, as wanted
    bool SearchStopRequested = false; ///< written by `StopSearch`; nothing reads it, as wanted
};

} // namespace zkp
