#include "interaction/menu_table.h"

#include "base/texts/menus.h"

namespace zkp {

namespace {

using namespace bands;

// Categories.
constexpr char16_t kNone[] = u"";
constexpr char16_t kGeneral[] = u"CatGeneral";
constexpr char16_t kTemplates[] = u"CatTemplate";
constexpr char16_t kColumns[] = u"CatColumn";
constexpr char16_t kCharts[] = u"CatGraph";

using Bands = std::vector<const char16_t*>;

MenuRow row(const char16_t* name, const QString& caption, const char16_t* category, Bands bands,
            ToolKind kind = ToolKind::Button, const char16_t* subBand = kNone) {
    Tool tool;
    tool.Name = QString::fromUtf16(name);
    tool.Caption = caption;
    tool.Category = QString::fromUtf16(category);
    tool.kind = kind;
    tool.subBand = QString::fromUtf16(subBand);
    return {tool, std::move(bands)};
}

MenuRow opener(const char16_t* name, const QString& caption, const char16_t* category, Bands bands) {
    return row(name, caption, category, std::move(bands), ToolKind::SubMenu, name);
}

MenuRow separator(Bands bands) {
    return row(u"miSeparator", {}, kNone, std::move(bands), ToolKind::Separator);
}

/// Not to be seen until a host, or a saved shape, says so (`TemplateMenuVisible`).
MenuRow hidden(MenuRow made) {
    made.tool.Visible = false;
    return made;
}

QString of(const QString& what, const QString& section) {
    return what + u' ' + section;
}

void add(std::vector<MenuRow>& rows, std::vector<MenuRow> more) {
    rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

std::vector<MenuRow> generalRows() {
    using namespace texts;
    return {
        opener(u"mnuColumn", menuColumn(), kColumns, {kContext}),
        opener(u"mnuFormat", menuFormat(), kTemplates, {kContext}),
        opener(u"mnuTemplate", menuTemplate(), kGeneral, {kBar, kContext}),
        row(u"mnuRefresh", menuRefresh(), kTemplates, {kBar, kTemplate}),
        row(u"mnuPrint", menuPrint(), kTemplates, {kBar, kTemplate}),
        row(u"ExportToExcel", menuSpreadsheet(), kNone, {kBar, kTemplate}),
        row(u"mnuExport", menuExport(), kTemplates, {kBar, kTemplate}),
        separator({kBar, kTemplate}),
        hidden(row(u"mnuSaveTemplate", menuSaveTemplate(), kTemplates, {kTemplate})),
        row(u"mnuSaveTemplateAs", menuSaveTemplateAs(), kTemplates, {kTemplate}),
        row(u"mnuTitle", menuTitle(), kTemplates, {kTemplate}),
        row(u"mnuGraph", menuGraph(), kGeneral, {kBar, kContext}, ToolKind::Button, kGraph),
        separator({kBar}),
    };
}

std::vector<MenuRow> columnRows() {
    using namespace texts;
    return {
        row(u"mnuField", menuField(), kColumns, {kBar}, ToolKind::List),
        row(u"mnuCaption", menuCaption(), kTemplates, {kBar}, ToolKind::Text),
        separator({kBar}),
        row(u"mnuAddColumn", menuAddColumn(), kColumns, {kColumn}),
        row(u"mnuInsertColumn", menuInsertColumn(), kColumns, {kColumn}),
        row(u"mnuAddGroup", menuAddGroup(), kColumns, {kColumn}),
        row(u"mnuInsertGroup", menuInsertGroup(), kColumns, {kColumn}),
        separator({kColumn}),
        row(u"mnuDelColumn", menuDelColumn(), kColumns, {kColumn}),
        separator({kColumn}),
        row(u"mnuColumnProperties", menuColumnProperties(), kColumns, {kColumn}),
        row(u"mnuAlignLeft", menuAlignLeft(), kColumns, {kBar, kFormat}, ToolKind::Check),
        row(u"mnuAlignCenter", menuAlignCenter(), kColumns, {kBar, kFormat}, ToolKind::Check),
        row(u"mnuAlignRight", menuAlignRight(), kColumns, {kBar, kFormat}, ToolKind::Check),
        separator({kBar, kFormat}),
        row(u"mnuSort", menuSort(), kColumns, {kBar, kContext}, ToolKind::Button, kSort),
        row(u"mnuSortAsc", menuSortAsc(), kColumns, {kSort}),
        row(u"mnuSortDesc", menuSortDesc(), kColumns, {kSort}),
    };
}

std::vector<MenuRow> styleRows() {
    using namespace texts;
    const QString back = menuBackColor();
    const QString fore = menuForeColor();
    return {
        opener(u"mnuBackColor", back, kTemplates, {kFormat}),
        opener(u"mnuForeColor", fore, kTemplates, {kFormat}),
        opener(u"mnuFonts", menuFonts(), kTemplates, {kFormat}),
        row(u"mnuFixedBackColor", of(back, ofHeadings()), kTemplates, {kBackColor}),
        row(u"mnuGroupedBackColor", of(back, ofGroups()), kTemplates, {kBackColor}),
        row(u"mnuDetailsBackColor", of(back, ofDetails()), kTemplates, {kBackColor}),
        row(u"mnuSubTotalsBackColor", of(back, ofSubtotals()), kTemplates, {kBackColor}),
        row(u"mnuTotalsBackColor", of(back, ofTotals()), kTemplates, {kBackColor}),
        row(u"mnuTitleBackColor", of(back, ofTitle()), kTemplates, {kBackColor}),
        row(u"mnuFixedForeColor", of(fore, ofHeadings()), kTemplates, {kForeColor}),
        row(u"mnuGroupedForeColor", of(fore, ofGroups()), kTemplates, {kForeColor}),
        row(u"mnuDetailsForeColor", of(fore, ofDetails()), kTemplates, {kForeColor}),
        row(u"mnuSubTotalsForeColor", of(fore, ofSubtotals()), kTemplates, {kForeColor}),
        row(u"mnuTotalsForeColor", of(fore, ofTotals()), kTemplates, {kForeColor}),
        row(u"mnuTitleForeColor", of(fore, ofTitle()), kTemplates, {kForeColor}),
        row(u"mnuStoixeiaForeColor", of(fore, ofCompanyBlock()), kTemplates, {kForeColor}),
        row(u"mnuFixedFont", ofHeadings(), kTemplates, {kFonts}),
        row(u"mnuGroupedFont", ofGroups(), kTemplates, {kFonts}),
        row(u"mnuDetailsFont", ofDetails(), kTemplates, {kFonts}),
        row(u"mnuSubTotalsFont", ofSubtotals(), kTemplates, {kFonts}),
        row(u"mnuTotalsFont", ofTotals(), kTemplates, {kFonts}),
    };
}

/// "mnuGiantGraph" has no command at all: choosing it does nothing, as wanted.
std::vector<MenuRow> chartRows() {
    using namespace texts;
    return {
        row(u"mnuGraphColumn", menuColumn(), kCharts, {kChart}, ToolKind::List),
        separator({kChart}),
        row(u"mnubarGraph", menuBarGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuHorBarGraph", menuHorBarGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuAreaGraph", menuAreaGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuLineGraph", menuLineGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuPieChart", menuPieChart(), kCharts, {kGraph, kChart}),
        row(u"mnuGiantGraph", menuScatterGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuCylinderGraph", menuCylinderGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuGraphKonoi", menuConeGraph(), kCharts, {kGraph, kChart}),
        row(u"mnuPyramidGraph", menuPyramidGraph(), kCharts, {kGraph, kChart}),
        separator({kChart}),
        row(u"mnuGraphProperties", menuGraphProperties(), kCharts, {kChart}),
        row(u"mnuPrintGraph", menuPrintGraph(), kCharts, {kChart}),
    };
}

} // namespace

const std::vector<const char16_t*>& menuBandNames() {
    static const std::vector<const char16_t*> names{
        kBar, kContext, kColumn, kFormat, kTemplate, kGraph, kBackColor, kForeColor, kFonts, kChart, kSort};
    return names;
}

std::vector<MenuRow> menuRows() {
    std::vector<MenuRow> rows = generalRows();
    add(rows, columnRows());
    add(rows, styleRows());
    add(rows, chartRows());
    // The record count stands at the end of its band.
    add(rows, {row(u"txtRecs", {}, kNone, {kBar}, ToolKind::Label)});
    return rows;
}

} // namespace zkp
