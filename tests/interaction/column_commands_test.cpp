#include "column_commands_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

TEST_F(ColumnCommandsTest, AnAddedColumnStandsAtTheEndAndIsTheCurrentOne) {
    grid->setRedraw(false);
    EXPECT_EQ(keysOf([&] { grid->mnuAddColumn_Click(); }),
              (QStringList{u"Cols"_s, u"ColForTot"_s, u"Refreshonchange"_s, u"Col"_s}));
    EXPECT_EQ(shape(), u"aAa1|bBb1|cCc1|dDd1| "_s);
    EXPECT_EQ(grid->Columns().Count(), 5);
    EXPECT_EQ(grid->Col(), 4);
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_FALSE(grid->Picture1().Tools(u"mnuPrint").Enabled) << "what was not read is not printed";
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(host->pointer(), kPointerDefault);
    EXPECT_EQ(log, QStringList{u"addcolumn"_s});
}

TEST_F(ColumnCommandsTest, AnInsertedColumnStandsWhereTheMouseWasPressed) {
    press(2);
    grid->mnuInsert_Click();
    EXPECT_EQ(shape(), u"aAa1|bBb1|  |cCc1|dDd1"_s) << "its field and caption are one blank";
    EXPECT_EQ(grid->ColWidth(2), 1000);
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_EQ(log, QStringList{u"InsertColumn 2"_s});
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(ColumnCommandsTest, AHandlerOfTheInsertionMayNameAnotherColumnAsClicked) {
    press(2);
    const auto once =
        QObject::connect(&grid->events(), &Events::InsertColumn, [](ColumnArgs& e) { e.WhatCol = 0; });
    grid->mnuInsert_Click();
    QObject::disconnect(once);
    grid->mnuInsert_Click();
    EXPECT_EQ(shape(), u"  |aAa1|bBb1|  |cCc1|dDd1"_s);
}

TEST_F(ColumnCommandsTest, AnInsertionPastTheEndShowsABoxAndLeavesTheTwoInStep) {
    press(3);
    grid->setCols(2);
    grid->mnuInsert_Click();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(grid->Columns().Count(), grid->Cols());
}

TEST_F(ColumnCommandsTest, AnAddedGroupStandsBehindTheOthers) {
    factors(1);
    grid->setCol(3);
    grid->setRedraw(false);
    grid->mnuAddOmadopoihsh_Click();
    EXPECT_EQ(shape(), u"a*Aa1| * |bBb1|cCc1|dDd1"_s);
    EXPECT_EQ(grid->GroupFactorCount(), 2);
    EXPECT_EQ(grid->Groupby(), u"a"_s) << "the new one has no field yet";
    EXPECT_EQ(grid->Col(), 1);
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(log, QStringList{u"addcolumn"_s});
}

TEST_F(ColumnCommandsTest, TheFlagsCountAndNotAnOldCount) {
    grid->setColForTot(0, true);
    grid->setColForTot(1, true);
    ASSERT_EQ(grid->GroupFactorCount(), 0);
    grid->mnuAddOmadopoihsh_Click();
    EXPECT_EQ(shape(), u"a*Aa1|b*Bb1| * |cCc1|dDd1"_s);
}

TEST_F(ColumnCommandsTest, TheHeadingOfANewGroupTakesTheFixedFontButForItsName) {
    grid->setFixedFontName(u"Courier New"_s);
    grid->setFixedFontSize(13);
    grid->setFixedFontBold(false);
    grid->setFixedFontItalic(true);
    grid->setFixedFontUnderline(true);
    grid->setFont({u"Verdana"_s, 9}); // the whole surface, headings included
    grid->mnuAddOmadopoihsh_Click();
    const CellStyle style = surface().styleAt(0, 0);
    EXPECT_EQ(style.fontName, u"Verdana"_s);
    EXPECT_EQ(style.fontSize, 13);
    EXPECT_FALSE(style.bold);
    EXPECT_TRUE(style.italic);
    EXPECT_TRUE(style.underline);
    EXPECT_EQ(surface().styleAt(0, 1).fontSize, 9);
}

TEST_F(ColumnCommandsTest, AnInsertedGroupStandsAtTheCurrentColumn) {
    factors(2);
    press(3);
    grid->setCol(1);
    grid->mnuInsertOmadopoihsh_Click();
    EXPECT_EQ(shape(), u"a*Aa1| * |b*Bb1|cCc1|dDd1"_s);
    EXPECT_EQ(grid->GroupFactorCount(), 3);
    EXPECT_EQ(grid->Col(), 1);
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_EQ(log, QStringList{u"addcolumn"_s});
    grid->mnuInsert_Click();
    EXPECT_EQ(log.last(), u"InsertColumn 1"_s) << "the current column counts as clicked last";
}

TEST_F(ColumnCommandsTest, WithNoRoomForAColumnNoOtherBecomesAGroup) {
    grid->setCols(32767);
    grid->mnuAddOmadopoihsh_Click();
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_FALSE(grid->ColForTot(0));
    EXPECT_EQ(log, QStringList());
}

TEST_F(ColumnCommandsTest, DataOfALoadedReportStayUnderTheirHeadings) {
    columns({u"POLICYID"_s, u"AGENTNAME"_s, u"RATE"_s});
    fill();
    grid->refresh();
    grid->setCol(1);
    press(0);
    grid->mnuInsert_Click();
    grid->setCol(2);
    grid->mnuDelete_Click();
    EXPECT_EQ(grid->TextMatrix(0, 1), u"POLICYID"_s);
    EXPECT_EQ(grid->TextMatrix(3, 1), u"3"_s);
    EXPECT_EQ(grid->TextMatrix(0, 2), u"RATE"_s);
    EXPECT_EQ(grid->TextMatrix(3, 2), u"12,5"_s);
    EXPECT_EQ(grid->Cols(), 3);
}

TEST_F(ColumnCommandsTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::addcolumn, [this] { grid.reset(); });
    grid->mnuAddOmadopoihsh_Click();
    EXPECT_EQ(grid, nullptr);
}

} // namespace
