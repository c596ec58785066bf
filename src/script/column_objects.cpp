#include "script/column_objects.h"

#include "script/bridge.h"

namespace zkp::script {

Column& ColumnObject::record() const {
    ColumnList& columns = control_->grid().Columns();
    for (int number = 1; number <= columns.Count(); ++number) {
        if (&columns.Item(number) == record_)
            return *record_;
    }
    throw Error(kErrObjectNotSet, QStringLiteral("the column has been removed"));
}

ScriptObjectPtr ColumnsObject::Item(int number) {
    Column& record = control_->grid().Columns().Item(number);
    return control_->bridge().shared<ColumnObject>(&record, control_.get(), control_, record);
}

} // namespace zkp::script
