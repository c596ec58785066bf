#pragma once

#include "ado/records/records.h"
#include "ado/recordset.h"

#include <map>

namespace zkp::ado {

/// What has been set in the current record and is not written yet.
struct PendingEdit {
    bool isNew = false;
    QStringList columns; ///< the table's columns, in the order of setting
    QVariantList values;
    std::map<int, QVariant> byField; ///< the same for fields of the select list
};

struct Recordset::Data {
    bool opening = false;
    std::shared_ptr<Records> records; ///< nothing while closed
    ConnectionPtr connection;
    std::weak_ptr<Provider> provider; ///< that gave the records
    CommandPtr command;
    QString source;
    QString text; ///< the statement itself, where `source` is a table's or procedure's name
    int lockType = -1;
    std::unique_ptr<ResultStream> further; ///< while a result may follow

    bool everyRow = true;            ///< neither filtered nor sorted: position and row are the same
    std::vector<std::uint32_t> rows; ///< otherwise the row of each position
    std::int64_t position = 0;       ///< -1 is BOF, the count is EOF
    QString filter;
    QString sort;
    std::uint64_t revision = 0;

    std::optional<PendingEdit> edit;
    std::unique_ptr<BaseTable> base; ///< once something was edited
    std::optional<Result> keyed;     ///< the records again with their keys, once one was edited in place

    void keepFurther(std::unique_ptr<ResultStream> stream);
    Records& open() const;
    /// The provider that gave the records. Error kErrObjectClosed when the connection was closed since, be it
    /// open again.
    const std::shared_ptr<Provider>& session() const;
    std::int64_t count() const;
    bool atRecord() const { return position >= 0 && position < count(); }
    std::uint32_t rowAt(std::int64_t place) const;
    std::uint32_t currentRow() const;
};

} // namespace zkp::ado
