#pragma once

#include "core/report_state.h"

#include <QVariant>

namespace zkp {

/// What the host gave to read from: text, recordset or command, by `SourceType`.
class RecordSource {
public:
    explicit RecordSource(ReportState& state)
        : state_(state) {}

    /// Clears the held recordset, then holds the value by the present `SourceType`: text for 0 and 1,
    /// a recordset for 2, a command (with a new recordset) for 3. Error 13 for a value of another kind.
    void set(const QVariant& value);
    /// The open recordset, or a null pointer.
    ado::RecordsetPtr get() const { return state_.ReportRecordset; }
    /// `RecordsourceSTR`: the text by the kind that the source had when it was given.
    QString text() const;

private:
    ReportState& state_;
};

} // namespace zkp
