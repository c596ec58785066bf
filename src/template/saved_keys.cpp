#include "template/saved_keys.h"

#include "template/saved_keys_notation.h"

#include <QHash>

namespace zkp {

namespace {

using namespace saved;
using namespace Qt::StringLiterals;

/// Both sides spell it alike.
const QString same = u"="_s;

/// The font of the place that holds the control.
const SavedDefault ambientFont{BagValue(BagFont{u"Arial"_s, 8})};

BagValue groupbyOf(const SavedControl& control) {
    return control.state.grouping.Groupby;
}

/// Given from outside, as by the property: a load makes columns of it when none is flagged.
void setGroupby(const SavedControl& control, const BagValue& value, const QString& key) {
    control.state.grouping.give(valueAs<QString>(value, key));
}

/// Nothing fills it; it is stored all the same, as wanted.
BagValue dataSource(const SavedControl&) {
    return QString();
}

Tool& templateTool(const SavedControl& control) {
    return control.menu.Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate");
}

BagValue templateMenuVisible(const SavedControl& control) {
    return templateTool(control).Visible;
}

void setTemplateMenuVisible(const SavedControl& control, const BagValue& value, const QString& key) {
    templateTool(control).Visible = valueAs<bool>(value, key);
    control.menu.Refresh();
}

// clang-format off
std::vector<SavedKey> keysBeforeColumns() {
    return {
        // Written, read, type, elided at, read default, target
        {u"BackColor"_s,           same,                     Colour,  sys(5),      sys(5),      ZKP_GRID(BackColor)},
        {u"ForeColor"_s,           same,                     Colour,  sys(8),      sys(8),      ZKP_GRID(ForeColor)},
        {u"Enabled"_s,             same,                     Boolean, is(true),    is(true),    ZKP_LOOK(Enabled)},
        {u"Font"_s,                same,                     Font,    ambientFont, current,     ZKP_GRID(Font)},
        {u"BackStyle"_s,           same,                     Int16,   number(0),   current,     ZKP_MEMBER(BackStyle)},
        {u"BorderStyle"_s,         same,                     Int32,   always,      number(0),   ZKP_LOOK(BorderStyle)},
        {u"BackColorBkg"_s,        same,                     Colour,  always,      current,     ZKP_LOOK(BackColorBkg)},
        {u"BackColorFixed"_s,      same,                     Colour,  always,      sys(16),     ZKP_GRID(BackColorFixed)},
        {u"BackColorSel"_s,        same,                     Colour,  always,      current,     ZKP_LOOK(BackColorSel)},
        {u"Cols"_s,                same,                     Int32,   always,      number(2),   ZKP_GRID(Cols)},
        {u"Datasource"_s,          {},                       Text,    always,      never,       {dataSource, nullptr}},
        {u"UnionRecordSource"_s,   u"UnionRecordsource"_s,   Text,    always,      text(u" "),  ZKP_MEMBER(UnionRecordSource)},
        {u"SpecialRecordSource"_s, u"SpecialRecordsource"_s, Text,    always,      text(u" "),  ZKP_MEMBER(specialrecordsource)},
        {u"SpecialInfo"_s,         u"Specialinfo"_s,         Boolean, always,      is(false),   ZKP_MEMBER(specialinfo)},
        {u"orderby"_s,             u"Orderby"_s,             Text,    always,      text(u" "),  ZKP_MEMBER(OrderBy)},
        {u"GroupBy"_s,             same,                     Text,    always,      text(u" "),  {groupbyOf, setGroupby}},
        {u"Filter"_s,              same,                     Text,    always,      text(u"true"), ZKP_MEMBER(Filter)},
        {u"PreFilter"_s,           same,                     Text,    always,      text(u"true"), ZKP_MEMBER(PreFilter)},
        {u"Clmns"_s,               same,                     Text,    always,      text(u" "),  ZKP_MEMBER(clmns)},
    };
}

std::vector<SavedKey> keysBeforeFonts() {
    return {
        // Written, read, type, elided at, read default, target
        {u"FixedCols"_s,          same, Int32,   number(0),      number(0),        ZKP_GRID(FixedCols)},
        {u"FixedRows"_s,          same, Int32,   number(1),      number(1),        ZKP_GRID(FixedRows)},
        {u"Rows"_s,               same, Int32,   currentPlusOne, currentFixedRows, ZKP_GRID(Rows)},
        {u"FrozenRow"_s,          same, Boolean, is(false),      is(false),        ZKP_MEMBER(FrozenRow)},
        {u"FreezeBackColor"_s,    same, Colour,  sys(5),         sys(4),           ZKP_MEMBER(FreezeBackColor)},
        {u"DisplayTotals"_s,      same, Boolean, is(true),       is(true),         ZKP_MEMBER(DisplayTotals)},
        {u"ChoicesVisible"_s,     same, Boolean, is(true),       is(true),         ZKP_MEMBER(ChoicesVisible)},
        {u"SubTotalsBackColor"_s, same, Colour,  sys(5),         sys(5),           ZKP_MEMBER(SubTotalsBackColor)},
        {u"SubTotalsForeColor"_s, same, Colour,  sys(8),         sys(8),           ZKP_MEMBER(SubTotalsForeColor)},
        {u"GroupedBackColor"_s,   same, Colour,  sys(5),         sys(5),           ZKP_MEMBER(GroupedBackColor)},
        {u"GroupedForeColor"_s,   same, Colour,  sys(8),         sys(8),           ZKP_MEMBER(GroupedForecolor)},
        {u"TitleBackColor"_s,     same, Colour,  sys(5),         sys(5),           ZKP_MEMBER(TitleBackColor)},
        {u"TitleForeColor"_s,     same, Colour,  sys(8),         sys(8),           ZKP_MEMBER(TitleForecolor)},
        {u"StoixeiaForeColor"_s,  same, Colour,  sys(8),         sys(8),           ZKP_MEMBER(StoixeiaForecolor)},
        {u"TotalsBackColor"_s,    same, Colour,  sys(5),         sys(5),           ZKP_MEMBER(TotalsBackcolor)},
        {u"TotalsForeColor"_s,    same, Colour,  sys(8),         sys(8),           ZKP_MEMBER(TotalsForeColor)},
        {u"MinRows"_s,            same, Double,  number(3),      number(3),        ZKP_MEMBER(MinRows)},
        {u"FocusRect"_s,          same, Int32,   number(1),      number(1),        ZKP_LOOK(FocusRect)},
    };
}

std::vector<SavedKey> keysAfterFonts() {
    return {
        // Written, read, type, elided at, read default, target
        {u"ForeColorFixed"_s,      same,                   Colour,  always,     sys(18),    ZKP_GRID(ForeColorFixed)},
        {u"ForeColorSel"_s,        same,                   Colour,  current,    sys(14),    ZKP_LOOK(ForeColorSel)},
        {u"GridColor"_s,           same,                   Colour,  current,    current,    ZKP_LOOK(GridColor)},
        {u"GridColorFixed"_s,      same,                   Colour,  always,     sys(16),    ZKP_LOOK(GridColorFixed)},
        {u"GridLines"_s,           same,                   Int32,   number(1),  number(1),  ZKP_LOOK(GridLines)},
        {u"GridLineWidth"_s,       same,                   Int16,   number(1),  number(1),  ZKP_LOOK(GridLineWidth)},
        {u"HighLight"_s,           same,                   Int32,   number(1),  number(1),  ZKP_LOOK(HighLight)},
        {u"PrintFilter"_s,         same,                   Text,    text(u" "), text(u" "), ZKP_MEMBER(PrintFilter)},
        {u"PrintCaption"_s,        same,                   Text,    text(u" "), text(u" "), ZKP_MEMBER(PrintCaption)},
        {u"FileName"_s,            same,                   Text,    text(u" "), text(u" "), ZKP_MEMBER(FileName)},
        {u"FileNo"_s,              same,                   Int32,   number(-1), number(-1), ZKP_MEMBER(fileno)},
        {u"AlignTitle"_s,          same,                   Int16,   number(1),  number(1),  ZKP_MEMBER(AlignTitle)},
        {u"TitleBorder"_s,         same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(TitleBorder)},
        {u"TitleUnderLine"_s,      same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(TitleUnderLine)},
        {u"TitleOnEveryPage"_s,    same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(TitleOnEveryPage)},
        {u"Print_Stoixeia"_s,      same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(Print_Stoixeia)},
        {u"CenterStoixeia"_s,      same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(CenterStoixeia)},
        {u"StoixeiaUnderLine"_s,   u"StoixeiaUnderline"_s, Boolean, is(false),  is(true),   ZKP_MEMBER(StoixeiaUnderLine)},
        {u"StoixeiaOnEveryPage"_s, same,                   Boolean, is(false),  is(true),   ZKP_MEMBER(StoixeiaOnEveryPage)},
        {u"Visiblemetafora"_s,     u"visiblemetafora"_s,   Boolean, is(true),   is(true),   ZKP_MEMBER(VisibleMetafora)},
        {u"Propschanged"_s,        same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(PropsChanged)},
        {u"TemplateMenuVisible"_s, same,                   Boolean, is(false),  is(false),  {templateMenuVisible, setTemplateMenuVisible}},
        {u"RefreshOnChange"_s,     same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(RefreshOnChange)},
        // What is written here is found under no spelling that is read: the value never returns, as wanted.
        {u"EuroVer"_s,             u"mEuroVer"_s,          Boolean, is(true),   is(true),   ZKP_MEMBER(EuroVer)},
        {u"TotalForm"_s,           same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(TotalForm)},
        {u"RowByRow"_s,            same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(RowByRow)},
        {u"RowSelect"_s,           same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(RowSelect)},
        {u"KeyName"_s,             same,                   Text,    text(u""),  text(u""),  ZKP_MEMBER(KeyName)},
        {u"Row1BackColor"_s,       same,                   Colour,  sys(5),     sys(15),    ZKP_MEMBER(Row1BackColor)},
        {u"Row1ForeColor"_s,       same,                   Colour,  sys(5),     sys(18),    ZKP_MEMBER(Row1ForeColor)},
        {u"MenusVisible"_s,        same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(MenusVisible)},
        {u"GraphVisible"_s,        same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(GraphVisible)},
        {u"AllowBigSelection"_s,   same,                   Boolean, is(false),  is(false),  ZKP_LOOK(AllowBigSelection)},
        {u"SelectionMode"_s,       same,                   Int32,   number(0),  number(0),  ZKP_LOOK(SelectionMode)},
        {u"Redraw"_s,              same,                   Int32,   is(true),   is(true),   ZKP_GRID(Redraw)},
        {u"Print_Colors"_s,        u"Print_colors"_s,      Boolean, is(true),   is(true),   ZKP_MEMBER(Print_Colors)},
        {u"Print_Lines"_s,         same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(Print_Lines)},
        {u"Group_Lines"_s,         same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(Group_Lines)},
        {u"Group_BREAK"_s,         same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(Group_break)},
        {u"Print_Filter"_s,        same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(Print_Filter)},
        {u"Print_Date"_s,          same,                   Boolean, is(true),   is(true),   ZKP_MEMBER(Print_Date)},
        {u"WriteTot"_s,            same,                   Boolean, is(false),  is(false),  ZKP_MEMBER(WriteTot)},
    };
}

/// Read though no code writes them; in bags of older versions they may stand.
std::vector<SavedKey> keysOnlyRead() {
    return {
        // Written, read, type, elided at, read default, target
        {{}, u"EditEnable"_s,   Boolean, never, is(false),     ZKP_MEMBER(editenable)},
        {{}, u"UnionFilter"_s,  Text,    never, text(u"true"), ZKP_MEMBER(UnionFilter)},
        {{}, u"FormatString"_s, Text,    never, text(u""),     ZKP_MEMBER(FormatString)},
    };
}
// clang-format on

template <class T>
BagValue inType(BagValue value, const QString& key) {
    if (!std::holds_alternative<T>(value))
        value = valueAs<T>(value, key);
    return value;
}

std::vector<SavedKey> spelt(std::vector<SavedKey> keys) {
    for (SavedKey& key : keys)
        if (key.read == same)
            key.read = key.written;
    return keys;
}

std::vector<SavedKey> joined(std::initializer_list<std::vector<SavedKey>> tables) {
    std::vector<SavedKey> all;
    for (const std::vector<SavedKey>& table : tables)
        all.insert(all.end(), table.begin(), table.end());
    return all;
}

} // namespace

const std::vector<SavedKey>& savedKeysBeforeColumns() {
    static const std::vector<SavedKey> keys = spelt(keysBeforeColumns());
    return keys;
}

const std::vector<SavedKey>& savedKeysAfterColumns() {
    static const std::vector<SavedKey> keys =
        spelt(joined({keysBeforeFonts(), savedFontKeys(), keysAfterFonts()}));
    return keys;
}

const SavedKey& savedKeyReadAs(const QString& spelling) {
    static const std::vector<SavedKey> onlyRead = keysOnlyRead();
    static const QHash<QString, const SavedKey*> places = [] {
        QHash<QString, const SavedKey*> bySpelling;
        for (const auto* table : {&savedKeysBeforeColumns(), &savedKeysAfterColumns(), &onlyRead})
            for (const SavedKey& key : *table)
                if (!key.read.isEmpty())
                    bySpelling.insert(key.read, &key);
        return bySpelling;
    }();
    const SavedKey* key = places.value(spelling);
    Q_ASSERT(key);
    return *key;
}

BagValue inSavedType(SavedType type, BagValue value, const QString& key) {
    switch (type) {
    case Boolean:
        return inType<bool>(std::move(value), key);
    case Int16:
        return inType<std::int16_t>(std::move(value), key);
    case Int32:
        return inType<std::int32_t>(std::move(value), key);
    case Single:
        return inType<float>(std::move(value), key);
    case Double:
        return inType<double>(std::move(value), key);
    case Text:
        return inType<QString>(std::move(value), key);
    case Colour:
        return inType<Color>(std::move(value), key);
    case Font:
        break;
    }
    return inType<BagFont>(std::move(value), key);
}

BagValue defaultOn(const SavedControl& control, const SavedKey& key, const SavedDefault& fallback) {
    switch (fallback.kind) {
    case SavedDefault::Kind::Current:
        return key.target.get(control);
    case SavedDefault::Kind::OneMoreThanCurrent:
        return takenAs<double>(key.target.get(control), key.read) + 1;
    case SavedDefault::Kind::CurrentFixedRows:
        return control.surface.FixedRows();
    case SavedDefault::Kind::None:
    case SavedDefault::Kind::Value:
        break;
    }
    return fallback.value;
}

} // namespace zkp
