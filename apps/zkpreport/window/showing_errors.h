#pragma once

#include "base/error.h"
#include "host/error_box.h"

namespace zkp::app {

/// What a call gives; False after a failure, which has been shown in the error box.
template <class Call>
bool showingErrors(Host& host, Call call) {
    try {
        return call();
    } catch (const Error& error) {
        ShowError(host, error);
        return false;
    }
}

} // namespace zkp::app
