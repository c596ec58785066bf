#include "window/kept_shape.h"

#include "base/text.h"
#include "window/report_colours.h"
#include "window/report_columns.h"

#include <algorithm>
#include <iterator>

namespace zkp::app {

namespace {

constexpr QStringView kAggregates[] = {u"SUM_", u"AVG_", u"MIN_", u"MAX_", u"POS_"};
constexpr QStringView kOfNoField[] = {u"CNT", u"LR", u"LR1", u"LR2", u"LR3"};

bool isOffered(const QString& field, const std::vector<DictionaryField>& fields) {
    const auto isField = [&](QStringView key) {
        return sameName(key, field) || sameName(QStringLiteral("POS_") + key.toString(), field);
    };
    if (isBlank(field) || findField(fields, field) ||
        std::any_of(std::begin(kOfNoField), std::end(kOfNoField), isField))
        return true;
    return std::any_of(std::begin(kAggregates), std::end(kAggregates), [&](QStringView aggregate) {
        return field.startsWith(aggregate, Qt::CaseInsensitive) &&
               findField(fields, field.sliced(aggregate.size()));
    });
}

} // namespace

ShapeToSave::ShapeToSave(ZkpGrid& grid, const QPalette& palette, const QString& filter, const QString& name)
    : grid_(grid)
    , palette_(palette)
    , filter_(grid.Filter())
    , name_(grid.FileName()) {
    grid.setFilter(filter);
    grid.setFileName(name);
    withdrawReportColours(grid, palette);
}

ShapeToSave::~ShapeToSave() {
    fillReportColours(grid_, palette_);
    grid_.setFileName(name_);
    grid_.setFilter(filter_);
}

/// A shape's columns are added to those that stand, so that a control which starts without any gets them
/// exactly.
void takeShape(ZkpGrid& grid, const QPalette& palette, const std::vector<DictionaryField>& fields,
               const std::function<void()>& give) {
    while (grid.Columns().Count() > 0)
        grid.Columns().Remove(grid.Columns().Count());
    give();
    grid.setCols(grid.Cols()); // entries beyond the shape's columns go
    grid.setDesignMode(true);
    grid.setLossRatio(grid.TotalForm() && hasLossRatio(fields));
    fillReportColours(grid, palette);
}

QStringList deniedFields(ZkpGrid& grid, const std::vector<DictionaryField>& fields) {
    QStringList shown = grid.Groupby().split(u',', Qt::SkipEmptyParts);
    for (int c = 0; c < grid.Cols(); ++c)
        shown += grid.ColDataField(c);
    QStringList denied;
    for (const QString& field : shown)
        if (!isOffered(field.trimmed(), fields) && !denied.contains(field))
            denied += field;
    return denied;
}

} // namespace zkp::app
