#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using FrontDoorTest = GridTest;

TEST_F(FrontDoorTest, AFreshControlHasItsDefaults) {
    EXPECT_EQ(grid->Filter(), u""_s);
    EXPECT_TRUE(grid->RefreshOnChange());
    EXPECT_TRUE(grid->EuroVer());
    EXPECT_TRUE(grid->MenusVisible());
    EXPECT_TRUE(grid->ChoicesVisible());
    EXPECT_TRUE(grid->DisplayTotals());
    EXPECT_TRUE(grid->Print_Colors() && grid->Print_Lines() && grid->Print_Filter() && grid->Print_Date());
    EXPECT_TRUE(grid->StoixeiaUnderLine() && grid->StoixeiaOnEveryPage());
    EXPECT_EQ(grid->MinRows(), 3);
    EXPECT_FALSE(grid->SqlOnRunTime());
    EXPECT_EQ(grid->PrintCaption(), u" "_s);
    EXPECT_EQ(grid->PrintFilter(), u" "_s);
    EXPECT_EQ(grid->CommandTimeout(), 30);
    EXPECT_EQ(grid->BackStyle(), 0);
    EXPECT_FALSE(grid->FontTransparent());
    EXPECT_EQ(grid->FormatString(), u""_s);
    EXPECT_TRUE(grid->Idle());
    EXPECT_FALSE(grid->sortOut());
    EXPECT_EQ(grid->PreRow(), 0);
    EXPECT_EQ(grid->FreezeBackColor(), systemColor(4));
    EXPECT_EQ(grid->Row1BackColor(), systemColor(15));
    EXPECT_EQ(grid->Row1ForeColor(), systemColor(18));
}

TEST_F(FrontDoorTest, FontGroupsStartAsArialEight) {
    EXPECT_EQ(grid->FontName(), u"Arial"_s);
    EXPECT_EQ(grid->FontSize(), 8);
    EXPECT_FALSE(grid->FontBold() || grid->FontItalic() || grid->FontUnderline() || grid->FontStrikethru());
    for (const QString& name : {grid->FixedFontName(), grid->GroupedFontName(), grid->TitleFontName(),
                                grid->StoixeiaFontName(), grid->SubTotalsFontName(), grid->TotalsFontName()})
        EXPECT_EQ(name, u"Arial"_s);
    for (const double size : {grid->FixedFontSize(), grid->GroupedFontSize(), grid->TitleFontSize(),
                              grid->StoixeiaFontSize(), grid->SubTotalsFontSize(), grid->TotalsFontSize()})
        EXPECT_EQ(size, 8);
    for (const bool on :
         {grid->FixedFontItalic(), grid->FixedFontUnderline(), grid->FixedFontStrikethru(),
          grid->GroupedFontItalic(), grid->GroupedFontUnderline(), grid->GroupedFontStrikethru(),
          grid->TitleFontItalic(), grid->TitleFontUnderline(), grid->StoixeiaFontItalic(),
          grid->StoixeiaFontUnderline(), grid->SubTotalsFontItalic(), grid->SubTotalsFontUnderline(),
          grid->SubTotalsFontStrikethru(), grid->TotalsFontItalic(), grid->TotalsFontUnderline(),
          grid->TotalsFontStrikethru()})
        EXPECT_FALSE(on);
    EXPECT_TRUE(grid->FixedFontBold() && grid->GroupedFontBold());
    EXPECT_TRUE(grid->SubTotalsFontBold() && grid->TotalsFontBold());
    EXPECT_FALSE(grid->TitleFontBold() || grid->StoixeiaFontBold());
}

TEST_F(FrontDoorTest, RowsEqualToFixedRowsForgetsTheMark) {
    grid->setPreRow(1);
    grid->setRows(5);
    EXPECT_EQ(grid->PreRow(), 1);
    EXPECT_EQ(keysOf([&] { grid->setRows(1); }), QStringList{u"Rows"_s});
    EXPECT_EQ(grid->PreRow(), 0);
}

TEST_F(FrontDoorTest, RowsOutsideIsAnError) {
    EXPECT_EQ(errorNumber([&] { grid->setRows(-1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->TextMatrix(99, 0); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->TextMatrix(0, 99); }), kErrInvalidColumn);
}

TEST_F(FrontDoorTest, RowBeyondTheLastGrowsTheGridAndIsThenDropped) {
    grid->setRows(3);
    EXPECT_EQ(keysOf([&] { grid->setRow(7); }), QStringList{u"Row"_s});
    EXPECT_EQ(grid->Rows(), 7);
    EXPECT_NE(grid->Row(), 7);
    grid->setRow(4);
    EXPECT_EQ(grid->Row(), 4);
    EXPECT_EQ(grid->Rows(), 7);
}

TEST_F(FrontDoorTest, ClearEmptiesCellsAndKeepsRowsAndColumns) {
    grid->setRows(4);
    grid->setTextMatrix(2, 1, u"x"_s);
    grid->Clear();
    EXPECT_EQ(grid->TextMatrix(2, 1), u""_s);
    EXPECT_EQ(grid->Rows(), 4);
    EXPECT_EQ(grid->Cols(), 2);
}

TEST_F(FrontDoorTest, ClearGridLeavesMinRowsBlankRowsAndTheFirstOneCurrent) {
    grid->setRows(10);
    grid->setTextMatrix(1, 0, u"x"_s);
    grid->setBackColor(0x00ABCDEF);
    grid->setForeColor(0x00123456);
    grid->setMinRows(5);
    grid->ClearGrid();
    EXPECT_EQ(grid->Rows(), 5);
    EXPECT_EQ(grid->TextMatrix(1, 0), u""_s);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->PreBackColor(), 0x00ABCDEFu);
    EXPECT_EQ(grid->PreForeColor(), 0x00123456u);
}

TEST_F(FrontDoorTest, ClearGridPassesOverErrors) {
    grid->setMinRows(0); // fewer rows than fixed ones: refused, and passed over
    grid->ClearGrid();
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(FrontDoorTest, AddItemAndRemoveItem) {
    grid->setRows(2);
    grid->AddItem(u"τέλος"_s);
    ASSERT_EQ(grid->Rows(), 3);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"τέλος"_s);
    grid->AddItem(u"α\tβ"_s, 1);
    EXPECT_EQ(grid->TextMatrix(1, 0), u"α"_s);
    EXPECT_EQ(grid->TextMatrix(1, 1), u"β"_s);
    EXPECT_EQ(grid->TextMatrix(3, 0), u"τέλος"_s);
    EXPECT_EQ(errorNumber([&] { grid->AddItem(u"x"_s, -1); }), kErrInvalidRow);
    grid->RemoveItem(1);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"τέλος"_s);
    EXPECT_EQ(errorNumber([&] { grid->RemoveItem(50); }), kErrInvalidRow);
}

TEST_F(FrontDoorTest, MinRowsIsTheFloorOfTheRows) {
    grid->setRows(2);
    EXPECT_EQ(keysOf([&] { grid->setMinRows(6); }), QStringList{u"MinRows"_s});
    EXPECT_EQ(grid->Rows(), 6);
    grid->setMinRows(2);
    EXPECT_EQ(grid->Rows(), 6);
}

TEST_F(FrontDoorTest, FreezeBackColorPaintsAFrozenFirstRow) {
    grid->setRows(3);
    grid->setFreezeBackColor(0x00111111);
    EXPECT_NE(grid->MSFlexGrid1().styleAt(1, 0).backColor, 0x00111111u);
    grid->setFrozenRow(true);
    EXPECT_EQ(keysOf([&] { grid->setFreezeBackColor(0x00222222); }), QStringList{u"FreezeBackColor"_s});
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(1, 0).backColor, 0x00222222u);
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(1, 1).backColor, 0x00222222u);
    EXPECT_NE(grid->MSFlexGrid1().styleAt(2, 0).backColor, 0x00222222u);
}

TEST_F(FrontDoorTest, FreezeBackColorOnAHeaderOnlyGridMakesNoRow) {
    grid->setRows(1);
    grid->setFrozenRow(true);
    grid->setFreezeBackColor(0x00222222);
    EXPECT_EQ(grid->Rows(), 1);
}

TEST_F(FrontDoorTest, FixedFontsRepaintTheHeadingRow) {
    EXPECT_EQ(keysOf([&] { grid->setFixedFontSize(11); }), QStringList{u"FixedFontSize"_s});
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(0, 1).fontSize, 11);
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(1, 1).fontSize, 8);
}

TEST_F(FrontDoorTest, RefreshOnChangeReportsItsOwnSpelling) {
    EXPECT_EQ(keysOf([&] { grid->setRefreshOnChange(false); }), QStringList{u"Refreshonchange"_s});
}

TEST_F(FrontDoorTest, EndingTheControlReleasesTheDictionaryAndRunTimeStatements) {
    grid->setSqlOnRunTime(true);
    grid->UserControl_Terminate();
    EXPECT_FALSE(grid->SqlOnRunTime());
}
