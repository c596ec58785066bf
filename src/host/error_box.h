#pragma once

#include "base/error.h"
#include "host/host.h"

namespace zkp {

/// The one error box: the pointer goes back to the default, then a critical box titled
/// "QRN Insurance" shows the description, trimmed and in capitals. A statement that the database
/// could not take (kErrBadStatement) shows a fixed Greek sentence with the exclamation icon instead.
class ErrorBox {
public:
    ErrorBox(MessageBoxes& boxes, Pointer& pointer)
        : boxes_(boxes)
        , pointer_(pointer) {}
    /// That of a host, wherever one is wanted.
    ErrorBox(Host& host) // NOLINT(google-explicit-constructor)
        : ErrorBox(host.boxes(), host.screenPointer()) {}

    void show(const Error& error) const;

private:
    MessageBoxes& boxes_;
    Pointer& pointer_;
};

inline void ShowError(Host& host, const Error& error) {
    ErrorBox(host).show(error);
}

} // namespace zkp
