#pragma once

#include "core/state/data_settings.h"
#include "core/state/identity_state.h"
#include "core/state/source_state.h"

namespace zkp {

/// The rows of the report's dictionary, the table or view that `clmns` names, as the control holds
/// them in `DictionaryRS`.
class Dictionary {
public:
    explicit Dictionary(const DataSettings& data, const SourceState& source, const IdentityState& identity)
        : data_(data)
        , source_(source)
        , identity_(identity) {}

    /// Whether the report has a dictionary at all.
    bool isNamed() const;
    /// Opens the rows for the report's mode and user. Rows that are open already are reused from the
    /// first one and not asked for again.
    void load();
    /// Opens the rows that an empty report shows, whatever was open.
    void loadForEmptyReport();
    /// `DictionaryRS`, made at first use; closed until something was loaded.
    ado::RecordsetPtr recordset();
    bool isOpen() const;
    void release() { recordset_.reset(); }

private:
    QString whereClause() const;
    void open(const QString& where);

    const DataSettings& data_;
    const SourceState& source_;
    const IdentityState& identity_;
    ado::RecordsetPtr recordset_;
};

} // namespace zkp
