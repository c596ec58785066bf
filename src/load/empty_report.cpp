#include "load/empty_report.h"

#include "base/number.h"
#include "load/field_list.h"
#include "sql/query_exists.h"

namespace zkp {

void EmptyReport::prepare() {
    if (!dictionary_.isNamed() || !state_.Cn)
        return;
    surface_.Clear();
    surface_.setRows(std::max(toInt32(state_.MinRows), surface_.FixedRows()));
    for (int c = 0; c < surface_.Cols(); ++c)
        properties_.setColCaption(c, properties_.ColCaption(c));
    takeSpecialSource();
    LoadHooks::run(hooks_.MakeFixedForGroup);
    dictionary_.loadForEmptyReport();
    if (state_.SqlOnRunTime)
        LoadHooks::run(hooks_.FindMaster);
    buildFieldList(*dictionary_.recordset(), state_.TotalForm, statFields());
    if (state_.TotalForm)
        appendLossRatioFields(statFields());
    if (surface_.Cols() > 0)
        surface_.setCol(0);
    LoadHooks::run(hooks_.FieldListChanged);
    LoadHooks::run(hooks_.MenuRefresh);
    state_.throwIfDestroyed();
    menu_.Refresh();
    if (!state_.TotalForm)
        pointer_.setPointer(kPointerDefault);
}

/// With `specialinfo` the record source becomes the table or view named by `specialrecordsource`, when
/// the database has one of that name. A recordset or command that is held stays.
void EmptyReport::takeSpecialSource() {
    if (!state_.specialinfo || !QueryExists(state_.Cn, state_.specialrecordsource))
        return;
    state_.RecordSourceText = state_.specialrecordsource;
    if (state_.SourceType == ZKP_SQLStatement || state_.SourceType == ZKP_Table_QUERY)
        RecordSource(state_).set(state_.specialrecordsource);
}

} // namespace zkp
