#pragma once

#include "core/properties.def"

#include <QString>
#include <QVariant>

namespace zkp {

/// What the report asks of the database, and how it reads the answer. A host writes it; of the parts only
/// BuilderInputs, which the statement builders go through.
struct DataSettings {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_DATA_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    /// Totals reports: whether percentage columns are wanted.
    bool HasPercentColumns = false;
};

} // namespace zkp
