#include "ado/odbc/session/run.h"

#include "ado/dialect/tokenizer.h"
#include "ado/object_state.h"
#include "ado/odbc/fetch/fetch.h"

#include <utility>

namespace zkp::ado::odbc {

namespace {

/// Gives the fields the names that the statement wrote, where each of them is known.
void rename(Result& result, const QStringList& names) {
    if (static_cast<std::size_t>(names.size()) != result.fields.size())
        return;
    for (std::size_t i = 0; i < result.fields.size(); ++i) {
        if (const QString& name = names[static_cast<qsizetype>(i)]; !name.isEmpty())
            result.fields[i].name = name;
    }
}

/// Whether a text that gives no records may give some behind that. What creates something never does, and
/// MariaDB's driver, which takes a body of several statements for statements of the text's own, falls over
/// when it is asked.
bool mayGiveRecords(const QString& sql, Dialect dialect) {
    for (const dialect::Token& token : dialect::tokenize(sql, dialect)) {
        if (token.kind != dialect::TokenKind::Space)
            return !token.isWord(u"create") && !token.isWord(u"alter");
    }
    return false;
}

} // namespace

StatementStream::StatementStream(std::weak_ptr<Session> session, QString sql, QStringList names,
                                 RunOptions options)
    : session_(std::move(session))
    , sql_(std::move(sql))
    , names_(std::move(names))
    , options_(std::move(options)) {}

/// A statement that gives no records at all gives one result without fields.
std::optional<Result> StatementStream::next() {
    if (failure_)
        throw *std::exchange(failure_, std::nullopt);
    const bool first = !std::exchange(started_, true);
    if (!first && !statement_)
        return std::nullopt;
    const auto session = stillOpen(session_);
    try {
        if (first)
            start(*session);
        else
            statement_->restartClock();
        auto result = takeRecords();
        return result || !first ? std::move(result) : Result();
    } catch (...) {
        statement_.reset();
        throw;
    }
}

void StatementStream::start(Session& session) {
    session.setLastStatement(sql_);
    statement_ = std::make_unique<Statement>(session, options_.timeoutSeconds);
    if (session.readsInsideBlocks())
        statement_->useStaticCursor();
    statement_->execute(sql_);
}

/// The next result with records: counts of records written, which a procedure gives between them, are
/// passed over.
std::optional<Result> StatementStream::takeRecords() {
    while (statement_->columnCount() == 0) {
        if (!mayGiveRecords(sql_, statement_->session().dialect()) || !statement_->moreResults()) {
            statement_.reset();
            return std::nullopt;
        }
    }
    Result result = Fetch(*statement_, options_).run();
    rename(result, names_);
    goOn();
    return result;
}

/// The statement goes as soon as nothing follows, so that the connection is free. What fails behind a
/// result is not that result's failure.
void StatementStream::goOn() {
    try {
        if (!statement_->moreResults())
            statement_.reset();
    } catch (const Error& error) {
        failure_ = error;
        statement_.reset();
    }
}

Result runStatement(Session& session, const QString& sql, const RunOptions& options) {
    Statement statement(session, options.timeoutSeconds);
    if (session.readsInsideBlocks())
        statement.useStaticCursor();
    statement.execute(sql);
    return statement.columnCount() > 0 ? Fetch(statement, options).run() : Result();
}

} // namespace zkp::ado::odbc
