#include "widgets/tools/reshape_snapshot.h"

#include "core/shape_section.h"

namespace zkp {

namespace {

struct Property {
    const char* name;
    QVariant (*read)(const ZkpGrid&);
    void (*write)(ZkpGrid&, const QVariant&);
    ShapeSection section;
};

#define ZKP_ROW(Type, Name, Section)                                                                         \
    {#Name, [](const ZkpGrid& grid) { return QVariant::fromValue(grid.Name()); },                            \
     [](ZkpGrid& grid, const QVariant& value) { grid.set##Name(value.value<Type>()); },                      \
     ShapeSection::Section},
#define ZKP_STORED_ROW(Type, Name, Key, Subject, Section, ...) ZKP_ROW(Type, Name, Section)

/// What the list says is part of the shape; the group factors come from the flags of the columns. The
/// surface's own colours come first: they are written over the whole of it.
const std::vector<Property>& properties() {
    static const std::vector<Property> all = [] {
        std::vector<Property> listed{ZKP_SURFACE_PROPERTIES(ZKP_ROW) ZKP_LOOK_PROPERTIES(
            ZKP_ROW) ZKP_MEMBER_PROPERTIES(ZKP_STORED_ROW) ZKP_KEPT_MEMBERS(ZKP_STORED_ROW)};
        std::erase_if(listed,
                      [](const Property& property) { return property.section == ShapeSection::None; });
        return listed;
    }();
    return all;
}

#undef ZKP_ROW
#undef ZKP_STORED_ROW

std::size_t placeOf(std::string_view name) {
    const auto& all = properties();
    return static_cast<std::size_t>(
        std::find_if(all.begin(), all.end(),
                     [&](const Property& property) { return property.name == name; }) -
        all.begin());
}

std::vector<ColumnSnapshot> columnsOf(ZkpGrid& grid) {
    const GridSurface& surface = grid.MSFlexGrid1();
    std::vector<ColumnSnapshot> columns;
    const int count = std::min(grid.Columns().Count(), surface.Cols());
    for (int c = 0; c < count; ++c)
        columns.push_back({grid.Columns().ofGridColumn(c), surface.ColWidth(c), surface.ColHidden(c),
                           surface.ColAlignment(c), surface.FixedAlignment(c), surface.MergeCol(c)});
    return columns;
}

/// Measures, marks of editing and the width as last copied are not what a user changes.
Column comparable(Column column) {
    const Column fresh;
    column.BestWidth = fresh.BestWidth;
    column.Position = fresh.Position;
    column.changed = fresh.changed;
    column.Width = fresh.Width;
    return column;
}

bool sameRecord(const Column& a, const Column& b) {
#define ZKP_SAME(Type, Name, ...) &&a.Name == b.Name
    return true ZKP_COLUMN_MEMBERS(ZKP_SAME);
#undef ZKP_SAME
}

bool sameColumn(const ColumnSnapshot& a, const ColumnSnapshot& b) {
    return a.width == b.width && a.isHidden == b.isHidden && a.alignment == b.alignment &&
           a.fixedAlignment == b.fixedAlignment && a.merges == b.merges &&
           sameRecord(comparable(a.record), comparable(b.record));
}

bool sameData(const Column& a, const Column& b) {
    return a.Datafield == b.Datafield && a.ForTot == b.ForTot && a.Totals == b.Totals && a.cnt == b.cnt &&
           a.PerCnt == b.PerCnt && a.lR == b.lR && a.Avrg == b.Avrg && a.Balance == b.Balance &&
           a.Stat_ic == b.Stat_ic && a.calcEuro == b.calcEuro;
}

/// Its caption goes through the control, which shows it; then the record as it was, to the last member.
void restoreColumn(ZkpGrid& grid, int c, const ColumnSnapshot& column) {
    GridSurface& surface = grid.MSFlexGrid1();
    if (grid.ColCaption(c) != column.record.Caption)
        grid.setColCaption(c, column.record.Caption);
    grid.Columns().ofGridColumn(c) = column.record;
    surface.setColWidth(c, column.width);
    surface.setColHidden(c, column.isHidden);
    surface.setColAlignment(c, column.alignment);
    surface.setFixedAlignment(c, column.fixedAlignment);
    surface.setMergeCol(c, column.merges);
}

} // namespace

ReshapeSnapshot ReshapeSnapshot::of(ZkpGrid& grid) {
    ReshapeSnapshot snapshot;
    for (const Property& property : zkp::properties())
        snapshot.properties.push_back(property.read(grid));
    snapshot.columns = columnsOf(grid);
    snapshot.refreshesOnChange = grid.RefreshOnChange();
    return snapshot;
}

void ReshapeSnapshot::restore(ZkpGrid& grid) const {
    const auto& all = zkp::properties();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].read(grid) != properties[i])
            all[i].write(grid, properties[i]);
    const int count = static_cast<int>(columns.size());
    if (grid.Cols() != count || grid.Columns().Count() != count)
        grid.setCols(count);
    for (int c = 0; c < count; ++c)
        restoreColumn(grid, c, columns[static_cast<std::size_t>(c)]);
    grid.CheckGroupBy();
    if (grid.RefreshOnChange() != refreshesOnChange)
        grid.setRefreshOnChange(refreshesOnChange);
}

bool ReshapeSnapshot::isSameShape(const ReshapeSnapshot& other) const {
    return properties == other.properties &&
           std::equal(columns.begin(), columns.end(), other.columns.begin(), other.columns.end(), sameColumn);
}

bool ReshapeSnapshot::hasSameRows(const ReshapeSnapshot& other) const {
    static const std::size_t order = placeOf("OrderBy");
    return properties[order] == other.properties[order] &&
           std::equal(
               columns.begin(), columns.end(), other.columns.begin(), other.columns.end(),
               [](const ColumnSnapshot& a, const ColumnSnapshot& b) { return sameData(a.record, b.record); });
}

int ReshapeSnapshot::onlyCaptionOf(const ReshapeSnapshot& other) const {
    if (columns.size() != other.columns.size() || properties != other.properties)
        return -1;
    int found = -1;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        if (sameColumn(columns[c], other.columns[c]))
            continue;
        ColumnSnapshot renamed = columns[c];
        renamed.record.Caption = other.columns[c].record.Caption;
        if (found >= 0 || !sameColumn(renamed, other.columns[c]))
            return -1;
        found = static_cast<int>(c);
    }
    return found;
}

} // namespace zkp
