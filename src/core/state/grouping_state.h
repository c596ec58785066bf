#pragma once

#include "core/properties.def"

#include <QStringList>

#include <optional>

namespace zkp {

/// The group factors. GroupFactorFlags writes it.
struct GroupingState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_GROUPING_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    QStringList GroupFactors;
    short GroupFactorCount = 0;
    /// A `Groupby` that a host (or a saved shape) set and no rebuild from the flags has seen yet.
    std::optional<QString> givenGroupby;

    /// Takes a text from outside. It is remembered until the flags of the columns have been looked at, so
    /// that a host that only sets the text gets its groups.
    void give(const QString& text) {
        Groupby = text;
        givenGroupby = text;
    }
};

} // namespace zkp
