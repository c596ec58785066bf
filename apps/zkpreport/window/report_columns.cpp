#include "window/report_columns.h"

#include "base/text.h"
#include "window/totals_columns.h"

#include <algorithm>
#include <set>

namespace zkp::app {

namespace {

constexpr std::size_t kMostAmounts = 3;
constexpr std::size_t kFewest = 8; // a report that is still narrower is filled up

/// How many fields of each sort a detail report starts with. Factors take room: each stands in for a name,
/// and counts, which nobody adds up, go, so that the sums show without scrolling.
struct Room {
    explicit Room(std::size_t factors)
        : plain(factors == 0 ? 3 : 2)
        , names(4 - std::min<std::size_t>(factors, 4))
        , fewest(kFewest - std::min(factors, kFewest))
        , takesCounts(factors == 0) {}

    std::size_t plain; // fields that tell a row from the others
    std::size_t names;
    std::size_t fewest;
    bool takesCounts;
};

/// What a field is good for at the start of a report.
class Picker {
public:
    Picker(const QString& masterTable, const Room& room)
        : master_(nameKey(masterTable))
        , room_(room) {}

    bool takes(const DictionaryField& field) {
        if (field.isTotal)
            return (room_.takesCounts || !field.isCount) && take(amounts_, kMostAmounts);
        const QString table = nameKey(field.table);
        if (table == master_)
            return !field.isGroup && take(plain_, room_.plain);
        return !table.isEmpty() && named_.insert(table).second && take(names_, room_.names);
    }

private:
    static bool take(std::size_t& taken, std::size_t most) { return taken < most && ++taken > 0; }

    QString master_;
    Room room_;
    std::set<QString> named_; // the other tables that have their field
    std::size_t plain_ = 0;
    std::size_t names_ = 0;
    std::size_t amounts_ = 0;
};

std::vector<DictionaryField> startingFields(const std::vector<DictionaryField>& fields,
                                            const QStringList& factors) {
    if (fields.empty())
        return {};
    const Room room(static_cast<std::size_t>(factors.size()));
    Picker picker(fields.front().table, room);
    const auto isFactor = [&](const DictionaryField& field) {
        return factors.contains(field.key, Qt::CaseInsensitive);
    };
    std::vector<bool> isTaken;
    for (const DictionaryField& field : fields)
        isTaken.push_back(!isFactor(field) && picker.takes(field));
    auto count = static_cast<std::size_t>(std::count(isTaken.begin(), isTaken.end(), true));
    std::vector<DictionaryField> taken;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!isTaken[i] && count < room.fewest && !isFactor(fields[i])) {
            isTaken[i] = true;
            ++count;
        }
        if (isTaken[i])
            taken.push_back(fields[i]);
    }
    return taken;
}

ReportColumn columnOf(const DictionaryField& field) {
    return {field.key, field.caption, field.width, field.alignment, false, field.isAmount()};
}

std::vector<ReportColumn> factorColumns(const std::vector<DictionaryField>& fields,
                                        const QStringList& factors) {
    std::vector<ReportColumn> columns;
    for (const QString& factor : factors)
        if (const DictionaryField* field = findField(fields, factor)) {
            columns.push_back(columnOf(*field));
            columns.back().isFactor = true;
            columns.back().isSummed = false;
        }
    return columns;
}

} // namespace

std::vector<ReportColumn> reportColumns(const std::vector<DictionaryField>& fields,
                                        const ReportShape& shape) {
    std::vector<ReportColumn> columns = factorColumns(fields, shape.factors);
    if (shape.isTotals) {
        const std::vector<ReportColumn> totals = totalsColumns(fields);
        columns.insert(columns.end(), totals.begin(), totals.end());
        return columns;
    }
    for (const DictionaryField& field : startingFields(fields, shape.factors))
        columns.push_back(columnOf(field));
    return columns;
}

void layColumns(ZkpGrid& grid, const std::vector<ReportColumn>& columns) {
    while (grid.Columns().Count() > 0)
        grid.Columns().Remove(grid.Columns().Count());
    grid.setCols(static_cast<int>(columns.size()));
    for (int c = 0; c < grid.Cols(); ++c) {
        const ReportColumn& column = columns[static_cast<std::size_t>(c)];
        grid.setColDataField(c, column.field);
        grid.setColCaption(c, column.caption);
        grid.setColWidth(c, column.width);
        grid.setColAlignment(c, column.alignment);
        grid.setColForTot(c, column.isFactor);
        grid.setColTotals(c, column.isSummed);
    }
}

bool isLaidAs(ZkpGrid& grid, const std::vector<ReportColumn>& columns) {
    if (grid.Cols() != static_cast<int>(columns.size()))
        return false;
    for (int c = 0; c < grid.Cols(); ++c) {
        const ReportColumn& column = columns[static_cast<std::size_t>(c)];
        if (!sameName(grid.ColDataField(c), column.field) || grid.ColCaption(c) != column.caption ||
            grid.Columns().ofGridColumn(c).Alignment != column.alignment ||
            grid.ColForTot(c) != column.isFactor || grid.ColTotals(c) != column.isSummed)
            return false;
    }
    return true;
}

std::vector<ReportColumn> regroupedColumns(ZkpGrid& grid, const std::vector<DictionaryField>& fields,
                                           const QStringList& factors) {
    std::vector<ReportColumn> columns = factorColumns(fields, factors);
    for (int c = 0; c < grid.Cols(); ++c)
        if (!grid.ColForTot(c) && !factors.contains(grid.ColDataField(c), Qt::CaseInsensitive))
            columns.push_back({grid.ColDataField(c), grid.ColCaption(c), grid.ColWidth(c),
                               grid.Columns().ofGridColumn(c).Alignment, false, grid.ColTotals(c)});
    return columns;
}

QStringList factorsOf(ZkpGrid& grid) {
    QStringList factors;
    for (int c = 0; c < grid.Cols(); ++c)
        if (grid.ColForTot(c))
            factors += grid.ColDataField(c);
    return factors;
}

} // namespace zkp::app
