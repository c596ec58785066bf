#include "load/empty_recordset.h"

#include "base/error_in_flight.h"
#include "host/error_box.h"

namespace zkp {

bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, Host& host) {
    try {
        if (!recordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"));
        return recordset->Bof() && recordset->Eof();
    } catch (...) {
        ShowError(host, errorInFlight());
        return false;
    }
}

} // namespace zkp
