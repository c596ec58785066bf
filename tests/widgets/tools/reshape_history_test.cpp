#include "widgets/tools/reshape_history.h"

#include "grid_fixture.h"

#include <QVariant>

namespace {

using namespace zkp;

/// A control of three columns, the first of them a group factor; no data.
class ReshapeTest : public GridTest {
protected:
    ReshapeTest() {
        grid->setCols(3);
        for (int c = 0; c < 3; ++c) {
            grid->setColDataField(c, QStringLiteral("FIELD%1").arg(c));
            grid->setColCaption(c, QStringLiteral("Στήλη %1").arg(c));
        }
        grid->setColForTot(0, true);
        grid->CheckGroupBy();
        history.begin(now());
    }
    ReshapeSnapshot now() { return ReshapeSnapshot::of(*grid); }
    bool note() { return history.note(now()); }
    void undo() { bringBack(history.undo()); }
    void redo() { bringBack(history.redo()); }
    void bringBack(const ReshapeSnapshot& shape) {
        shape.restore(*grid);
        EXPECT_TRUE(now().isSameShape(shape));
        EXPECT_EQ(now().refreshesOnChange, shape.refreshesOnChange);
        history.settle(now());
    }
    QStringList fields() {
        QStringList all;
        for (int c = 0; c < grid->Cols(); ++c)
            all += grid->ColDataField(c).trimmed();
        return all;
    }
    QString heading(int col) { return grid->TextMatrix(0, col); }

    ReshapeHistory history;
};

TEST_F(ReshapeTest, NothingChangedIsNoStep) {
    EXPECT_FALSE(note());
    grid->setRow(1);
    grid->setFilter(QStringLiteral("A=1"));
    grid->setRefreshOnChange(false);
    grid->Columns().Item(1).BestWidth = Currency::fromWhole(77);
    EXPECT_FALSE(note()) << "none of these is the report's shape";
    EXPECT_FALSE(history.canUndo());
}

TEST_F(ReshapeTest, ColoursAndFontsComeBack) {
    const Color before = grid->SubTotalsBackColor();
    grid->setSubTotalsBackColor(0x123456);
    grid->setTotalsFontName(QStringLiteral("DejaVu Sans"));
    grid->setTotalsFontSize(11.5);
    EXPECT_TRUE(note());
    grid->setBackColor(0xABCDEF);
    EXPECT_TRUE(note());
    undo();
    EXPECT_NE(grid->BackColor(), 0xABCDEFu);
    EXPECT_EQ(grid->SubTotalsBackColor(), 0x123456u);
    undo();
    EXPECT_EQ(grid->SubTotalsBackColor(), before);
    EXPECT_EQ(grid->TotalsFontName(), QStringLiteral("Arial"));
    EXPECT_EQ(grid->TotalsFontSize(), 8);
    EXPECT_FALSE(history.canUndo());
    redo();
    redo();
    EXPECT_EQ(grid->BackColor(), 0xABCDEFu);
    EXPECT_EQ(grid->TotalsFontSize(), 11.5);
    EXPECT_FALSE(history.canRedo());
}

TEST_F(ReshapeTest, AnInsertedColumnGoesWithItsHeading) {
    grid->InsertColumn(1);
    grid->setColCaption(1, QStringLiteral("Νέα"));
    EXPECT_TRUE(note());
    undo();
    EXPECT_EQ(fields(),
              QStringList({QStringLiteral("FIELD0"), QStringLiteral("FIELD1"), QStringLiteral("FIELD2")}));
    EXPECT_EQ(heading(1), QStringLiteral("Στήλη 1"));
    EXPECT_EQ(heading(2), QStringLiteral("Στήλη 2"));
    redo();
    EXPECT_EQ(grid->Cols(), 4);
    EXPECT_EQ(heading(1), QStringLiteral("Νέα"));
    EXPECT_EQ(heading(3), QStringLiteral("Στήλη 2"));
}

TEST_F(ReshapeTest, ADeletedColumnComesBackToTheLastMember) {
    Column& column = grid->Columns().Item(3);
    column.EditRs = QStringLiteral("δοκιμή");
    column.Credit = true; // no getter tells it
    column.BestWidth = Currency::fromWhole(12);
    grid->setColAlignment(2, 7);
    grid->setColWidth(2, 1777);
    note();
    grid->setCols(2);
    EXPECT_TRUE(note());
    undo();
    ASSERT_EQ(grid->Cols(), 3);
    EXPECT_EQ(grid->Columns().Item(3).EditRs, QStringLiteral("δοκιμή"));
    EXPECT_TRUE(grid->Columns().Item(3).Credit);
    EXPECT_EQ(grid->Columns().Item(3).BestWidth, Currency::fromWhole(12));
    EXPECT_EQ(grid->Columns().Item(3).Alignment, 7) << "as stored";
    EXPECT_EQ(grid->ColAlignment(2), 6) << "as shown";
    EXPECT_EQ(grid->ColWidth(2), 1777);
    EXPECT_EQ(heading(2), QStringLiteral("Στήλη 2"));
}

TEST_F(ReshapeTest, AHiddenColumnShowsAgain) {
    grid->setColWidth(1, 900);
    note();
    grid->setColWidth(1, 0);
    EXPECT_TRUE(note());
    undo();
    EXPECT_FALSE(grid->MSFlexGrid1().ColHidden(1));
    EXPECT_EQ(grid->ColWidth(1), 900);
}

TEST_F(ReshapeTest, AFactorIsCountedAgain) {
    grid->setColForTot(1, true);
    grid->CheckGroupBy();
    EXPECT_TRUE(note());
    EXPECT_EQ(grid->GroupFactorCount(), 2);
    undo();
    EXPECT_EQ(grid->GroupFactorCount(), 1);
    EXPECT_EQ(grid->Groupby(), QStringLiteral("FIELD0"));
}

TEST_F(ReshapeTest, WhetherAChangeReadsDataComesBackToo) {
    grid->setRefreshOnChange(false);
    grid->setColWidth(1, 900);
    EXPECT_TRUE(note());
    undo();
    EXPECT_TRUE(grid->RefreshOnChange());
}

TEST_F(ReshapeTest, OnlyColumnsFieldsFactorsAndOrderMakeOtherRows) {
    const ReshapeSnapshot before = now();
    grid->setColWidth(1, 900);
    grid->setColCaption(1, QStringLiteral("Άλλη"));
    grid->setColAlignment(1, 3);
    grid->setGridColor(7);
    EXPECT_TRUE(now().hasSameRows(before));
    grid->setOrderBy(QStringLiteral("FIELD1 ASC"));
    EXPECT_FALSE(now().hasSameRows(before));
    grid->setOrderBy({});
    EXPECT_TRUE(now().hasSameRows(before));
    grid->setColDataField(1, QStringLiteral("OTHER"));
    EXPECT_FALSE(now().hasSameRows(before));
    before.restore(*grid);
    grid->setColForTot(1, true);
    EXPECT_FALSE(now().hasSameRows(before));
    before.restore(*grid);
    grid->setCols(4);
    EXPECT_FALSE(now().hasSameRows(before));
}

TEST_F(ReshapeTest, WhatIsTypedIntoACaptionIsOneStep) {
    for (const char16_t* typed : {u"Σ", u"Συ", u"Σύνολο"}) {
        grid->setColCaption(1, QString::fromUtf16(typed));
        note();
    }
    grid->setColCaption(2, QStringLiteral("Τ"));
    note();
    undo();
    EXPECT_EQ(heading(2), QStringLiteral("Στήλη 2"));
    EXPECT_EQ(heading(1), QStringLiteral("Σύνολο"));
    undo();
    EXPECT_EQ(heading(1), QStringLiteral("Στήλη 1"));
    EXPECT_FALSE(history.canUndo());
}

TEST_F(ReshapeTest, ACaptionTypedAfterAnUndoIsAStepOfItsOwn) {
    grid->setColCaption(1, QStringLiteral("Α"));
    note();
    grid->setColWidth(1, 900);
    note();
    undo();
    grid->setColCaption(1, QStringLiteral("ΑΒ"));
    note();
    EXPECT_FALSE(history.canRedo());
    undo();
    EXPECT_EQ(heading(1), QStringLiteral("Α"));
}

TEST_F(ReshapeTest, ANewStepDropsWhatWasUndone) {
    grid->setColWidth(1, 900);
    note();
    undo();
    EXPECT_TRUE(history.canRedo());
    grid->setColWidth(2, 900);
    note();
    EXPECT_FALSE(history.canRedo());
    undo();
    EXPECT_FALSE(history.canUndo());
    EXPECT_NE(grid->ColWidth(2), 900);
}

TEST_F(ReshapeTest, TheLastFiftyStepsAreKept) {
    for (int step = 1; step <= 60; ++step) {
        grid->setColWidth(1, 1000 + step);
        note();
    }
    int steps = 0;
    for (; history.canUndo(); ++steps)
        undo();
    EXPECT_EQ(steps, 50);
    EXPECT_EQ(grid->ColWidth(1), 1010);
}

/// Every setter of the property list that a shape takes is one that comes back.
TEST_F(ReshapeTest, EveryPropertyOfTheListThatChangesAloneComesBack) {
    const auto all = now().properties;
    EXPECT_GT(all.size(), 100u);
    const QList<const char*> colours{"FrameBackColor", "GroupedForecolor", "Row1BackColor",  "TitleForecolor",
                                     "GridColorFixed", "BackColorBkg",     "FreezeBackColor"};
    for (const char* name : colours) {
        const QVariant before = grid->property(name);
        ASSERT_TRUE(before.isValid()) << name;
        grid->setProperty(name, QVariant::fromValue<Color>(0x010203));
        EXPECT_TRUE(note()) << name;
        undo();
        EXPECT_EQ(grid->property(name), before) << name;
    }
}

} // namespace
