#pragma once

#include "core/state/source_state.h"

#include <QVariant>

namespace zkp {

/// What the host gave to read from: text, recordset or command, by `SourceType`.
class RecordSource {
public:
    explicit RecordSource(SourceState& source)
        : source_(source) {}

    /// Clears the held recordset, then holds the value by the present `SourceType`: text for 0 and 1,
    /// a recordset for 2, a command (with a new recordset) for 3. Error 13 for a value of another kind.
    void set(const QVariant& value);
    /// The open recordset, or a null pointer.
    ado::RecordsetPtr get() const { return source_.ReportRecordset; }
    const SourceState& state() const { return source_; }
    /// The held recordset, made where there is none.
    ado::RecordsetPtr ready();
    /// Holds another recordset, or none.
    void hold(const ado::RecordsetPtr& records) { source_.ReportRecordset = records; }
    /// The text alone; a recordset or command that is held stays.
    void takeText(const QString& text) { source_.RecordSourceText = text; }
    void connect(const ado::ConnectionPtr& connection) { source_.Cn = connection; }
    /// What percentages are worked out from.
    void keepForPercentages(const ado::RecordsetPtr& records) { source_.TotalsRecordset = records; }
    /// `RecordsourceSTR`: the text by the kind that the source had when it was given.
    QString text() const;

private:
    SourceState& source_;
};

} // namespace zkp
