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
    switch (source_.SourceType) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        source_.RecordSourceText = as<QString>(value);
        break;
    case ZKP_RecordSet:
        records = as<ado::RecordsetPtr>(value);
        break;
    case ZKP_Command:
        source_.ReportCommand = as<ado::CommandPtr>(value);
        records = std::make_shared<ado::Recordset>();
        break;
    default:
        break;
    }
    source_.ReportRecordset = records;
    source_.storedSourceKind = source_.SourceType;
}

ado::RecordsetPtr RecordSource::ready() {
    if (!source_.ReportRecordset)
        source_.ReportRecordset = std::make_shared<ado::Recordset>();
    return source_.ReportRecordset;
}

QString RecordSource::text() const {
    switch (source_.storedSourceKind) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        return source_.RecordSourceText;
    case ZKP_RecordSet:
        if (!source_.ReportRecordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"),
                        QStringLiteral("RecordSource"));
        return source_.ReportRecordset->Source();
    case ZKP_Command:
        if (source_.ReportRecordset && source_.ReportRecordset->ActiveCommand() && source_.ReportCommand)
            return source_.ReportCommand->CommandText;
        return {};
    default:
        return {};
    }
}

} // namespace zkp
