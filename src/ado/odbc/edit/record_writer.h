#pragma once

#include "ado/odbc/edit/edited_table.h"

namespace zkp::ado::odbc {

/// Writes one record of a table. It is read back ahead of the commit, so that what can't be read back isn't
/// written; inside the host's own transaction the commit is the host's.
class RecordWriter {
public:
    RecordWriter(Session& session, const EditedTable& table, int timeoutSeconds);

    struct Written {
        Result record; ///< the select list's values, in the last record
        QVariantList key;
    };
    Written insert(const QStringList& columns, const QVariantList& values);
    Written update(const QVariantList& key, const QStringList& columns, const QVariantList& values);

private:
    void checkWriting() const;
    QString insertText(const QStringList& columns) const;
    void checkOne(const TableKeys::Condition& condition);
    QVariantList updateOne(const QString& text, const QVariantList& values,
                           const std::vector<ColumnKind>& kinds, bool returns);
    QVariantList changedKey(QVariantList key, const QStringList& columns, const QVariantList& values) const;
    Result readBack(const QVariantList& key);
    Result run(const QString& text, const QVariantList& values, const std::vector<ColumnKind>& kinds);

    Session& session_;
    const EditedTable& table_;
    RunOptions options_;
};

} // namespace zkp::ado::odbc
