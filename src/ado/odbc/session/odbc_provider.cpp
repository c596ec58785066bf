#include "ado/odbc/session/odbc_provider.h"

#include "ado/object_state.h"
#include "ado/odbc/catalogue/schema.h"
#include "ado/odbc/edit/odbc_base_table.h"
#include "ado/odbc/session/read_only.h"
#include "ado/odbc/session/run.h"
#include "ado/odbc/session/translate.h"
#include "base/scope_guard.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

bool changesNames(const QString& statement, Dialect dialect) {
    const std::vector<dialect::Token> tokens = dialect::tokenize(statement, dialect);
    const auto has = [&tokens](QStringView word) {
        return std::any_of(tokens.begin(), tokens.end(),
                           [word](const dialect::Token& token) { return token.isWord(word); });
    };
    // An INSERT INTO makes no table, a SELECT INTO does; what a DO does stands in a constant.
    return has(u"do") || has(u"create") || has(u"alter") || has(u"drop") || has(u"rename") ||
           (has(u"into") && !has(u"insert"));
}

/// A statement that a connection for reading may write with.
class WritingStream final : public ResultStream {
public:
    WritingStream(std::weak_ptr<Session> session, std::unique_ptr<ResultStream> stream)
        : session_(std::move(session))
        , stream_(std::move(stream)) {}

    std::optional<Result> next() override {
        const auto session = stillOpen(session_);
        session->setWritable(true);
        const ScopeGuard guard([&session] {
            try {
                session->setWritable(false);
            } catch (const Error&) {
                // The connection is gone.
            }
        });
        return stream_->next();
    }
    bool isAtEnd() const override { return stream_->isAtEnd(); }

private:
    std::weak_ptr<Session> session_;
    std::unique_ptr<ResultStream> stream_;
};

} // namespace

OdbcProvider::OdbcProvider(const QString& connectionString, bool readOnly)
    : session_(std::make_shared<Session>(connectionString, readOnly)) {}

std::unique_ptr<ResultStream> OdbcProvider::start(const QString& statement, const RunOptions& options) {
    const Reading reading =
        session_->isReadOnly() ? readingOf(statement, session_->dialect()) : Reading::Reads;
    if (reading == Reading::Refused)
        refuseWriting();
    dialect::Rewritten sent = translate(*session_, statement);
    if (changesNames(statement, session_->dialect()))
        session_->forgetCatalogue();
    auto stream = std::make_unique<StatementStream>(session_, std::move(sent.text),
                                                    std::move(sent.outputNames), options);
    if (reading == Reading::WritesAllowed && !session_->isInTransaction())
        return std::make_unique<WritingStream>(session_, std::move(stream));
    return stream;
}

QString OdbcProvider::lastStatementSent() const {
    return session_->lastStatement();
}
std::uint64_t OdbcProvider::statementsSent() const {
    return session_->statementsSent();
}
bool OdbcProvider::isLost() const {
    return session_->isLost();
}

void OdbcProvider::begin() {
    session_->begin();
}
void OdbcProvider::commit() {
    session_->commit();
}
void OdbcProvider::rollback() {
    session_->rollback();
}

std::unique_ptr<BaseTable> OdbcProvider::baseTable(const QString& statement, const RunOptions& options) {
    return openBaseTable(session_, statement, options);
}

Result OdbcProvider::schema(int schema, const std::optional<QString>& table) {
    return readSchema(*session_, schema, table);
}

} // namespace zkp::ado::odbc
