#include "ado/sqlite/statement.h"

#include "base/currency.h"

#include <QDateTime>

#include <utility>

namespace zkp::ado::sqlite {

namespace {

/// Nothing but blanks, ends and comments: SQLite makes no statement of it.
bool isEmptyTail(sqlite3* handle, const char* tail) {
    sqlite3_stmt* next = nullptr;
    const char* rest = tail;
    while (*rest != '\0') {
        const char* before = rest;
        const int code = sqlite3_prepare_v2(handle, rest, -1, &next, &rest);
        sqlite3_finalize(next);
        if (code != SQLITE_OK || next)
            return false;
        if (rest == before)
            break;
    }
    return true;
}

} // namespace

Statement::Statement(std::shared_ptr<Database> database, const QString& sql, Deadline deadline)
    : database_(std::move(database)) {
    const QByteArray text = sql.toUtf8();
    const Turn turn(*database_, deadline);
    // The sorter's second thread helps a long sort and hinders the sorting of groups.
    const bool groups = sql.contains(QStringLiteral("group by"), Qt::CaseInsensitive);
    sqlite3_limit(database_->handle(), SQLITE_LIMIT_WORKER_THREADS, groups ? 0 : 1);
    const char* tail = nullptr;
    const int code = sqlite3_prepare_v2(database_->handle(), text.constData(), -1, &handle_, &tail);
    if (code != SQLITE_OK)
        throw database_->failure(code);
    if (!handle_)
        throw Error(kErrBadStatement, QStringLiteral("Command text was not set"), QStringLiteral("SQLite"));
    if (!isEmptyTail(database_->handle(), tail)) {
        sqlite3_finalize(handle_);
        throw Error(kErrBadStatement, QStringLiteral("Text found after the end of the statement"),
                    QStringLiteral("SQLite"));
    }
}

Statement::Statement(Statement&& other) noexcept
    : database_(other.database_)
    , handle_(std::exchange(other.handle_, nullptr)) {}

Statement::~Statement() {
    if (!handle_)
        return;
    const Turn turn(*database_);
    sqlite3_finalize(handle_);
}

void Statement::bind(const QVariantList& values) {
    if (parameterCount() > values.size())
        throw Error(kErrBadStatement,
                    QStringLiteral("The statement expects %1 parameters, %2 were given")
                        .arg(parameterCount())
                        .arg(values.size()),
                    QStringLiteral("SQLite"));
    const Turn turn(*database_);
    for (int i = 0; i < parameterCount(); ++i)
        bindOne(i + 1, values[i]);
}

void Statement::bindOne(int index, const QVariant& value) {
    int code = SQLITE_OK;
    const auto bindText = [&](const QByteArray& utf8) {
        return sqlite3_bind_text64(handle_, index, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                                   SQLITE_TRANSIENT, SQLITE_UTF8);
    };
    if (value.metaType() == QMetaType::fromType<Currency>()) {
        const Currency amount = value.value<Currency>();
        code = amount.scaled % Currency::kScale == 0
                   ? sqlite3_bind_int64(handle_, index, amount.scaled / Currency::kScale)
                   : sqlite3_bind_double(handle_, index, amount.toDouble());
    } else if (!value.isValid()) {
        code = sqlite3_bind_null(handle_, index);
    } else {
        switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Short:
        case QMetaType::LongLong:
            code = sqlite3_bind_int64(handle_, index, value.toLongLong());
            break;
        case QMetaType::Double:
        case QMetaType::Float:
            code = sqlite3_bind_double(handle_, index, value.toDouble());
            break;
        case QMetaType::QDate:
            code = bindText(value.toDate().toString(Qt::ISODate).toUtf8());
            break;
        case QMetaType::QDateTime:
            code = bindText(value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8());
            break;
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            // A null pointer would bind a null, and empty bytes are not one.
            code = sqlite3_bind_blob64(handle_, index, bytes.isEmpty() ? "" : bytes.constData(),
                                       static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT);
            break;
        }
        default:
            code = bindText(value.toString().toUtf8());
        }
    }
    if (code != SQLITE_OK)
        throw database_->failure(code);
}

bool Statement::step() {
    const int code = sqlite3_step(handle_);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throw database_->failure(code);
    return code == SQLITE_ROW;
}

QVariant Statement::value(int column) const {
    switch (sqlite3_column_type(handle_, column)) {
    case SQLITE_INTEGER:
        return QVariant::fromValue<qlonglong>(sqlite3_column_int64(handle_, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(handle_, column);
    case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
        return QString::fromUtf8(text, sqlite3_column_bytes(handle_, column));
    }
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_, column));
        return QByteArray(bytes, sqlite3_column_bytes(handle_, column));
    }
    default:
        return {};
    }
}

} // namespace zkp::ado::sqlite
