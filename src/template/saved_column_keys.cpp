#include "template/saved_keys.h"

#include "template/saved_keys_notation.h"

namespace zkp {

namespace {

using namespace saved;
using namespace Qt::StringLiterals;

/// Stored as 4 whatever the surface says; reading sets 3, as wanted.
BagValue fixedAlignment(const Column&) {
    return std::int16_t{4};
}

const QString same = u"="_s;

// clang-format off
std::vector<SavedColumnKey> columnKeys() {
    return {
        // Written stem, read stem, type, elided at, read default, member
        {u"ColCalcEuro"_s,    {},                  Boolean, always,       never,        ZKP_COLUMN(calcEuro)},
        {u"FixedAlignment"_s, {},                  Int16,   always,       never,        {fixedAlignment, nullptr}},
        {u"ColCaption"_s,     same,                Text,    text(u" "),   text(u" "),   ZKP_COLUMN(Caption)},
        {u"ColDatafield"_s,   same,                Text,    text(u" "),   text(u" "),   ZKP_COLUMN(Datafield)},
        {u"ColAlignment"_s,   same,                Int16,   number(0),    number(0),    ZKP_COLUMN(Alignment)},
        {u"ColCredit"_s,      same,                Boolean, is(false),    is(false),    ZKP_COLUMN(Credit)},
        {u"ColDebit"_s,       same,                Boolean, is(false),    is(false),    ZKP_COLUMN(Debit)},
        {u"ColBalance"_s,     same,                Boolean, is(false),    is(false),    ZKP_COLUMN(Balance)},
        {u"Coltotals"_s,      u"ColTotals"_s,      Boolean, is(false),    is(false),    ZKP_COLUMN(Totals)},
        {u"ColStatic"_s,      same,                Boolean, is(false),    is(false),    ZKP_COLUMN(Stat_ic)},
        {u"ColLR"_s,          same,                Boolean, is(false),    is(false),    ZKP_COLUMN(lR)},
        {u"ColIndexKey"_s,    same,                Boolean, is(false),    is(false),    ZKP_COLUMN(Index_Key)},
        {u"ColWidth"_s,       same,                Double,  number(1250), number(1250), ZKP_COLUMN(Width)},
        {u"ColForTot"_s,      same,                Boolean, is(false),    is(false),    ZKP_COLUMN(ForTot)},
        {u"ColForSize"_s,     same,                Boolean, always,       is(false),    ZKP_COLUMN(ForSize)},
        {u"ColCnt"_s,         same,                Boolean, always,       is(false),    ZKP_COLUMN(cnt)},
        {u"ColPerCnt"_s,      same,                Boolean, always,       is(false),    ZKP_COLUMN(PerCnt)},
        {u"ColPerSize"_s,     same,                Boolean, always,       is(false),    ZKP_COLUMN(PerSize)},
        {u"ColAvrg"_s,        same,                Boolean, always,       is(false),    ZKP_COLUMN(Avrg)},
        {u"ColEditRs"_s,      same,                Text,    always,       text(u" "),   ZKP_COLUMN(EditRs)},
        {u"ColEditable"_s,    same,                Boolean, is(true),     is(true),     ZKP_COLUMN(Editable)},
        {u"ColEditKind"_s,    same,                Int16,   number(0),    number(0),    ZKP_COLUMN(EditKind)},
        {u"ColEditTag"_s,     same,                Text,    text(u""),    text(u" "),   ZKP_COLUMN(EditTag)},
        {u"ColEditLength"_s,  same,                Int16,   always,       number(0),    ZKP_COLUMN(EditLength)},
        {u"ColEditField1"_s,  u"ColEditfield1"_s,  Text,    always,       text(u"ID"),  ZKP_COLUMN(EditField1)},
        {u"ColEditField2"_s,  u"ColEditfield2"_s,  Text,    always,       text(u"Descript"), ZKP_COLUMN(EditField2)},
    };
}
// clang-format on

std::vector<SavedColumnKey> spelt(std::vector<SavedColumnKey> keys) {
    for (SavedColumnKey& key : keys)
        if (key.read == same)
            key.read = key.written;
    return keys;
}

} // namespace

const std::vector<SavedColumnKey>& savedColumnKeys() {
    static const std::vector<SavedColumnKey> keys = spelt(columnKeys());
    return keys;
}

} // namespace zkp
