#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using ColumnPropertiesTest = GridTest;

TEST(ColumnList, AnItemMovesAmongTheOthersAsTheSameRecord) {
    ColumnList list;
    for (const QString& caption : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        list.Add().Caption = caption;
    const Column* moved = &list.Item(2);
    const auto order = [&] {
        QString captions;
        for (int number = 1; number <= list.Count(); ++number)
            captions += list.Item(number).Caption;
        return captions;
    };
    list.Move(2, 4);
    EXPECT_EQ(order(), u"acdb"_s);
    list.Move(4, 1);
    EXPECT_EQ(order(), u"bacd"_s);
    list.Move(1, 1);
    EXPECT_EQ(order(), u"bacd"_s);
    EXPECT_EQ(&list.Item(1), moved);
    EXPECT_EQ(errorNumber([&] { list.Move(1, 5); }), kErrSubscript);
    EXPECT_EQ(errorNumber([&] { list.Move(0, 1); }), kErrSubscript);
}

TEST_F(ColumnPropertiesTest, ANewControlHasTwoDefaultColumns) {
    ASSERT_EQ(grid->Cols(), 2);
    ASSERT_EQ(grid->Columns().Count(), 2);
    const Column& column = grid->Columns().Item(1);
    EXPECT_EQ(column.Caption, u" "_s);
    EXPECT_EQ(column.Datafield, u" "_s);
    EXPECT_EQ(column.Width, 1250);
    EXPECT_EQ(column.Alignment, 0);
    EXPECT_EQ(column.EditRs, u" "_s);
    EXPECT_EQ(column.EditTag, u" "_s);
    EXPECT_EQ(column.EditField1, u" "_s);
    EXPECT_EQ(column.EditField2, u" "_s);
    EXPECT_FALSE(column.Editable);
    EXPECT_EQ(column.BestWidth, Currency{});
}

TEST_F(ColumnPropertiesTest, EachOfTheFamilyStoresAndReportsItsOwnKey) {
    // Member, key, write, read back: one row for each accessor that only stores.
    struct Case {
        QString key;
        std::function<void()> write;
        std::function<bool()> holds;
    };
    const Column& column = grid->Columns().Item(2);
#define FLAG(Name, Member)                                                                                   \
    Case {                                                                                                   \
        QStringLiteral(#Name), [&] { grid->set##Name(1, true); },                                            \
            [&] { return grid->Name(1) && column.Member && !grid->Name(0); }                                 \
    }
#define TEXT(Name, Member)                                                                                   \
    Case {                                                                                                   \
        QStringLiteral(#Name), [&] { grid->set##Name(1, u"x"_s); },                                          \
            [&] { return grid->Name(1) == u"x"_s && column.Member == u"x"_s && grid->Name(0) == u" "_s; }    \
    }
#define NUMBER(Name, Member)                                                                                 \
    Case {                                                                                                   \
        QStringLiteral(#Name), [&] { grid->set##Name(1, 3); },                                               \
            [&] { return grid->Name(1) == 3 && column.Member == 3 && grid->Name(0) == 0; }                   \
    }
    const Case cases[] = {
        FLAG(ColAvrg, Avrg),
        FLAG(ColBalance, Balance),
        FLAG(ColCalcEuro, calcEuro),
        FLAG(Colcnt, cnt),
        TEXT(ColDataField, Datafield),
        FLAG(ColDebit, Debit),
        FLAG(ColEditable, Editable),
        TEXT(ColEditField1, EditField1),
        TEXT(ColEditField2, EditField2),
        NUMBER(ColEditKind, EditKind),
        NUMBER(ColEditLength, EditLength),
        TEXT(ColEditRs, EditRs),
        TEXT(ColEditTag, EditTag),
        FLAG(ColForSize, ForSize),
        FLAG(ColForTot, ForTot),
        FLAG(ColIndexKey, Index_Key),
        FLAG(ColLR, lR),
        FLAG(ColPercnt, PerCnt),
        FLAG(ColPerSize, PerSize),
        FLAG(ColStatic, Stat_ic),
        FLAG(ColTotals, Totals),
    };
    EXPECT_EQ(std::size(cases), 21u);
    for (const Case& c : cases) {
        EXPECT_EQ(keysOf(c.write), QStringList{c.key});
        EXPECT_TRUE(c.holds()) << c.key.toStdString();
    }
}

TEST_F(ColumnPropertiesTest, ColCreditStoresAndAlwaysAnswersFalse) {
    EXPECT_EQ(keysOf([&] { grid->setColCredit(0, true); }), QStringList{u"ColCredit"_s});
    EXPECT_FALSE(grid->ColCredit(0));
    EXPECT_TRUE(grid->Columns().Item(1).Credit);
}

TEST_F(ColumnPropertiesTest, ColCaptionAlsoStandsInTheHeadingRow) {
    EXPECT_EQ(keysOf([&] { grid->setColCaption(1, u"Ασφάλιστρο"_s); }), QStringList{u"ColCaption"_s});
    EXPECT_EQ(grid->ColCaption(1), u"Ασφάλιστρο"_s);
    EXPECT_EQ(grid->TextMatrix(0, 1), u"Ασφάλιστρο"_s);
}

TEST_F(ColumnPropertiesTest, ColAlignmentKeepsTheStoredValueAndTranslatesForTheSurface) {
    const struct { int given, surface; } cases[] = {{7, 6}, {4, 3}, {1, 0}, {0, 0}, {3, 3}, {6, 6}, {8, 8}};
    for (const auto& c : cases) {
        grid->setColAlignment(0, c.given);
        EXPECT_EQ(grid->Columns().Item(1).Alignment, c.given);
        EXPECT_EQ(grid->ColAlignment(0), c.surface);
    }
    EXPECT_EQ(keysOf([&] { grid->setColAlignment(0, 7); }), QStringList{u"ColAlignment"_s});
}

TEST_F(ColumnPropertiesTest, AlignmentMinusOneLeavesTheSurfaceAlone) {
    grid->setColAlignment(0, 7);
    grid->setColAlignment(0, -1);
    EXPECT_EQ(grid->Columns().Item(1).Alignment, -1);
    EXPECT_EQ(grid->ColAlignment(0), 6);
    EXPECT_EQ(grid->ColAlignment(-1), 0);
}

TEST_F(ColumnPropertiesTest, ColWidthRoundsForTheSurfaceAndStoresAsGiven) {
    EXPECT_EQ(keysOf([&] { grid->setColWidth(0, 900.5); }), QStringList{u"ColWidth"_s});
    EXPECT_EQ(grid->Columns().Item(1).Width, 900.5);
    EXPECT_EQ(grid->ColWidth(0), 900); // half to even
    grid->setColWidth(0, 901.5);
    EXPECT_EQ(grid->ColWidth(0), 902);
}

TEST_F(ColumnPropertiesTest, WidthZeroHidesAndKeepsTheStoredWidth) {
    grid->setColWidth(0, 900);
    grid->setColWidth(0, 0);
    EXPECT_TRUE(grid->MSFlexGrid1().ColHidden(0));
    EXPECT_EQ(grid->Columns().Item(1).Width, 900);
    grid->setColWidth(0, 700);
    EXPECT_FALSE(grid->MSFlexGrid1().ColHidden(0));
    EXPECT_EQ(grid->ColWidth(0), 700);
}

TEST_F(ColumnPropertiesTest, ColDataIsTheSurfacesAndNotTheRecords) {
    EXPECT_EQ(keysOf([&] { grid->setColData(1, 42); }), QStringList{u"ColData"_s});
    EXPECT_EQ(grid->ColData(1), QVariant(42));
    EXPECT_EQ(grid->MSFlexGrid1().ColData(1), QVariant(42));
}

TEST_F(ColumnPropertiesTest, AnIndexOutsideIsTheCollectionsError) {
    EXPECT_EQ(errorNumber([&] { grid->ColTotals(2); }), kErrSubscript);
    EXPECT_EQ(errorNumber([&] { grid->setColDataField(-1, u"X"_s); }), kErrSubscript);
    EXPECT_EQ(errorNumber([&] { grid->ColCredit(9); }), kErrSubscript);
    EXPECT_EQ(errorNumber([&] { grid->Columns().Item(0); }), kErrSubscript);
    EXPECT_EQ(errorNumber([&] { grid->Columns().Item(3); }), kErrSubscript);
}

TEST_F(ColumnPropertiesTest, ColsGrowsWithDefaultsThatCopyTheSurfacesAlignmentOnTheLeft) {
    grid->setColAlignment(1, 7);
    EXPECT_EQ(keysOf([&] { grid->setCols(4); }), QStringList{u"Cols"_s});
    ASSERT_EQ(grid->Columns().Count(), 4);
    EXPECT_EQ(grid->Columns().Item(3).Alignment, 6); // 7 shows as 6 on the surface
    EXPECT_EQ(grid->ColAlignment(2), 0);
    EXPECT_EQ(grid->Columns().Item(4).Alignment, 0);
}

TEST_F(ColumnPropertiesTest, ColsThatShrinksAndGrowsBackHasDefaultsAgain) {
    grid->setCols(4);
    grid->setColDataField(2, u"A"_s);
    grid->setColDataField(3, u"B"_s);
    grid->setColDataField(1, u"KEPT"_s);
    grid->setCols(2);
    grid->setCols(4);
    EXPECT_EQ(grid->ColDataField(1), u"KEPT"_s);
    EXPECT_EQ(grid->ColDataField(2), u" "_s);
    EXPECT_EQ(grid->ColDataField(3), u" "_s);
}

TEST_F(ColumnPropertiesTest, ColsNotAboveZeroIsIgnored) {
    for (const int count : {0, -1, -100}) {
        EXPECT_EQ(keysOf([&] { grid->setCols(count); }), QStringList{});
        EXPECT_EQ(grid->Cols(), 2);
        EXPECT_EQ(grid->Columns().Count(), 2);
    }
}
