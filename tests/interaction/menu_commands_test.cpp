#include "load/load_fixture.h"

#include "base/text.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A control with the columns AGENTNAME, POLICYID and PREMIUM, over a dictionary of them.
class MenuCommandsTest : public LoadTest {
protected:
    MenuCommandsTest() {
        for (const QString& statement :
             {u"create table REPORTS (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s,
              u"insert into REPORTS values ('POLICIESDATA','POLICIES','','')"_s,
              u"create view POLICIESDATA as select * from POLICIES"_s,
              u"create table CLMNS (dtfld text, Cptn text, wdth integer, Algn integer, isgroup integer, "
              "isTot integer, visbl integer, IsPublic integer, [Sum] integer, [Avg] integer, "
              "[Min] integer, [Max] integer, crosstabdate text, SOURCEFIELDNAME text, "
              "SourceTableName text, Expr text, KeyMaster text, foreignkey text)"_s,
              u"insert into CLMNS values "
              "('AGENTNAME','α',1,1,1,0,1,1,0,0,0,0,0,'AGENTNAME','POLICIES','','',''), "
              "('POLICYID','β',1,1,0,0,1,1,0,0,0,0,0,'POLICYID','POLICIES','','',''), "
              "('PREMIUM','γ',1,1,0,1,1,1,1,0,0,0,0,'PREMIUM','POLICIES','','','')"_s})
            connection->Execute(statement);
        columns({u"AGENTNAME"_s, u"POLICYID"_s, u"PREMIUM"_s});
        grid->setclmns(u"CLMNS"_s);
        logPlainEvents();
    }

    void logPlainEvents() {
#define ZKP_LOG(name)                                                                                        \
    QObject::connect(&grid->events(), &Events::name, [this] { log << QStringLiteral(#name); });
        ZKP_LOG(PrintCommand)
        ZKP_LOG(MenuExportTable)
        ZKP_LOG(MenuSaveTemplate)
        ZKP_LOG(MenuSaveTemplateAs)
        ZKP_LOG(MenuLoadTemplate)
        ZKP_LOG(addcolumn)
        ZKP_LOG(StartFilling)
#undef ZKP_LOG
        QObject::connect(&grid->events(), &Events::MenuTitle,
                         [this] { log << u"MenuTitle of <%1>"_s.arg(grid->PrintCaption()); });
        QObject::connect(&grid->events(), &Events::InsertColumn, [this] { log << u"InsertColumn"_s; });
        QObject::connect(&grid->events(), &Events::DelColumn, [this] { log << u"DelColumn"_s; });
    }

    MenuBar& bar() {
        return grid->Picture1();
    }
    void click(QStringView tool) {
        bar().click(tool);
    }

    /// A tool of a bar that is not the control's own, clicked there.
    void clickNamed(const QString& name) {
        Tool tool;
        tool.Name = name;
        bar().toolClicked.notify(tool);
    }

    QString told() {
        const QString all = log.join(u' ');
        log.clear();
        return all;
    }

    /// The names of all tools.
    QStringList tools() {
        QStringList names;
        for (const auto& band : bar().bands())
            for (const auto& tool : band->tools)
                names << tool->Name;
        names.removeDuplicates();
        return names;
    }
};

} // namespace

TEST_F(MenuCommandsTest, AToolRaisesItsEventHoweverItsNameIsWritten) {
    const struct {
        QString tool;
        QString event;
    } cases[] = {
        {u"mnuPrint"_s, u"PrintCommand"_s},
        {u"MNUPRINT"_s, u"PrintCommand"_s},
        {u"mnuprint   "_s, u"PrintCommand"_s},
        {u"  MnuPrint "_s, u"PrintCommand"_s},
        {u"mnuExport"_s, u"MenuExportTable"_s},
        {u"MNUEXPORT "_s, u"MenuExportTable"_s},
        {u"mnuSaveTemplate"_s, u"MenuSaveTemplate"_s},
        {u"mnuSaveTemplateAs"_s, u"MenuSaveTemplateAs"_s},
        {u"mnuSaveTemplateAS  "_s, u"MenuSaveTemplateAs"_s},
        {u"mnuLoadTemplate"_s, {}}, // no tool's name
        {u"mnu Print"_s, {}},
        {u"mnuPrint\t"_s, {}}, // blanks alone are taken off
        {u""_s, {}},
    };
    for (const auto& row : cases) {
        clickNamed(row.tool);
        EXPECT_EQ(told(), row.event) << qPrintable(row.tool);
    }
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(MenuCommandsTest, TheBarsOwnToolsAreHeard) {
    click(u"mnuPrint");
    click(u" MNUEXPORT ");
    EXPECT_EQ(told(), u"PrintCommand MenuExportTable"_s);
    EXPECT_TRUE(bar().isHeard(bar().Tools(u"mnuPrint")));
}

TEST_F(MenuCommandsTest, EachClickEndsInMenusThatFollowTheColumn) {
    Tool& left = bar().Tools(u"mnuAlignLeft");
    for (const char16_t* name : {u"mnuPrint", u"nothing", u"mnuTitle"}) {
        left.Enabled = false;
        clickNamed(QString::fromUtf16(name));
        EXPECT_TRUE(left.Enabled) << qPrintable(QString::fromUtf16(name));
    }
    grid->setCn({});
    left.Enabled = false;
    EXPECT_EQ(errorNumber([this] { click(u"mnuRefresh"); }), kErrPropertyNotSet);
    EXPECT_TRUE(left.Enabled) << "a command that fails is told to whoever clicked";
}

// --- Columns

TEST_F(MenuCommandsTest, TheColumnToolsRunTheirCommands) {
    const struct {
        QString tool;
        int columns;
        QString told;
    } cases[] = {
        {u"mnuAddColumn"_s, 4, u"addcolumn"_s},       {u"mnuInsertColumn"_s, 5, u"InsertColumn"_s},
        {u"MNUINSERTCOLUMN"_s, 6, u"InsertColumn"_s}, {u"mnuAddGroup"_s, 7, u"addcolumn"_s},
        {u"mnuInsertGroup"_s, 8, u"addcolumn"_s},     {u"mnuDelColumn"_s, 7, u"DelColumn"_s},
    };
    for (const auto& row : cases) {
        click(row.tool);
        EXPECT_EQ(grid->Cols(), row.columns) << qPrintable(row.tool);
        EXPECT_EQ(told(), row.told) << qPrintable(row.tool);
    }
    EXPECT_EQ(grid->GroupFactorCount(), 1) << "two added, one of them deleted";
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(MenuCommandsTest, AnAlignmentIsTheCurrentColumns) {
    const struct {
        QString tool;
        int alignment;
    } cases[] = {{u"mnuAlignCenter"_s, 3}, {u"mnuAlignRight"_s, 6}, {u"mnuAlignLeft"_s, 0}};
    grid->setColAlignment(2, 8);
    grid->setCol(1);
    for (const auto& row : cases) {
        EXPECT_EQ(keysOf([&] { click(row.tool); }), QStringList{u"ColAlignment"_s});
        EXPECT_EQ(grid->ColAlignment(1), row.alignment);
        EXPECT_EQ(grid->Columns().Item(2).Alignment, row.alignment);
        for (const auto& other : cases)
            EXPECT_EQ(bar().Tools(other.tool).Checked, other.tool == row.tool) << qPrintable(row.tool);
    }
    EXPECT_EQ(grid->ColAlignment(2), 8) << "no other column";
}

// --- Refresh

TEST_F(MenuCommandsTest, TheRefreshToolLoadsWhatTheHostHasNotHeldBack) {
    fill();
    click(u"mnuRefresh");
    EXPECT_EQ(told(), u"StartFilling"_s);
    EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(MenuCommandsTest, OutsideDesignModeHeldRowsStayAndTheDictionaryIsRead) {
    fill();
    grid->setRefreshOnChange(false);
    click(u"mnuRefresh");
    EXPECT_EQ(told(), QString());
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_EQ(bar().Tools(u"mnuField").ListCount(), 3);
}

TEST_F(MenuCommandsTest, InDesignModeTheRowsAreReadAndCanBePrinted) {
    fill();
    grid->setRefreshOnChange(false);
    grid->setDesignMode(true);
    click(u"mnuRefresh");
    EXPECT_EQ(told(), u"StartFilling"_s);
    EXPECT_TRUE(grid->RefreshOnChange());
    EXPECT_TRUE(bar().Tools(u"mnuPrint").Enabled);
}

// --- Sorting

TEST_F(MenuCommandsTest, EachSortToolHasOneDirection) {
    const struct {
        QString tool;
        QString order;
    } cases[] = {
        {u"mnuSort"_s, u"[POLICIES].[PREMIUM] ASC"_s},
        {u"mnuSort"_s, u"[POLICIES].[PREMIUM] ASC"_s}, // again: no turning round
        {u"mnuSortDesc"_s, u"[POLICIES].[PREMIUM] DESC"_s},
        {u"mnuSortDesc"_s, u"[POLICIES].[PREMIUM] DESC"_s},
        {u"mnuSortAsc"_s, u"[POLICIES].[PREMIUM] ASC"_s},
    };
    grid->setSqlOnRunTime(true);
    grid->Fill(connection, u"POLICIESDATA"_s, ZKP_Table_QUERY);
    grid->refresh();
    for (const auto& row : cases) {
        grid->setCol(2);
        click(row.tool);
        EXPECT_EQ(grid->OrderBy(), row.order) << qPrintable(row.tool);
    }
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(MenuCommandsTest, TheOtherRoadOfSortingSpellsItsDirectionInSmallLetters) {
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    grid->setCol(2);
    click(u"mnuSortDesc");
    EXPECT_EQ(grid->OrderBy(), u"[POLICIES].[PREMIUM] desc"_s);
    EXPECT_EQ(grid->TextMatrix(1, 2), u"1.234,50"_s);
}

TEST_F(MenuCommandsTest, AColumnWithoutAFieldIsSortedInPlaceInTheToolsDirection) {
    grid->setCols(4);
    grid->setColDataField(3, {});
    grid->setRefreshOnChange(false);
    grid->setRows(5);
    for (int row = 1; row < 5; ++row) {
        grid->setRowData(row, ZKPSingleRow);
        grid->setTextMatrix(row, 3, QString(1, QChar(u'a' + (row * 2) % 5))); // c e b d
    }
    const auto column = [this] {
        QString text;
        for (int row = 1; row < 5; ++row)
            text += grid->TextMatrix(row, 3);
        return text;
    };
    ASSERT_EQ(column(), u"cebd"_s);
    fill();
    grid->setCol(3);
    click(u"mnuSortAsc");
    EXPECT_EQ(column(), u"bcde"_s);
    click(u"mnuSortDesc");
    EXPECT_EQ(column(), u"edcb"_s);
}

// --- Title

TEST_F(MenuCommandsTest, TheTitleIsAskedForWithTheCurrentOne) {
    grid->setPrintCaption(u"Παραγωγή"_s);
    QStringList asked;
    host->onInputBox = [&](const QString& prompt, const QString& title, const QString& text) {
        asked = QStringList{prompt, title, text};
        return std::optional(u"Ζημιές"_s);
    };
    EXPECT_EQ(keysOf([this] { click(u"mnuTitle"); }), QStringList{u"PrintCaption"_s});
    EXPECT_EQ(asked,
              (QStringList{u"Τίτλος Υποδείγματος:"_s, u"Αλλαγή Τίτλου Υποδείγματος"_s, u"Παραγωγή"_s}));
    EXPECT_EQ(grid->PrintCaption(), u"Ζημιές"_s);
    EXPECT_EQ(grid->lbltemplate().Caption, u"Ζημιές"_s);
    EXPECT_EQ(told(), u"MenuTitle of <Ζημιές>"_s);
}

TEST_F(MenuCommandsTest, AnEmptyTitleIsTakenAndOnlyTheEventSaysSo) {
    const std::optional<QString> answers[] = {u""_s, u"   "_s, std::nullopt}; // the last is a cancel
    for (const auto& answer : answers) {
        grid->setPrintCaption(u"Παραγωγή"_s);
        host->onInputBox = [&](const QString&, const QString&, const QString&) { return answer; };
        EXPECT_EQ(keysOf([this] { click(u"mnuTitle"); }), QStringList());
        EXPECT_EQ(grid->PrintCaption(), answer.value_or(QString()));
        EXPECT_EQ(grid->lbltemplate().Caption, u"Παραγωγή"_s);
        EXPECT_EQ(told(), u"MenuTitle of <%1>"_s.arg(answer.value_or(QString())));
    }
}

// --- Colours and fonts

TEST_F(MenuCommandsTest, EachColourToolIsThatOfItsSection) {
    const struct {
        QString tool;
        QString property;
    } cases[] = {
        {u"mnuFixedBackColor"_s, u"BackColorFixed"_s},
        {u"mnuGroupedBackColor"_s, u"GroupedBackColor"_s},
        {u"mnuDetailsBackColor"_s, u"BackColor"_s},
        {u"mnuSubTotalsBackColor"_s, u"SubTotalsBackColor"_s},
        {u"mnuTotalsBackColor"_s, u"TotalsBackColor"_s},
        {u"mnuTitleBackColor"_s, u"TitleBackColor"_s},
        {u"mnuFixedForeColor"_s, u"ForeColorFixed"_s},
        {u"mnuGroupedForeColor"_s, u"GroupedForeColor"_s},
        {u"mnuDetailsForeColor"_s, u"ForeColor"_s},
        {u"mnuSubTotalsForeColor"_s, u"SubTotalsForeColor"_s},
        {u"mnuTotalsForeColor"_s, u"TotalsForeColor"_s},
        {u"mnuTitleForeColor"_s, u"TitleForeColor"_s},
        {u"mnuStoixeiaForeColor"_s, u"StoixeiaForeColor"_s},
    };
    Color next = 0x100;
    for (const auto& row : cases) {
        const Color chosen = ++next;
        host->onColorDialog = [&](Color) { return std::optional(chosen); };
        click(row.tool);
        EXPECT_EQ(grid->getMember(row.property).toUInt(), chosen) << qPrintable(row.tool);
    }
}

TEST_F(MenuCommandsTest, EachFontToolIsThatOfItsSection) {
    const struct {
        QString tool;
        QString property;
    } cases[] = {
        {u"mnuFixedFont"_s, u"FixedFontSize"_s},   {u"mnuGroupedFont"_s, u"GroupedFontSize"_s},
        {u"mnuDetailsFont"_s, u"FontSize"_s},      {u"mnuSubTotalsFont"_s, u"SubTotalsFontSize"_s},
        {u"mnuTotalsFont"_s, u"TotalsFontSize"_s},
    };
    double next = 20;
    for (const auto& row : cases) {
        const double chosen = ++next;
        host->onFontDialog = [&](const FontChoice& start) {
            FontChoice font = start;
            font.FontSize = chosen;
            return std::optional(font);
        };
        click(row.tool);
        EXPECT_EQ(grid->getMember(row.property).toDouble(), chosen) << qPrintable(row.tool);
    }
}

// --- Tools without a command

TEST_F(MenuCommandsTest, AToolWhoseCommandIsNotBuiltSaysSo) {
    for (const char16_t* name :
         {u"ExportToExcel", u"mnuGraph", u"mnuColumnProperties", u"mnuGraphProperties", u"mnuPrintGraph",
          u"mnubarGraph", u"mnuHorBarGraph", u"mnuAreaGraph", u"mnuLineGraph", u"mnuPieChart",
          u"mnuCylinderGraph", u"mnuGraphKonoi", u"mnuPyramidGraph"}) {
        Tool& tool = bar().Tools(name);
        tool.Enabled = true;
        host->messages.clear();
        click(name);
        EXPECT_EQ(boxes(), QStringList{u"Δεν υπάρχει ακόμη: "_s + tool.Caption});
    }
    EXPECT_EQ(told(), QString());
}

TEST_F(MenuCommandsTest, SomeToolsDoNothingWhenClicked) {
    for (const char16_t* name :
         {u"mnuGraphColumn", u"mnuGiantGraph", u"mnuField", u"mnuCaption", u"mnuTemplate", u"mnuColumn",
          u"mnuFormat", u"mnuBackColor", u"mnuForeColor", u"mnuFonts", u"txtRecs", u"miSeparator"}) {
        EXPECT_EQ(keysOf([&] { click(name); }), QStringList()) << qPrintable(QString::fromUtf16(name));
        EXPECT_EQ(told(), QString());
    }
    EXPECT_EQ(boxes(), QStringList());
}

// --- Awkward states

TEST_F(MenuCommandsTest, NoToolLeavesAControlUnusable) {
    host->onColorDialog = [](Color start) { return std::optional(start + 1); };
    host->onFontDialog = [](const FontChoice& start) { return std::optional(start); };
    const std::function<void(ZkpGrid&)> states[] = {
        [](ZkpGrid&) {},
        [](ZkpGrid& control) { control.setCn({}); },
        [](ZkpGrid& control) { control.setCn({}), control.setclmns({}); },
        [](ZkpGrid& control) { control.MSFlexGrid1().setCols(0); },
        [](ZkpGrid& control) { control.setCols(1); },
        [](ZkpGrid& control) { control.setCol(control.Cols() - 1); },
        [](ZkpGrid& control) { control.callMember(u"LockMenus"_s); },
        [](ZkpGrid& control) { control.setMenusVisible(false); },
        [](ZkpGrid& control) { control.setTotalForm(true); },
        [this](ZkpGrid& control) {
            connection->Execute(u"create table GONE as select * from CLMNS"_s);
            control.setclmns(u"GONE"_s);
            control.LoadDictionary();
            connection->Execute(u"drop table GONE"_s);
        },
    };
    for (const auto& bring : states)
        for (const QString& name : tools()) {
            grid = std::make_unique<ZkpGrid>(host);
            columns({u"AGENTNAME"_s, u"POLICYID"_s, u"PREMIUM"_s});
            grid->setclmns(u"CLMNS"_s);
            grid->setCn(connection);
            bring(*grid);
            errorOf([&] { click(name); }); // of the failures of the control's own kind, any will do
            EXPECT_TRUE(grid->Redraw()) << qPrintable(name);
            EXPECT_EQ(host->pointer(), kPointerDefault) << qPrintable(name);
            EXPECT_EQ(grid->MSFlexGrid1().inconsistency(), QString()) << qPrintable(name);
            grid->setCols(2);
            grid->setRows(3);
            grid->setRow(2);
            grid->setMenusVisible(true);
            grid->MenuRefresh();
        }
}

TEST_F(MenuCommandsTest, WithoutAColumnAnAlignmentIsNothing) {
    grid->setColAlignment(0, 3);
    grid->MSFlexGrid1().setCols(0);
    click(u"mnuAlignRight");
    EXPECT_EQ(grid->Columns().Item(1).Alignment, 3);
}

TEST_F(MenuCommandsTest, ADisabledToolIsNotRun) {
    grid->callMember(u"LockMenus"_s);
    click(u"mnuAddColumn");
    EXPECT_EQ(grid->Cols(), 3);
}

TEST_F(MenuCommandsTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::PrintCommand, [this] { grid.reset(); });
    bar().click(u"mnuPrint");
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(told(), u"PrintCommand"_s);
}

TEST_F(MenuCommandsTest, TheControlMayEndUnderTheBoxForItsTitle) {
    host->onInputBox = [this](const QString&, const QString&, const QString&) {
        grid.reset();
        return std::optional(u"Ζημιές"_s);
    };
    bar().click(u"mnuTitle");
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(told(), QString());
}

TEST_F(MenuCommandsTest, ABarThatOutlivesItsControlIsDead) {
    host->onInputBox = [this](const QString&, const QString&, const QString&) {
        MenuBar& left = bar();
        grid.reset();
        left.click(u"mnuPrint");
        return std::optional<QString>();
    };
    bar().click(u"mnuTitle");
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(told(), QString());
}
