#pragma once

#include "core/report_state.h"

namespace zkp {

/// The rows of the report's dictionary, the table or view that `clmns` names, as the control holds
/// them in `DictionaryRS`.
class Dictionary {
public:
    explicit Dictionary(ReportState& state)
        : state_(state) {}

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

    ReportState& state_;
    ado::RecordsetPtr recordset_;
};

} // namespace zkp
