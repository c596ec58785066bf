#include "sql/master_table.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

void MasterTableLookup::FindMaster() {
    ReportState& state = inputs_.state;
    state.MasterTable.clear();
    try {
        if (state.SourceType != ZKP_Table_QUERY || isBlank(inputs_.sourceText()))
            return;
        ado::Recordset row;
        row.Open(QStringLiteral("Select * From Reports Where RecSource = '") + upper(inputs_.sourceText()) +
                     u'\'',
                 state.Cn, ado::adOpenStatic);
        if (row.Eof()) {
            state.RKeyname.clear();
            return;
        }
        state.MasterTable = textOrEmpty(row.Fields().Item(u"MasterTable").Value());
        state.RKeyname = textOrEmpty(row.Fields().Item(u"RKeyname").Value());
        state.MasterFilter = textOrEmpty(row.Fields().Item(u"MasterFilter").Value());
    } catch (const std::exception&) {
        boxes_.msgBox(texts::masterTableFailed(), kMsgBoxCritical);
    }
}

} // namespace zkp
