#include "interaction/menu_bands.h"

#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

QStringList namesIn(const Band& band) {
    QStringList names;
    for (const auto& tool : band.tools)
        names << tool->Name;
    return names;
}

struct MenuBandsTest : testing::Test {
    MenuBandsTest() { buildMenuBands(bar); }
    MenuBar bar;
};

struct Told {
    QString name;
    QString caption;
    QString category;
};

} // namespace

TEST_F(MenuBandsTest, TheBandsStandInTheirOrderAndOneNameBeginsWithABlank) {
    QStringList names;
    for (const auto& band : bar.bands())
        names << band->Name;
    EXPECT_EQ(names, (QStringList{u"BndTemplate"_s, u" mnuChooceObject"_s, u"mnuColumn"_s, u"mnuFormat"_s,
                                  u"mnuTemplate"_s, u"mnuGraph"_s, u"mnuBackColor"_s, u"mnuForeColor"_s,
                                  u"mnuFonts"_s, u"BndGraph"_s, u"MNUSORT"_s}));
    EXPECT_EQ(bar.Bands(u"mnuchooceobject").Name, u" mnuChooceObject"_s);
}

TEST_F(MenuBandsTest, EachToolHasItsCaptionAndCategory) {
    const Told told[] = {
        {u"mnuTemplate"_s, u"Υπόδειγμα"_s, u"CatGeneral"_s},
        {u"mnuRefresh"_s, u"Ανανέωση"_s, u"CatTemplate"_s},
        {u"mnuPrint"_s, u"Εκτύπωση"_s, u"CatTemplate"_s},
        {u"ExportToExcel"_s, u"Export"_s, u""_s},
        {u"mnuExport"_s, u"Εξαγωγή"_s, u"CatTemplate"_s},
        {u"mnuGraph"_s, u"Γράφημα"_s, u"CatGeneral"_s},
        {u"mnuAddColumn"_s, u"Πρόσθεση Στήλης"_s, u"CatColumn"_s},
        {u"mnuInsertColumn"_s, u"Παρεμβολή Στήλης"_s, u"CatColumn"_s},
        {u"mnuAddGroup"_s, u"Πρόσθεση Παράγοντα Ομαδοποίησης"_s, u"CatColumn"_s},
        {u"mnuInsertGroup"_s, u"Παρεμβολή Παράγοντα Ομαδοποίησης"_s, u"CatColumn"_s},
        {u"mnuDelColumn"_s, u"Διαγραφή Στήλης"_s, u"CatColumn"_s},
        {u"mnuColumnProperties"_s, u"Ιδιότητες Στήλης"_s, u"CatColumn"_s},
        {u"mnuField"_s, u"Πεδίο"_s, u"CatColumn"_s},
        {u"mnuCaption"_s, u"Επικεφαλίδα"_s, u"CatTemplate"_s},
        {u"mnuAlignLeft"_s, u"Στοίχιση Αριστερά"_s, u"CatColumn"_s},
        {u"mnuAlignCenter"_s, u"Στοίχιση στο κέντρο"_s, u"CatColumn"_s},
        {u"mnuAlignRight"_s, u"Στοίχιση Δεξιά"_s, u"CatColumn"_s},
        {u"mnuSort"_s, u"Ταξινόμηση"_s, u"CatColumn"_s},
        {u"mnuSaveTemplate"_s, u"Καταχώρηση Υποδείγματος"_s, u"CatTemplate"_s},
        {u"mnuSaveTemplateAs"_s, u"Καταχώρηση Υποδείγματος σάν"_s, u"CatTemplate"_s},
        {u"mnuTitle"_s, u"Αλλαγή Τίτλου"_s, u"CatTemplate"_s},
        {u"mnuGraphColumn"_s, u"Στήλη"_s, u"CatGraph"_s},
        {u"mnuGraphProperties"_s, u"Ιδιότητες"_s, u"CatGraph"_s},
    };
    for (const Told& row : told) {
        const Tool& tool = bar.Tools(row.name);
        EXPECT_EQ(tool.Name, row.name);
        EXPECT_EQ(tool.Caption, row.caption) << qPrintable(row.name);
        EXPECT_EQ(tool.Category, row.category) << qPrintable(row.name);
    }
}

TEST_F(MenuBandsTest, TheFamiliesStandInTheirBandsWithCaptionsOfOnePattern) {
    const Told told[] = {
        {u"mnuFixedBackColor"_s, u"Χρώμα Φόντου Επικεφαλίδων"_s, u"mnuBackColor"_s},
        {u"mnuGroupedBackColor"_s, u"Χρώμα Φόντου Ομαδοποίησης"_s, u"mnuBackColor"_s},
        {u"mnuDetailsBackColor"_s, u"Χρώμα Φόντου Λεπτομερειών"_s, u"mnuBackColor"_s},
        {u"mnuSubTotalsBackColor"_s, u"Χρώμα Φόντου Υποσυνόλων"_s, u"mnuBackColor"_s},
        {u"mnuTotalsBackColor"_s, u"Χρώμα Φόντου Συνόλων"_s, u"mnuBackColor"_s},
        {u"mnuTitleBackColor"_s, u"Χρώμα Φόντου Τίτλου"_s, u"mnuBackColor"_s},
        {u"mnuFixedForeColor"_s, u"Χρώμα Γραμμάτων Επικεφαλίδων"_s, u"mnuForeColor"_s},
        {u"mnuGroupedForeColor"_s, u"Χρώμα Γραμμάτων Ομαδοποίησης"_s, u"mnuForeColor"_s},
        {u"mnuDetailsForeColor"_s, u"Χρώμα Γραμμάτων Λεπτομερειών"_s, u"mnuForeColor"_s},
        {u"mnuSubTotalsForeColor"_s, u"Χρώμα Γραμμάτων Υποσυνόλων"_s, u"mnuForeColor"_s},
        {u"mnuTotalsForeColor"_s, u"Χρώμα Γραμμάτων Συνόλων"_s, u"mnuForeColor"_s},
        {u"mnuTitleForeColor"_s, u"Χρώμα Γραμμάτων Τίτλου"_s, u"mnuForeColor"_s},
        {u"mnuStoixeiaForeColor"_s, u"Χρώμα Γραμμάτων Στοιχείων"_s, u"mnuForeColor"_s},
        {u"mnuFixedFont"_s, u"Επικεφαλίδων"_s, u"mnuFonts"_s},
        {u"mnuGroupedFont"_s, u"Ομαδοποίησης"_s, u"mnuFonts"_s},
        {u"mnuDetailsFont"_s, u"Λεπτομερειών"_s, u"mnuFonts"_s},
        {u"mnuSubTotalsFont"_s, u"Υποσυνόλων"_s, u"mnuFonts"_s},
        {u"mnuTotalsFont"_s, u"Συνόλων"_s, u"mnuFonts"_s},
        {u"mnuSortAsc"_s, u"Αύξουσα Ταξινόμηση"_s, u"MNUSORT"_s},
        {u"mnuSortDesc"_s, u"Φθίνουσα Ταξινόμηση"_s, u"MNUSORT"_s},
        {u"mnubarGraph"_s, u"Γράφημα Στηλών"_s, u"mnuGraph"_s},
        {u"mnuHorBarGraph"_s, u"Γράφημα Ράβδων"_s, u"mnuGraph"_s},
        {u"mnuAreaGraph"_s, u"Γράφημα Περιοχής 3-Δ"_s, u"mnuGraph"_s},
        {u"mnuLineGraph"_s, u"Γράφημα Γραμμών"_s, u"mnuGraph"_s},
        {u"mnuPieChart"_s, u"Γράφημα Πίτας"_s, u"mnuGraph"_s},
        {u"mnuGiantGraph"_s, u"(ΧΥ) Γράφημα &Διασποράς"_s, u"mnuGraph"_s},
        {u"mnuCylinderGraph"_s, u"Γράφημα Κυλίνδρων"_s, u"mnuGraph"_s},
        {u"mnuGraphKonoi"_s, u"Γράφημα Κόνων"_s, u"mnuGraph"_s},
        {u"mnuPyramidGraph"_s, u"Γράφημα Πυραμίδων"_s, u"mnuGraph"_s},
        {u"mnuPrintGraph"_s, u"Εκτύπωση Γραφήματος"_s, u"BndGraph"_s},
    };
    for (const Told& row : told)
        EXPECT_EQ(bar.Bands(row.category).Tools(row.name).Caption, row.caption) << qPrintable(row.name);
}

TEST_F(MenuBandsTest, TheBandsThatCommandsNameHaveTheirTools) {
    const struct {
        const char16_t* band;
        const char16_t* tool;
    } told[] = {{u"BndTemplate", u"mnuPrint"},        {u"mnuTemplate", u"mnuPrint"},
                {u"mnuTemplate", u"mnuSaveTemplate"}, {u"BndTemplate", u"mnuField"},
                {u"BndTemplate", u"mnuCaption"},      {u"BndTemplate", u"txtRecs"}};
    for (const auto& row : told)
        EXPECT_EQ(&bar.Bands(row.band).Tools(row.tool), &bar.Tools(row.tool))
            << qPrintable(QString::fromUtf16(row.tool));
    for (const auto& band : bar.bands())
        EXPECT_FALSE(band->tools.empty()) << qPrintable(band->Name);
}

TEST_F(MenuBandsTest, TheRecordCountStandsAtTheEndOfTheBarAndSeparatorsBetween) {
    const QStringList names = namesIn(bar.Bands(u"BndTemplate"));
    EXPECT_EQ(names.last(), u"txtRecs"_s);
    EXPECT_GT(names.count(u"miSeparator"_s), 1);
    for (const auto& band : bar.bands())
        for (const auto& tool : band->tools)
            EXPECT_EQ(tool->kind == ToolKind::Separator, tool->Name == u"miSeparator"_s);
}

TEST_F(MenuBandsTest, EachToolThatOpensABandNamesOneThatIsThere) {
    int openers = 0;
    for (const auto& band : bar.bands())
        for (const auto& tool : band->tools) {
            openers += tool->kind == ToolKind::SubMenu ? 1 : 0;
            if (tool->kind == ToolKind::SubMenu || !tool->subBand.isEmpty()) {
                EXPECT_EQ(errorNumber([&] { bar.Bands(tool->subBand); }), 0u) << qPrintable(tool->Name);
            }
        }
    EXPECT_EQ(openers, 7); // column, format, template (in two bands), two colours, fonts
}

TEST_F(MenuBandsTest, ABarWithoutAControlIsHeardByNobodyAndOnlyItsCountIsForTheRow) {
    for (const auto& tool : bar.Bands(u"BndTemplate").tools)
        EXPECT_EQ(bar.isHeard(*tool), tool->Name == u"txtRecs"_s) << qPrintable(tool->Name);
}

TEST_F(MenuBandsTest, AllToolsStandReadyButTheSavingOfTemplates) {
    for (const auto& band : bar.bands())
        for (const auto& tool : band->tools) {
            EXPECT_TRUE(tool->Enabled) << qPrintable(tool->Name);
            EXPECT_FALSE(tool->Checked) << qPrintable(tool->Name);
            EXPECT_EQ(tool->Visible, tool->Name != u"mnuSaveTemplate"_s) << qPrintable(tool->Name);
        }
}

using ToolPropertiesTest = GridTest;

TEST_F(ToolPropertiesTest, TemplateMenuVisibleIsTheStateOfItsTool) {
    Tool& save = grid->Picture1().Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate");
    int refreshed = 0;
    const Listening view = grid->Picture1().views.add({.changed = [&] { ++refreshed; }});
    EXPECT_FALSE(grid->TemplateMenuVisible());
    EXPECT_EQ(keysOf([&] { grid->setTemplateMenuVisible(true); }), QStringList{u"TemplateMenuVisible"_s});
    EXPECT_TRUE(save.Visible);
    EXPECT_EQ(refreshed, 1);
    save.Visible = false;
    EXPECT_FALSE(grid->TemplateMenuVisible());
}

TEST_F(ToolPropertiesTest, RefreshOnChangeEnablesThePrintToolInItsTwoBands) {
    MenuBar& bar = grid->Picture1();
    for (const bool on : {false, true}) {
        EXPECT_EQ(keysOf([&] { grid->setRefreshOnChange(on); }), QStringList{u"Refreshonchange"_s});
        EXPECT_EQ(grid->RefreshOnChange(), on);
        EXPECT_EQ(bar.Bands(u"BndTemplate").Tools(u"mnuPrint").Enabled, on);
        EXPECT_EQ(bar.Bands(u"mnuTemplate").Tools(u"mnuPrint").Enabled, on);
    }
}
