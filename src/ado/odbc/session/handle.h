#pragma once

#include <sql.h>
#include <sqlext.h>

#include <utility>

namespace zkp::ado::odbc {

/// An environment, connection or statement handle of the driver manager.
class Handle {
public:
    Handle() = default;
    /// Error kErrDatabase when the manager or the driver has none to give.
    Handle(SQLSMALLINT type, SQLHANDLE parent, SQLSMALLINT parentType);
    ~Handle() { free(); }
    Handle(Handle&& other) noexcept
        : type_(other.type_)
        , handle_(std::exchange(other.handle_, SQLHANDLE(SQL_NULL_HANDLE))) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(type_, other.type_);
        std::swap(handle_, other.handle_);
        return *this;
    }

    SQLHANDLE get() const { return handle_; }
    SQLSMALLINT type() const { return type_; }
    void free() {
        if (handle_ != SQL_NULL_HANDLE)
            SQLFreeHandle(type_, std::exchange(handle_, SQLHANDLE(SQL_NULL_HANDLE)));
    }

private:
    SQLSMALLINT type_ = 0;
    SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

} // namespace zkp::ado::odbc
