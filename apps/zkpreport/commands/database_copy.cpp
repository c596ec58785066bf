#include "commands/database_copy.h"

#include "commands/server_words.h"

#include "ado/recordset.h"
#include "base/error.h"

#include <QStringList>

#include <algorithm>

namespace zkp::app {

namespace {

constexpr std::int64_t kRowsAStatement = 500;

class DemoCopy {
public:
    DemoCopy(const ado::ConnectionPtr& from, const ado::ConnectionPtr& into)
        : from_(from)
        , into_(into)
        , words_(into) {}

    void run() {
        for (const QString& table : objects("table", "name")) {
            // SQLite's stand-in for stored procedures.
            if (table == QStringLiteral("procedures"))
                continue;
            makeTable(table);
            copyRecords(table);
        }
        for (const QString& statement : objects("index", "sql"))
            into_->Execute(statement);
        for (const QString& view : objects("view", "name"))
            makeView(view);
        into_->Execute(words_.hierarchyProcedure());
    }

    /// Takes away what was made, the latest first, where a rollback undoes no making of tables.
    void undo() {
        if (words_.isPostgres())
            return;
        for (; !made_.isEmpty(); made_.removeLast())
            into_->Execute(QStringLiteral("DROP %1").arg(made_.last()));
    }

private:
    /// In the order of their making, since a view may rest on another.
    QStringList objects(const char* type, const char* what) const {
        const auto rs =
            from_->Execute(QStringLiteral("SELECT %2 FROM sqlite_schema WHERE type = '%1' AND sql IS NOT "
                                          "NULL AND name NOT LIKE 'sqlite%' ORDER BY rowid")
                               .arg(QString::fromLatin1(type), QString::fromLatin1(what)));
        QStringList list;
        for (; !rs->Eof(); rs->MoveNext())
            list << rs->Fields().Item(0).Value().toString();
        return list;
    }

    int longestText(const QString& table, const QString& column) const {
        const auto rs =
            from_->Execute(QStringLiteral("SELECT max(length([%2])) FROM [%1]").arg(table, column));
        return rs->Fields().Item(0).Value().toInt();
    }

    void makeTable(const QString& table) {
        const auto columns = from_->Execute(QStringLiteral("PRAGMA table_info([%1])").arg(table));
        QStringList parts;
        QStringList keys;
        for (; !columns->Eof(); columns->MoveNext()) {
            const QString name = columns->Collect(QStringLiteral("name")).toString();
            const QString declared = columns->Collect(QStringLiteral("type")).toString();
            const bool isText = declared.compare(QStringLiteral("TEXT"), Qt::CaseInsensitive) == 0;
            parts << QStringLiteral("[%1] %2").arg(
                name, words_.type(declared, isText ? longestText(table, name) : 0));
            if (columns->Collect(QStringLiteral("pk")).toInt() > 0)
                keys << QStringLiteral("[%1]").arg(name);
        }
        if (!keys.isEmpty())
            parts << QStringLiteral("PRIMARY KEY (%1)").arg(keys.join(QStringLiteral(", ")));
        into_->Execute(QStringLiteral("CREATE TABLE [%1] (%2)%3")
                           .arg(table, parts.join(QStringLiteral(", ")), words_.tableOptions()));
        made_ << QStringLiteral("TABLE [%1]").arg(table);
    }

    void makeView(const QString& view) {
        const auto text =
            from_->Execute(QStringLiteral("SELECT sql FROM sqlite_schema WHERE name = '%1'").arg(view));
        into_->Execute(words_.expression(text->Fields().Item(0).Value().toString()));
        made_ << QStringLiteral("VIEW [%1]").arg(view);
    }

    void copyRecords(const QString& table) {
        const auto rs = from_->Execute(QStringLiteral("SELECT * FROM [%1]").arg(table));
        const std::int64_t count = rs->RecordCount();
        for (std::int64_t first = 0; first < count; first += kRowsAStatement) {
            QStringList rows;
            for (std::int64_t i = first; i < std::min(first + kRowsAStatement, count); ++i)
                rows << row(*rs, i);
            into_->Execute(QStringLiteral("INSERT INTO [%1] VALUES ").arg(table) + rows.join(u','));
        }
    }

    QString row(ado::Recordset& records, std::int64_t position) const {
        const int expression = records.Fields().indexOf(QStringLiteral("Expr"));
        const auto& columns = records.table().columns;
        QStringList constants;
        for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
            QVariant value = columns[static_cast<std::size_t>(i)]->value(records.tableRow(position));
            if (i == expression && value.isValid())
                value = words_.expression(value.toString());
            constants << words_.constant(value);
        }
        return u'(' + constants.join(u',') + u')';
    }

    ado::ConnectionPtr from_;
    ado::ConnectionPtr into_;
    ServerWords words_;
    QStringList made_; ///< what DROP takes away again
};

} // namespace

void mustBeEmpty(const ado::ConnectionPtr& database, const QString& name) {
    const auto found = database->Execute(ServerWords(database).findContents());
    if (!found->Eof())
        throw Error(kErrDatabase,
                    QStringLiteral("the database %1 is not empty: it holds %2. Nothing was made; "
                                   "the demonstration wants a database of its own")
                        .arg(name, found->Fields().Item(0).Value().toString()));
}

void copyDemoDatabase(const ado::ConnectionPtr& from, const ado::ConnectionPtr& into) {
    DemoCopy copy(from, into);
    into->BeginTrans();
    try {
        copy.run();
    } catch (...) {
        try {
            into->RollbackTrans();
            copy.undo();
        } catch (const std::exception&) {
            // What failed first is what is told.
        }
        throw;
    }
    into->CommitTrans();
}

} // namespace zkp::app
