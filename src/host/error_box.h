#pragma once

#include "base/error.h"
#include "host/host.h"

namespace zkp {

/// The one error box: the pointer goes back to the default, then a critical box titled
/// "QRN Insurance" shows the description, trimmed and in capitals. A statement that the database
/// could not take (kErrBadStatement) shows a fixed Greek sentence with the exclamation icon instead.
void ShowError(Host& host, const Error& error);

} // namespace zkp
