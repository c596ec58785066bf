#include "core/record_source.h"

#include "base/error.h"

namespace zkp {

namespace {

template <class T>
T as(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<T>() && value.isValid())
        throw Error(kErrTypeMismatch, QStringLiteral("Type mismatch"), QStringLiteral("RecordSource"));
    return value.value<T>();
}

} // namespace

void RecordSource::set(const QVariant& value) {
    ado::RecordsetPtr records;
    switch (state_.SourceType) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        state_.RecordSourceText = as<QString>(value);
        break;
    case ZKP_RecordSet:
        records = as<ado::RecordsetPtr>(value);
        break;
    case ZKP_Command:
        state_.ReportCommand = as<ado::CommandPtr>(value);
        records = std::make_shared<ado::Recordset>();
        break;
    default:
        break;
    }
    state_.ReportRecordset = records;
    state_.storedSourceKind = state_.SourceType;
}

QString RecordSource::text() const {
    switch (state_.storedSourceKind) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        return state_.RecordSourceText;
    case ZKP_RecordSet:
        if (!state_.ReportRecordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"),
                        QStringLiteral("RecordSource"));
        return state_.ReportRecordset->Source();
    case ZKP_Command:
        if (state_.ReportRecordset && state_.ReportRecordset->ActiveCommand() && state_.ReportCommand)
            return state_.ReportCommand->CommandText;
        return {};
    default:
        return {};
    }
}

} // namespace zkp
