#include "ado/text_stream.h"

#include "ado/constants.h"
#include "ado/dialect/exec_call.h"
#include "ado/object_state.h"
#include "ado/result_builder.h"
#include "base/text.h"

#include <limits>

namespace zkp::ado {

namespace {

/// The type of a field whose values a function made.
int typeOf(const std::vector<QVariantList>& rows, qsizetype field) {
    for (const QVariantList& row : rows) {
        const QVariant value = row.value(field);
        if (!value.isValid())
            continue;
        if (value.metaType() == QMetaType::fromType<Currency>())
            return adCurrency;
        switch (value.typeId()) {
        case QMetaType::Bool:
            return adBoolean;
        case QMetaType::Int:
        case QMetaType::LongLong:
            return adInteger;
        case QMetaType::Double:
            return adDouble;
        case QMetaType::QDate:
            return adDBDate;
        case QMetaType::QDateTime:
            return adDBTimeStamp;
        case QMetaType::QByteArray:
            return adLongVarBinary;
        default:
            return adVarWChar;
        }
    }
    return adVarWChar;
}

Result toResult(const Connection::ProcedureTable& table) {
    std::vector<FieldInfo> fields;
    for (qsizetype i = 0; i < table.names.size(); ++i)
        fields.push_back({table.names[i], typeOf(table.rows, i), std::numeric_limits<int>::max()});
    ResultBuilder builder(std::move(fields));
    for (const QVariantList& row : table.rows)
        builder.addRow(row);
    return builder.finish();
}

} // namespace

TextStream::TextStream(std::weak_ptr<Provider> provider, Procedures procedures,
                       std::vector<QString> statements, RunOptions options)
    : provider_(std::move(provider))
    , procedures_(std::move(procedures))
    , statements_(std::move(statements))
    , options_(std::move(options)) {}

std::optional<Result> TextStream::next() {
    for (;;) {
        if (current_) {
            if (auto result = current_->next())
                return result;
            current_.reset();
        }
        if (started_ == statements_.size())
            return std::nullopt;
        const auto provider = stillOpen(provider_);
        const QString& statement = statements_[started_++];
        if (auto result = callRegistered(statement, provider->dialect()))
            return result;
        current_ = provider->start(statement, options_);
    }
}

bool TextStream::isAtEnd() const {
    return started_ == statements_.size() && (!current_ || current_->isAtEnd());
}

std::optional<Result> TextStream::callRegistered(const QString& statement, dialect::Dialect dialect) const {
    if (procedures_.isEmpty())
        return std::nullopt;
    const auto call = dialect::parseExec(statement, dialect);
    if (!call)
        return std::nullopt;
    const auto function = procedures_.constFind(nameKey(call->name));
    if (function == procedures_.cend())
        return std::nullopt;
    return toResult((*function)(call->arguments));
}

} // namespace zkp::ado
