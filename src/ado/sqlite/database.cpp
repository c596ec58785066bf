#include "ado/sqlite/database.h"

#include "ado/sqlite/collation.h"
#include "ado/sqlite/like.h"
#include "ado/sqlite/read_only.h"

#include <QFileInfo>

namespace zkp::ado::sqlite {

namespace {

/// Others' writing takes no longer as a rule.
constexpr int kBusyMilliseconds = 500;

} // namespace

Database::Database(const QString& file, bool readOnly)
    : readOnly_(readOnly) {
    try {
        openFile(file);
        prepareHandle();
    } catch (...) {
        interrupter_.reset();
        sqlite3_close_v2(handle_);
        throw;
    }
}

Database::~Database() {
    interrupter_.reset();
    sqlite3_close_v2(handle_);
}

void Database::openFile(const QString& file) {
    const QByteArray path = QFileInfo(file).absoluteFilePath().toUtf8();
    const bool inMemory = file.isEmpty() || file == QStringLiteral(":memory:");
    if (!inMemory && !QFileInfo::exists(file))
        throw Error(kErrDatabase, QStringLiteral("Unable to open database file '%1': no such file").arg(file),
                    QStringLiteral("SQLite"));
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (inMemory ? SQLITE_OPEN_MEMORY : 0);
    const int code = sqlite3_open_v2(inMemory ? ":memory:" : path.constData(), &handle_, flags, nullptr);
    if (code != SQLITE_OK)
        throw Error(kErrDatabase,
                    QStringLiteral("%1 '%2'").arg(QString::fromUtf8(sqlite3_errmsg(handle_)), file),
                    QStringLiteral("SQLite"));
}

void Database::prepareHandle() {
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_timeout(handle_, kBusyMilliseconds);
    interrupter_ = std::make_unique<Interrupter>(handle_);
    registerTextCollation(handle_);
    registerLike(handle_);
    // Reads the file's head: what is no database shows itself here and not in the first statement.
    execute("SELECT count(*) FROM sqlite_schema");
    if (readOnly_)
        installReadOnlyGuard(handle_);
}

Error Database::failure(int code) const {
    const QString words = QString::fromUtf8(sqlite3_errmsg(handle_));
    const QString source = QStringLiteral("SQLite");
    switch (code & 0xff) {
    case SQLITE_INTERRUPT:
        return Error(kErrTimeout, QStringLiteral("Timeout expired"), source);
    case SQLITE_ERROR:
    case SQLITE_RANGE:
    case SQLITE_TOOBIG:
    case SQLITE_MISMATCH:
        return Error(kErrBadStatement, words, source);
    case SQLITE_AUTH:
        return Error(kErrDatabase, QStringLiteral("The connection is open for reading only: %1").arg(words),
                     source);
    default:
        return Error(kErrDatabase, words, source);
    }
}

void Database::execute(const char* sql) {
    const Turn turn(*this);
    if (const int code = sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr); code != SQLITE_OK)
        throw failure(code);
}

Turn::Turn(Database& database, Deadline deadline)
    : lock_(database.turns_)
    , interrupter_(*database.interrupter_)
    , before_(interrupter_.set(deadline)) {}

Turn::~Turn() {
    interrupter_.set(before_);
}

} // namespace zkp::ado::sqlite
