#include "load/empty_recordset.h"

#include "base/error_in_flight.h"

namespace zkp {

bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, const ErrorBox& errors) {
    try {
        if (!recordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"));
        return recordset->Bof() && recordset->Eof();
    } catch (...) {
        errors.show(errorInFlight());
        return false;
    }
}

} // namespace zkp
