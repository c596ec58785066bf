#pragma once

#include "base/error.h"

#include <memory>

namespace zkp::ado {

inline Error objectClosed() {
    return Error(kErrObjectClosed, QStringLiteral("Operation is not allowed when the object is closed."));
}

inline Error objectOpen() {
    return Error(kErrObjectOpen, QStringLiteral("Operation is not allowed when the object is open."));
}

inline Error noConnection() {
    return Error(kErrNoConnection, QStringLiteral("The connection cannot be used to perform this operation. "
                                                  "It is either closed or invalid in this context."));
}

/// What only its connection keeps open, for as long as it is used. Error kErrObjectClosed once it was closed.
template <class T>
std::shared_ptr<T> stillOpen(const std::weak_ptr<T>& kept) {
    auto open = kept.lock();
    if (!open)
        throw objectClosed();
    return open;
}

} // namespace zkp::ado
