#include "window/report_columns.h"

#include "ado/recordset.h"
#include "base/number.h"
#include "base/text.h"
#include "window/table_text.h"

#include <algorithm>
#include <set>

namespace zkp::app {

namespace {

constexpr std::size_t kMostPlain = 3; // fields that tell a row from the others
constexpr std::size_t kMostNames = 4;
constexpr std::size_t kMostAmounts = 3;
constexpr std::size_t kFewest = 8; // a report that is still narrower is filled up

/// What a field is good for at the start of a report.
class Picker {
public:
    explicit Picker(const QString& masterTable)
        : master_(nameKey(masterTable)) {}

    bool takes(const DictionaryField& field) {
        if (field.isTotal)
            return take(amounts_, kMostAmounts);
        const QString table = nameKey(field.table);
        if (table == master_)
            return !field.isGroup && take(plain_, kMostPlain);
        return !table.isEmpty() && named_.insert(table).second && take(names_, kMostNames);
    }

private:
    static bool take(std::size_t& taken, std::size_t most) { return taken < most && ++taken > 0; }

    QString master_;
    std::set<QString> named_; // the other tables that have their field
    std::size_t plain_ = 0;
    std::size_t names_ = 0;
    std::size_t amounts_ = 0;
};

} // namespace

std::vector<DictionaryField> readFields(const ado::ConnectionPtr& connection, const QString& dictionary,
                                        bool isRestricted) {
    std::vector<DictionaryField> fields;
    const auto rows = connection->Execute(QStringLiteral("SELECT * FROM ") + dictionary);
    for (; !rows->Eof(); rows->MoveNext()) {
        DictionaryField field;
        field.key = columnText(*rows, u"dtfld");
        if (field.key.isEmpty() || !columnFlag(*rows, u"visbl", true) ||
            (isRestricted && !columnFlag(*rows, u"IsPublic", true)))
            continue;
        field.caption = columnText(*rows, u"Cptn");
        field.table = columnText(*rows, u"SourceTableName");
        field.width = val(columnText(*rows, u"wdth"));
        field.alignment = static_cast<int>(val(columnText(*rows, u"Algn")));
        field.isGroup = columnFlag(*rows, u"isgroup");
        field.isTotal = columnFlag(*rows, u"isTot");
        fields.push_back(std::move(field));
    }
    return fields;
}

std::vector<DictionaryField> startingFields(const std::vector<DictionaryField>& fields) {
    if (fields.empty())
        return {};
    Picker picker(fields.front().table);
    std::vector<bool> isTaken;
    for (const DictionaryField& field : fields)
        isTaken.push_back(picker.takes(field));
    auto count = static_cast<std::size_t>(std::count(isTaken.begin(), isTaken.end(), true));
    std::vector<DictionaryField> taken;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!isTaken[i] && count < kFewest) {
            isTaken[i] = true;
            ++count;
        }
        if (isTaken[i])
            taken.push_back(fields[i]);
    }
    return taken;
}

void layColumns(ZkpGrid& grid, const std::vector<DictionaryField>& fields) {
    grid.setCols(static_cast<int>(fields.size()));
    for (int column = 0; column < grid.Cols(); ++column) {
        const DictionaryField& field = fields[static_cast<std::size_t>(column)];
        grid.setColDataField(column, field.key);
        grid.setColCaption(column, field.caption);
        grid.setColWidth(column, field.width);
        grid.setColAlignment(column, field.alignment);
    }
}

} // namespace zkp::app
