#include "sql/master_table.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

void MasterTableLookup::FindMaster() {
    master_.MasterTable.clear();
    try {
        if (inputs_.source.SourceType != ZKP_Table_QUERY || isBlank(inputs_.sourceText()))
            return;
        ado::Recordset row;
        row.Open(QStringLiteral("Select * From Reports Where RecSource = '") + upper(inputs_.sourceText()) +
                     u'\'',
                 inputs_.source.Cn, ado::adOpenStatic);
        if (row.Eof()) {
            master_.RKeyname.clear();
            return;
        }
        master_.MasterTable = textOrEmpty(row.Fields().Item(u"MasterTable").Value());
        master_.RKeyname = textOrEmpty(row.Fields().Item(u"RKeyname").Value());
        master_.MasterFilter = textOrEmpty(row.Fields().Item(u"MasterFilter").Value());
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::masterTableFailed());
    }
}

} // namespace zkp
