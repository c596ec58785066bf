#include "ado/odbc/edit/odbc_base_table.h"

#include "ado/constants.h"
#include "ado/dialect/select_shape.h"
#include "ado/object_state.h"
#include "ado/odbc/edit/record_writer.h"
#include "ado/odbc/edit/table_choice.h"
#include "ado/odbc/session/run.h"
#include "ado/odbc/session/translate.h"
#include "store/column_builder.h"

#include <utility>

namespace zkp::ado::odbc {

namespace {

/// The table's column behind each field of the select list; empty for an expression.
QStringList fieldColumns(const EditedTable& table, Dialect dialect) {
    QStringList fields;
    for (const QString& name :
         dialect::sourceColumns(dialect::tokenize(table.select.beforeFrom + u' ', dialect))) {
        if (name != QStringLiteral("*")) {
            const CatalogueColumn* found = name.isEmpty() ? nullptr : table.find(name);
            fields << (found ? found->name : QString());
            continue;
        }
        for (const CatalogueColumn& each : table.columns)
            fields << each.name;
    }
    return fields;
}

/// Keys go to the recordset as numbers of the list of keys that is kept here.
class OdbcBaseTable final : public BaseTable {
public:
    OdbcBaseTable(const std::shared_ptr<Session>& session, EditedTable table, int timeoutSeconds)
        : session_(session)
        , table_(std::move(table))
        , timeoutSeconds_(timeoutSeconds)
        , fieldColumns_(fieldColumns(table_, session->dialect())) {}

    bool hasColumn(const QString& name) const override { return table_.find(name) != nullptr; }
    QString columnOfField(int field) const override { return fieldColumns_.value(field); }

    Result recordsWithKeys() override {
        const auto session = stillOpen(session_);
        const QString text =
            table_.select.beforeFrom + QStringLiteral(", ") + table_.keyItems() + u' ' + table_.select.fromOn;
        const QString sent = translate(*session, text).text;
        session->setLastStatement(sent);
        return numbered(runStatement(*session, sent, {timeoutSeconds_, {}}));
    }

    Result insert(const QStringList& columns, const QVariantList& values) override {
        const auto session = stillOpen(session_);
        return RecordWriter(*session, table_, timeoutSeconds_).insert(columns, values).record;
    }

    Result update(const QVariant& key, const QStringList& columns, const QVariantList& values) override {
        const auto session = stillOpen(session_);
        QVariantList& known = known_[static_cast<std::size_t>(key.toLongLong())];
        auto written = RecordWriter(*session, table_, timeoutSeconds_).update(known, columns, values);
        known = std::move(written.key);
        return std::move(written.record);
    }

private:
    /// The records with the number of each one's key in place of the key's own columns.
    Result numbered(Result result) {
        const std::size_t fields = result.fields.size() - table_.keys.count();
        store::ColumnBuilder numbers;
        for (std::size_t row = 0; row < result.table.rows; ++row) {
            numbers.appendInteger(static_cast<std::int64_t>(known_.size()));
            known_.push_back(rowOf(result, row).mid(static_cast<qsizetype>(fields)));
        }
        result.fields.resize(fields);
        result.fields.push_back({QStringLiteral("key"), adBigInt, 8});
        result.table.columns.resize(fields);
        result.table.columns.push_back(numbers.finish());
        return result;
    }

    std::weak_ptr<Session> session_;
    EditedTable table_;
    int timeoutSeconds_;
    QStringList fieldColumns_;
    std::vector<QVariantList> known_; ///< the keys given out so far
};

} // namespace

std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Session>& session, const QString& statement,
                                         const RunOptions& options) {
    auto select = dialect::parsePlainSelect(statement, session->dialect());
    if (!select)
        return nullptr;
    const auto place = chooseTable(*session, *select);
    if (!place)
        return nullptr;
    EditedTable table(*session, std::move(*select), *place);
    // A table whose rows have nothing to tell them apart can't be edited.
    if (table.keys.count() == 0)
        return nullptr;
    return std::make_unique<OdbcBaseTable>(session, std::move(table), options.timeoutSeconds);
}

} // namespace zkp::ado::odbc
