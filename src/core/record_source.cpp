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
    state_.ReportRecordset.reset();
    state_.storedSourceKind = state_.SourceType;
    switch (state_.SourceType) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        state_.RecordSourceText = as<QString>(value);
        break;
    case ZKP_RecordSet:
        state_.ReportRecordset = as<ado::RecordsetPtr>(value);
        break;
    case ZKP_Command:
        state_.ReportCommand = as<ado::CommandPtr>(value);
        state_.ReportRecordset = std::make_shared<ado::Recordset>();
        break;
    default:
        break;
    }
}

QString RecordSource::text() const {
    switch (state_.storedSourceKind) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        return state_.RecordSourceText;
    case ZKP_RecordSet:
        if (!state_.ReportRecordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"), QStringLiteral("RecordSource"));
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
