#pragma once

#include "ado/recordset.h"
#include "host/host.h"

namespace zkp {

/// True when the recordset stands at BOF and EOF at once. An error shows the box and gives False.
bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, Host& host);

} // namespace zkp
