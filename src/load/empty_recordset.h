#pragma once

#include "ado/recordset.h"
#include "host/error_box.h"

namespace zkp {

/// True when the recordset stands at BOF and EOF at once. An error shows the box and gives False.
bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, const ErrorBox& errors);

} // namespace zkp
