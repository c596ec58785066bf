#pragma once

#include "ado/odbc/session/statement.h"

namespace zkp::ado::odbc {

/// Values bound to the places of a statement, kept until it has run.
class Parameters {
public:
    Parameters(const QVariantList& values, const std::vector<ColumnKind>& kinds);

    /// The first failing call's code.
    SQLRETURN bind(SQLHSTMT statement);

private:
    struct Place {
        SQLSMALLINT cType = SQL_C_WCHAR;
        ColumnKind kind;
        QByteArray bytes; ///< what the driver reads
        SQLLEN length = 0;
    };
    std::vector<Place> places_;
};

} // namespace zkp::ado::odbc
