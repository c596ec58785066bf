#include "load/empty_report.h"

#include "base/number.h"
#include "load/field_list.h"
#include "sql/query_exists.h"

namespace zkp {

void EmptyReport::prepare() {
    if (!statements_.dictionary.isNamed() || !source_.state().Cn)
        return;
    surface_.Clear();
    surface_.setRows(std::max(toInt32(face_.MinRows), surface_.FixedRows()));
    for (int c = 0; c < surface_.Cols(); ++c)
        properties_.setColCaption(c, properties_.ColCaption(c));
    takeSpecialSource();
    groups_.MakeFixedForGroup();
    statements_.dictionary.loadForEmptyReport();
    if (data_.SqlOnRunTime)
        statements_.masterTable.FindMaster();
    buildFieldList(*statements_.dictionary.recordset(), data_.TotalForm, statFields());
    if (data_.TotalForm)
        appendLossRatioFields(statFields());
    if (surface_.Cols() > 0)
        surface_.setCol(0);
    LoadHooks::run(hooks_.FieldListChanged);
    LoadHooks::run(hooks_.MenuRefresh);
    lifetime_.throwIfDestroyed();
    menu_.Refresh();
    if (!data_.TotalForm)
        pointer_.setPointer(kPointerDefault);
}

/// With `specialinfo` the record source becomes the table or view named by `specialrecordsource`, when
/// the database has one of that name. A recordset or command that is held stays.
void EmptyReport::takeSpecialSource() {
    if (!data_.specialinfo || !QueryExists(source_.state().Cn, data_.specialrecordsource))
        return;
    source_.takeText(data_.specialrecordsource);
    const int kind = source_.state().SourceType;
    if (kind == ZKP_SQLStatement || kind == ZKP_Table_QUERY)
        source_.set(data_.specialrecordsource);
}

} // namespace zkp
