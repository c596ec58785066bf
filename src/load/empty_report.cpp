#include "load/empty_report.h"

#include "base/number.h"
#include "base/text.h"
#include "load/field_list.h"

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
    LoadHooks::run(hooks_.FieldListChanged);
    surface_.setCol(0);
    menu_.Refresh();
    if (!state_.TotalForm)
        host_.setPointer(kPointerDefault);
}

/// With `specialinfo` the record source becomes the table or view named by `specialrecordsource`, when
/// the database has one of that name.
void EmptyReport::takeSpecialSource() {
    if (!state_.specialinfo)
        return;
    const QString wanted = nameKey(state_.specialrecordsource);
    const ado::RecordsetPtr tables = state_.Cn->OpenSchema(ado::adSchemaTables);
    for (; !tables->Eof(); tables->MoveNext()) {
        if (nameKey(tables->Fields().Item(u"TABLE_NAME").Value().toString()) != wanted)
            continue;
        RecordSource(state_).set(state_.specialrecordsource);
        return;
    }
}

} // namespace zkp
