#pragma once

#include "ado/recordset.h"
#include "core/enums.h"
#include "core/properties.def"

#include <QString>

namespace zkp {

/// Where the records come from: what the host gave, by the kind that `SourceType` named when it was given.
/// RecordSource writes it.
struct SourceState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_SOURCE_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    ado::RecordsetPtr ReportRecordset;
    ado::CommandPtr ReportCommand;
    QString RecordSourceText;
    int storedSourceKind = ZKP_SQLStatement;
    ado::RecordsetPtr TotalsRecordset; ///< a clone, which percentages are worked out from
};

} // namespace zkp
