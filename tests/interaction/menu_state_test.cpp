#include "core/report_state.h"
#include "load/load_fixture.h"

#include "interaction/menu_bands.h"
#include "interaction/menu_state.h"
#include "load/record_statistics.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Captions Α, Β, Γ; the first and the last field can be group factors, the second one can be summed.
void makeDictionary(ado::Connection& connection) {
    connection.Execute(u"create table CLMNS (dtfld text, Cptn text, wdth integer, Algn integer, "
                       "isgroup integer, isTot integer, visbl integer, IsPublic integer, [Sum] integer, "
                       "[Avg] integer, [Min] integer, [Max] integer, crosstabdate integer)"_s);
    connection.Execute(u"insert into CLMNS values ('PRODUCT','Γ',1,0,1,0,1,1,0,0,0,0,0), "
                       "('AGENT','Α',1,0,1,0,1,1,0,0,0,0,0), ('PREMIUM','Β',1,7,0,1,1,1,1,0,0,0,0)"_s);
}

/// The menus of a surface with a group factor and three plain columns.
class MenuStateTest : public testing::Test {
protected:
    MenuStateTest() {
        buildMenuBands(bar);
        surface.setCols(4);
        properties.resize(4);
        state.grouping.GroupFactorCount = 1;
        connection->Open(u"sqlite:"_s);
        makeDictionary(*connection);
        state.source.Cn = connection;
        state.data.clmns = u"CLMNS"_s;
    }

    void loadFields() {
        dictionary.load();
        statFields().Clear();
        if (state.data.TotalForm)
            buildStatisticsFields(*dictionary.recordset(), statFields());
        else
            appendPlainFields(*dictionary.recordset(), statFields());
    }

    Tool& tool(QStringView name) { return bar.Tools(name); }
    Tool& field() { return tool(u"mnuField"); }

    void enableAll(bool enabled) {
        for (const auto& band : bar.bands())
            for (const auto& each : band->tools)
                each->Enabled = enabled;
    }

    /// "1" for each of these tools that is enabled, "0" for the others.
    QString enabled(const QStringList& names) {
        QString text;
        for (const QString& name : names)
            text += tool(name).Enabled ? u'1' : u'0';
        return text;
    }

    QString checks() {
        QString text;
        for (const char16_t* name : {u"mnuAlignLeft", u"mnuAlignCenter", u"mnuAlignRight"})
            text += tool(name).Checked ? u'1' : u'0';
        return text;
    }

    QString fieldIndexes() const {
        QString text;
        for (const short index : state.tools.FieldIndex)
            text += QString::number(index) + u' ';
        return text;
    }

    ReportState state;
    ColumnList columns;
    Events events;
    GridSurface surface;
    ColumnProperties properties{columns, surface, events};
    MenuBar bar;
    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    Dictionary dictionary{state.data, state.source, state.identity};
    MenuState menus{state.data, state.grouping, state.face, state.tools, columns,
                    properties, surface,        bar,        dictionary};
};

const QStringList kByColumn{u"mnuInsertColumn"_s, u"mnuSort"_s,        u"mnuColumnProperties"_s,
                            u"mnuDelColumn"_s,    u"mnuInsertGroup"_s, u"mnuAddGroup"_s,
                            u"mnuGraph"_s};
const QStringList kLocked{
    u"mnuRefresh"_s,     u"mnuColumnProperties"_s, u"mnuAddColumn"_s, u"mnuInsertColumn"_s, u"mnuAddGroup"_s,
    u"mnuInsertGroup"_s, u"mnuDelColumn"_s,        u"mnuField"_s,     u"mnuSort"_s,         u"mnuPrint"_s,
    u"mnuExport"_s};

} // namespace

TEST_F(MenuStateTest, WhatAColumnAllows) {
    // Insert column, sort, properties, delete, insert group, add group, chart.
    const struct {
        const char* rule;
        int col;
        bool totals;
        bool fixed;
        QString enabled;
    } cases[] = {
        {"a group factor can be inserted before, and has no sorting", 0, false, false, u"0011110"_s},
        {"a group factor of a totals report can be charted", 0, true, false, u"0011111"_s},
        {"the column behind the factors is a plain one", 1, false, false, u"1111010"_s},
        {"a plain column of a totals report has no chart", 1, true, false, u"1111010"_s},
        {"so has the last column", 3, true, false, u"1111010"_s},
        {"a static column stays", 2, false, true, u"1110010"_s},
        {"a static group factor too", 0, true, true, u"0010111"_s},
    };
    for (const auto& row : cases)
        for (const bool before : {false, true}) {
            enableAll(before);
            state.data.TotalForm = row.totals;
            properties.setColStatic(row.col, row.fixed);
            surface.setCol(row.col);
            menus.MenuRefresh();
            EXPECT_EQ(enabled(kByColumn), row.enabled) << row.rule;
            EXPECT_EQ(enabled({u"mnuRefresh"_s, u"mnuPrint"_s, u"mnuAddColumn"_s}),
                      before ? u"111"_s : u"000"_s)
                << "these don't depend on the column";
            properties.setColStatic(row.col, false);
        }
}

TEST_F(MenuStateTest, TheAlignmentThatFitsIsChecked) {
    const QString told[] = {u"100"_s, u"100"_s, u"100"_s, u"010"_s, u"010"_s,
                            u"010"_s, u"001"_s, u"001"_s, u"001"_s, u"000"_s};
    surface.setCol(2);
    for (int alignment = 0; alignment <= 9; ++alignment) {
        enableAll(false);
        surface.setColAlignment(2, alignment);
        menus.MenuRefresh();
        EXPECT_EQ(checks(), told[alignment]) << alignment;
        EXPECT_EQ(enabled({u"mnuAlignLeft"_s, u"mnuAlignCenter"_s, u"mnuAlignRight"_s}), u"111"_s);
    }
}

TEST_F(MenuStateTest, TheWaysIntoTemplatesColoursAndFontsAreOpen) {
    const QStringList open{u"mnuTemplate"_s, u"mnuBackColor"_s, u"mnuForeColor"_s, u"mnuFonts"_s,
                           u"mnuSaveTemplate"_s};
    enableAll(false);
    menus.MenuRefresh();
    EXPECT_EQ(enabled(open), u"11111"_s);
}

TEST_F(MenuStateTest, WithoutMenusVisibleAllStaysAsItWas) {
    loadFields();
    state.face.MenusVisible = false;
    enableAll(false);
    field().list = {u"old"_s};
    state.tools.FieldIndex = {7};
    menus.MenuRefresh();
    menus.fillBandField();
    EXPECT_EQ(enabled(kByColumn), u"0000000"_s);
    EXPECT_EQ(checks(), u"000"_s);
    EXPECT_EQ(field().list, QStringList{u"old"_s});
    EXPECT_EQ(fieldIndexes(), u"7 "_s);
}

TEST_F(MenuStateTest, LockedMenusStayAsTheyAre) {
    menus.LockMenus();
    EXPECT_TRUE(state.tools.MenusLocked);
    EXPECT_EQ(enabled(kLocked), u"00000000000"_s);
    EXPECT_TRUE(tool(u"mnuTitle").Enabled) << "not among the locked ones";
    menus.MenuRefresh();
    EXPECT_EQ(enabled(kLocked), u"00000000000"_s);
    EXPECT_EQ(checks(), u"000"_s);
    menus.UnlockMenus();
    EXPECT_FALSE(state.tools.MenusLocked);
    EXPECT_EQ(enabled(kLocked), u"11111111111"_s);
}

TEST_F(MenuStateTest, AViewHearsOnceAndOnlyOfAChange) {
    loadFields();
    int heard = 0;
    const Listening view = bar.views.add({.changed = [&] { ++heard; }});
    menus.MenuRefresh();
    EXPECT_EQ(heard, 1);
    menus.MenuRefresh();
    menus.fillBandField();
    EXPECT_EQ(heard, 1) << "nothing is different";
    surface.setCol(1);
    menus.MenuRefresh();
    EXPECT_EQ(heard, 2);
    properties.setColCaption(1, u"Ποσό"_s);
    menus.fillBandField();
    EXPECT_EQ(heard, 3);
}

// --- The list of fields

TEST_F(MenuStateTest, AColumnIsOfferedTheFieldsThatItMayShow) {
    const struct {
        const char* rule;
        int col;
        bool totals;
        QStringList captions;
        QString indexes;
    } cases[] = {
        {"a plain column of a detail report: all", 1, false, {u"Α"_s, u"Β"_s, u"Γ"_s}, u"1 2 3 "_s},
        {"a group factor: what can be one", 0, false, {u"Α"_s, u"Γ"_s}, u"1 3 "_s},
        // The list is: two counts, Α, sum and share of Β, Γ.
        {"a group factor of a totals report", 0, true, {u"Α"_s, u"Γ"_s}, u"3 6 "_s},
        {"a plain column of a totals report: what can't",
         1,
         true,
         {u"Αριθμός"_s, u"Αριθμός (Ποσ %)"_s, u"Β (Αθροισμα)"_s, u"Β (Ποσ %)"_s},
         u"1 2 4 5 "_s},
    };
    for (const auto& row : cases) {
        state.data.TotalForm = row.totals;
        loadFields();
        surface.setCol(row.col);
        menus.fillBandField();
        EXPECT_EQ(field().list, row.captions) << row.rule;
        EXPECT_EQ(fieldIndexes(), row.indexes) << row.rule;
    }
}

TEST_F(MenuStateTest, TheColumnsFieldIsChosenAndItsCaptionIsTheText) {
    loadFields();
    properties.setColDataField(2, u"PRODUCT"_s);
    properties.setColCaption(2, u"Κλάδος"_s);
    surface.setCol(2);
    menus.fillBandField();
    EXPECT_EQ(field().ListIndex, 2);
    EXPECT_EQ(field().Text, u"Γ"_s);
    EXPECT_EQ(tool(u"mnuCaption").Text, u"Κλάδος"_s);

    properties.setColDataField(0, u"PRODUCT"_s);
    surface.setCol(0);
    menus.fillBandField();
    EXPECT_EQ(field().ListIndex, 1) << "the place among the group factors";

    surface.setCol(3);
    menus.fillBandField();
    EXPECT_EQ(field().ListIndex, -1) << "a column without a field";
    EXPECT_EQ(field().Text, QString());
    EXPECT_EQ(tool(u"mnuCaption").Text, u" "_s) << "a new column's caption";
}

TEST_F(MenuStateTest, AGroupFactorsFieldThatCannotBeOneIsNotChosen) {
    loadFields();
    properties.setColDataField(0, u"PREMIUM"_s);
    menus.fillBandField();
    EXPECT_EQ(field().ListIndex, -1);
}

TEST_F(MenuStateTest, WhatIsFilledInIsNoDoingOfTheUsers) {
    loadFields();
    int heard = 0;
    const Listening lists = bar.listChanged.add([&](Tool&) { ++heard; });
    const Listening texts = bar.textChanged.add([&](Tool&) { ++heard; });
    properties.setColDataField(1, u"AGENT"_s);
    properties.setColCaption(1, u"Πράκτορας"_s);
    surface.setCol(1);
    menus.MenuRefresh();
    EXPECT_EQ(heard, 0);
}

TEST_F(MenuStateTest, WithoutADictionaryOrAFieldTheListStays) {
    field().list = {u"old"_s};
    tool(u"mnuCaption").Text = u"old"_s;
    statFields().Clear();
    statFields().Add().Caption = u"Α"_s;
    menus.fillBandField();
    EXPECT_EQ(field().list, QStringList{u"old"_s}) << "never opened";

    loadFields();
    statFields().Clear();
    menus.fillBandField();
    EXPECT_EQ(field().list, QStringList{u"old"_s}) << "no field";

    statFields().Add().Caption = u"Α"_s;
    dictionary.recordset()->Close();
    menus.fillBandField();
    EXPECT_EQ(field().list, QStringList{u"old"_s}) << "closed";
    EXPECT_EQ(tool(u"mnuCaption").Text, u"old"_s);
}

TEST_F(MenuStateTest, WithoutAColumnNothingIsCheckedAndNothingFails) {
    loadFields();
    field().list = {u"old"_s};
    surface.setCols(0);
    menus.MenuRefresh();
    EXPECT_EQ(checks(), u"000"_s);
    EXPECT_EQ(field().list, QStringList{u"old"_s});
    surface.setCols(6); // more than the collection has
    surface.setCol(5);
    menus.MenuRefresh();
    EXPECT_EQ(checks(), u"000"_s);
    EXPECT_EQ(enabled(kByColumn), u"1111010"_s);
}

// --- On the control

namespace {

class MenusOfAControlTest : public LoadTest {
protected:
    MenusOfAControlTest() {
        makeDictionary(*connection);
        columns({u"POLICYID"_s, u"AGENT"_s});
        grid->setclmns(u"CLMNS"_s);
    }
    Tool& tool(QStringView name) { return grid->Picture1().Tools(name); }
};

} // namespace

TEST_F(MenusOfAControlTest, ALoadOfTheDictionaryFillsTheList) {
    grid->LoadDictionary();
    EXPECT_EQ(tool(u"mnuField").list, (QStringList{u"Α"_s, u"Β"_s, u"Γ"_s}));
    EXPECT_EQ(tool(u"mnuCaption").Text, u"POLICYID"_s);
    grid->setTotalForm(true);
    grid->LoadDictionary();
    EXPECT_EQ(tool(u"mnuField").list.first(), u"Αριθμός"_s);
}

TEST_F(MenusOfAControlTest, BothRoutinesOfTheCombosFillIt) {
    grid->LoadDictionary();
    for (const char* routine : {"fillcombos", "fillTotalcombos", "fillBandField", "MenuRefresh"}) {
        tool(u"mnuField").list.clear();
        grid->callMember(QString::fromLatin1(routine));
        EXPECT_EQ(tool(u"mnuField").list.size(), 3) << routine;
    }
    grid->setRecordSourceSQL(true); // has no part in it
    grid->fillcombos();
    EXPECT_EQ(tool(u"mnuField").list.size(), 3);
}

TEST_F(MenusOfAControlTest, TheListFollowsTheCurrentColumn) {
    grid->LoadDictionary();
    grid->setCol(1);
    EXPECT_EQ(tool(u"mnuField").Text, u"Α"_s);
    EXPECT_EQ(tool(u"mnuCaption").Text, u"AGENT"_s);
    grid->setColAlignment(0, 7);
    grid->setCol(0);
    EXPECT_TRUE(tool(u"mnuAlignRight").Checked);
}

TEST_F(MenusOfAControlTest, LockingIsReachedByName) {
    grid->callMember(u"LockMenus"_s);
    EXPECT_FALSE(tool(u"mnuField").Enabled);
    grid->callMember(u"UnlockMenus"_s);
    EXPECT_TRUE(tool(u"mnuField").Enabled);
}

TEST_F(MenusOfAControlTest, TheFirstOfSeveralKeyColumnsIsTheKey) {
    EXPECT_EQ(grid->callMember(u"FindKeyColumn"_s).toDouble(), -1);
    grid->setCols(4);
    grid->setColIndexKey(1, true);
    grid->setColIndexKey(3, true);
    EXPECT_EQ(grid->callMember(u"FindKeyColumn"_s).toDouble(), 1);
}
