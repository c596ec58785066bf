#include "load/source_check.h"

#include "base/texts/failures.h"

namespace zkp {

std::vector<Error> failedSourceChecks(const SourceState& given) {
    const QString source = QStringLiteral("ZkpGrid.refresh");
    const auto needConnection = [&](std::vector<Error>& failed) {
        if (!given.Cn)
            failed.emplace_back(kErrPropertyNotSet, texts::connectionNotSet(), source);
    };

    std::vector<Error> failed;
    switch (given.SourceType) {
    case ZKP_SQLStatement:
    case ZKP_Table_QUERY:
        needConnection(failed);
        break;
    case ZKP_RecordSet:
        if (!given.ReportRecordset)
            failed.emplace_back(kErrPropertyNotSet, texts::recordSourceNotSet(), source);
        break;
    case ZKP_Command:
        if (!given.ReportCommand)
            failed.emplace_back(kErrCommandNotSet, texts::commandNotSet(), source);
        needConnection(failed);
        break;
    default:
        break;
    }
    return failed;
}

} // namespace zkp
