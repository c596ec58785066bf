#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

// The properties that do more than store and report, or less.

using PropertyExceptionsTest = GridTest;

TEST_F(PropertyExceptionsTest, PrintCenterStaysFalseAndReportsAChange) {
    EXPECT_EQ(keysOf([&] { grid->setPrintCenter(true); }), QStringList{u"PrintCenter"_s});
    EXPECT_FALSE(grid->PrintCenter());
}

TEST_F(PropertyExceptionsTest, PrintCaptionStandsOnItsLabelBeforeItIsReported) {
    QStringList labels;
    QObject::connect(&grid->events(), &Events::PropertyChanged,
                     [&](PropertyArgs&) { labels << grid->lbltemplate().Caption; });
    EXPECT_EQ(keysOf([&] { grid->setPrintCaption(u"Συμβόλαια"_s); }), QStringList{u"PrintCaption"_s});
    EXPECT_EQ(labels, QStringList{u"Συμβόλαια"_s});
    grid->lbltemplate().Caption = u"άλλο"_s;
    EXPECT_EQ(grid->PrintCaption(), u"Συμβόλαια"_s) << "the label is not where it is stored";
    grid->setPrintFilter(u"φίλτρο"_s);
    EXPECT_NE(grid->lblfilter().Caption, u"φίλτρο"_s) << "the filter's text is only stored";
}

TEST_F(PropertyExceptionsTest, RecordSourceIsGivenAsTextAndReadAsTheOpenRecords) {
    EXPECT_EQ(keysOf([&] { grid->setRecordSource(u"SELECT 1"_s); }), QStringList{});
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
    EXPECT_EQ(grid->RecordsourceSTR(), u"SELECT 1"_s);
}

TEST_F(PropertyExceptionsTest, TheFontIsAllSixOfItsPropertiesInOneChange) {
    int told = 0;
    const Listening view = grid->MSFlexGrid1().views.add({.changed = [&] { ++told; }});
    grid->setFont({u"Serif"_s, 9.5, true, true, true, true});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(grid->FontName(), u"Serif"_s);
    EXPECT_EQ(grid->FontSize(), 9.5);
    EXPECT_TRUE(grid->FontBold() && grid->FontItalic() && grid->FontUnderline() && grid->FontStrikethru());
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(1, 1).fontName, u"Serif"_s);
    grid->setFontItalic(false);
    EXPECT_EQ(grid->Font(), (BagFont{u"Serif"_s, 9.5, true, false, true, true}));
}

TEST_F(PropertyExceptionsTest, ThePanelPassesToTheSurfaceInSilence) {
    EXPECT_EQ(keysOf([&] { grid->setPanel(u"α"_s); }), QStringList{});
    EXPECT_EQ(grid->MSFlexGrid1().look().Panel, QVariant(u"α"_s));
}

TEST_F(PropertyExceptionsTest, ColsKeepsOneEntryOfColumnsForEachColumn) {
    for (const int count : {5, 3, 7}) {
        EXPECT_EQ(keysOf([&] { grid->setCols(count); }), QStringList{u"Cols"_s});
        EXPECT_EQ(grid->Columns().Count(), count);
    }
    EXPECT_EQ(keysOf([&] { grid->setCols(0); }), QStringList{});
    EXPECT_EQ(grid->Cols(), 7);
}

TEST_F(PropertyExceptionsTest, ColumnPropertiesLieInTheEntryBehindTheirPosition) {
    grid->setCols(4);
    grid->setColTotals(2, true);
    EXPECT_TRUE(grid->Columns().Item(3).Totals);
    EXPECT_FALSE(grid->Columns().Item(2).Totals);
    grid->Columns().Item(1).Datafield = u"REGION"_s;
    EXPECT_EQ(grid->ColDataField(0), u"REGION"_s);
}

TEST_F(PropertyExceptionsTest, AWidthOtherThanZeroShowsAHiddenColumnAgain) {
    grid->setColWidth(1, 0);
    EXPECT_TRUE(grid->MSFlexGrid1().ColHidden(1));
    EXPECT_EQ(keysOf([&] { grid->setColWidth(1, 900); }), QStringList{u"ColWidth"_s});
    EXPECT_FALSE(grid->MSFlexGrid1().ColHidden(1));
    EXPECT_EQ(grid->ColWidth(1), 900);
}

TEST_F(PropertyExceptionsTest, MinRowsPaintsAlternatingRows) {
    grid->setRowByRow(true);
    grid->setRow1BackColor(0x00112233);
    grid->setMinRows(6);
    EXPECT_EQ(grid->Rows(), 6);
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(5, 1).backColor, 0x00112233u);
    EXPECT_NE(grid->MSFlexGrid1().styleAt(4, 1).backColor, 0x00112233u);
}

TEST_F(PropertyExceptionsTest, FreezingLeavesTheCurrentCellAtTheEndOfTheFrozenRow) {
    grid->setRows(4);
    grid->setCols(3);
    grid->setRow(3);
    grid->setFrozenRow(true);
    grid->setFreezeBackColor(0x00222222);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->Col(), 2);
}

TEST_F(PropertyExceptionsTest, EachPartOfTheFixedFontPaintsTheHeadingBeforeItIsReported) {
    const auto heading = [this] { return grid->MSFlexGrid1().styleAt(0, 1); };
    CellStyle seen;
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs&) { seen = heading(); });
    grid->setFixedFontName(u"Serif"_s);
    EXPECT_EQ(seen.fontName, u"Serif"_s);
    grid->setFixedFontSize(12);
    EXPECT_EQ(seen.fontSize, 12);
    grid->setFixedFontBold(false);
    EXPECT_FALSE(seen.bold);
    grid->setFixedFontItalic(true);
    EXPECT_TRUE(seen.italic);
    grid->setFixedFontUnderline(true);
    EXPECT_TRUE(seen.underline);
    grid->setFixedFontStrikethru(true);
    EXPECT_FALSE(seen.strikethru) << "this one is only stored, as wanted";
}

TEST_F(PropertyExceptionsTest, AHandlerOfAChangeMayDestroyTheControl) {
    for (const char* name :
         {"Font", "TemplateMenuVisible", "RefreshOnChange", "PrintCaption", "FixedFontSize"}) {
        auto doomed = std::make_unique<ZkpGrid>(host);
        QObject::connect(&doomed->events(), &Events::PropertyChanged, [&](PropertyArgs&) { doomed.reset(); });
        ZkpGrid* control = doomed.get();
        control->setProperty(name, control->property(name));
        EXPECT_EQ(doomed, nullptr) << name;
    }
}
