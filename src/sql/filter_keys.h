#pragma once

#include "core/state/data_settings.h"
#include "core/state/source_state.h"

namespace zkp {

/// One dictionary row's fourteen replacements of a key by its physical text, in their fixed order. False
/// when the key does not occur at all, and the filter is as it was.
bool replaceKey(QString& filter, const QString& key, const QString& physical);

/// The keys of a report's dictionary with their physical texts, row by row in the order of the table; all
/// rows count, visible or not. Failures reach the caller.
class FilterKeys {
public:
    FilterKeys(const DataSettings& data, const SourceState& source);

    /// Goes to the next row, the first at the first call; false behind the last one.
    bool next();

    const QString& key() const { return key_; }
    /// That of the row before where the row has neither field nor expression.
    const QString& physical() const { return physical_; }
    bool hasPhysical() const { return hasPhysical_; }
    /// The row's table in capitals; no text at all where it is null.
    const std::optional<QString>& table() const { return table_; }

private:
    ado::Recordset row_;
    bool isFirst_ = true;
    QString key_;
    QString physical_;
    bool hasPhysical_ = false;
    std::optional<QString> table_;
};

} // namespace zkp
