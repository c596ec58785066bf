#pragma once

#include "ado/odbc/session/session.h"

#include <QVariantList>

#include <vector>

namespace zkp::ado::odbc {

/// What a parameter's column is, as the driver's catalogue says.
struct ColumnKind {
    SQLSMALLINT type = SQL_WVARCHAR;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
};

/// One statement on its way: executed once, with one or several results. It may outlive its session, and
/// is of no use then.
class Statement {
public:
    explicit Statement(Session& session, int timeoutSeconds = 0);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    /// For the session, ahead of its own end.
    void end() { handle_.free(); }

    SQLHSTMT get() const { return handle_.get(); }
    Session& session() const { return session_; }
    Deadline deadline() const { return deadline_; }

    /// The whole time again, for a further result that is asked for later.
    void restartClock() { deadline_ = Deadline::in(timeoutSeconds_); }

    /// A cursor that can go back to a row of its block.
    void useStaticCursor();
    void execute(const QString& text);
    /// With one value for each "?"; kinds as the columns that they go to.
    void execute(const QString& text, const QVariantList& values, const std::vector<ColumnKind>& kinds);
    /// Any other call of the driver that gives records, under the deadline.
    template <class F>
    void call(F&& function) {
        check(timed(function));
    }
    /// False when there is no further result.
    bool moreResults();
    /// 0 for a statement that gives no records.
    int columnCount() const;
    /// Records written; -1 where the driver does not know.
    SQLLEN rowCount() const;
    /// Fetches the next block; false behind the last.
    bool fetch();
    /// A value of the row fetched as text; for small results of one row a block.
    QVariant text(int column) const;

    /// Throws the Error for a return code that tells of a failure.
    void check(SQLRETURN code) const;

private:
    /// Calls the driver under the deadline.
    template <class F>
    SQLRETURN timed(F&& function) {
        const Watched watched(*this);
        return function();
    }
    /// A call of the driver that the canceller watches; Error when the time is over already.
    class Watched {
    public:
        explicit Watched(const Statement& statement);
        ~Watched();
        Watched(const Watched&) = delete;
        Watched& operator=(const Watched&) = delete;

    private:
        Session& session_;
    };

    Session& session_;
    int timeoutSeconds_;
    Handle handle_;
    Deadline deadline_;
};

} // namespace zkp::ado::odbc
