#include "ado/odbc/session/diagnostics.h"

#include "ado/odbc/session/wide_text.h"

#include <sqlext.h>

#include <algorithm>
#include <array>

namespace zkp::ado::odbc {

namespace {

/// More than any driver's longest sentence; what is beyond it is cut.
constexpr SQLSMALLINT kLongestWords = 8000;

template <std::size_t N>
bool isOneOf(const QString& state, const std::array<const char*, N>& states) {
    return std::any_of(states.begin(), states.end(),
                       [&](const char* one) { return state == QLatin1String(one); });
}

} // namespace

Diagnostics::Diagnostics(SQLSMALLINT type, SQLHANDLE handle) {
    std::vector<SQLWCHAR> words(static_cast<std::size_t>(kLongestWords));
    std::array<SQLWCHAR, 6> state{};
    for (SQLSMALLINT record = 1;; ++record) {
        SQLINTEGER native = 0;
        SQLSMALLINT length = 0;
        const SQLRETURN code =
            SQLGetDiagRecW(type, handle, record, state.data(), &native, words.data(), kLongestWords, &length);
        if (!SQL_SUCCEEDED(code))
            break;
        if (states_.isEmpty())
            native_ = native;
        states_ << wideText(state.data(), 5);
        words_ << wideText(words.data(), std::min(length, SQLSMALLINT(kLongestWords - 1)));
    }
    words_.removeDuplicates();
}

bool Diagnostics::isTimeout() const {
    return !states_.isEmpty() && isOneOf(states_.first(), std::array{"HYT00", "HYT01"});
}

// 57014 is PostgreSQL's, the numbers are MariaDB's words for a statement that was ended from outside.
bool Diagnostics::isCancelled() const {
    if (native_ == 1317 || native_ == 1969)
        return true;
    return std::any_of(states_.begin(), states_.end(), [](const QString& state) {
        return isOneOf(state, std::array{"HY008", "57014"});
    });
}

// The last states are PostgreSQL's when it shuts down, the numbers MariaDB's when nobody answers.
bool Diagnostics::isLinkLost() const {
    if (native_ == 2006 || native_ == 2013 || native_ == 1927)
        return true;
    return std::any_of(states_.begin(), states_.end(), [](const QString& state) {
        return state.startsWith(QLatin1String("08")) || isOneOf(state, std::array{"57P01", "57P02", "57P03"});
    });
}

/// A right that is missing has the same class as a word that is misspelt.
bool Diagnostics::isBadStatement() const {
    if (states_.isEmpty())
        return false;
    const QString& state = states_.first();
    const std::array<int, 8> rights{229, 230, 262, 1044, 1142, 1143, 1227, 1370};
    if (state == QLatin1String("42501") || std::find(rights.begin(), rights.end(), native_) != rights.end())
        return false;
    const QString kind = state.left(2);
    return isOneOf(kind, std::array{"42", "37", "07", "21", "0A"}) ||
           isOneOf(state, std::array{"S0002", "S0022"});
}

Error Diagnostics::error(const QString& source) const {
    const QString words =
        words_.isEmpty() ? QStringLiteral("The driver failed and did not say why.") : words_.join(u'\n');
    const std::uint32_t number = isTimeout()        ? kErrTimeout
                                 : isBadStatement() ? kErrBadStatement
                                                    : kErrDatabase;
    return Error(number, words, source);
}

} // namespace zkp::ado::odbc
