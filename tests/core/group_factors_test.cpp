#include "grid_fixture.h"

using namespace Qt::StringLiterals;

using GroupFactorsTest = GridTest;

TEST_F(GroupFactorsTest, HasTotalsSpeaksOfTwoFactorsOrMore) {
    grid->setCols(3);
    EXPECT_FALSE(grid->HasTotals());
    grid->setColForTot(0, true);
    EXPECT_FALSE(grid->HasTotals());
    EXPECT_EQ(grid->FindGroupNum(), 1);
    grid->setColForTot(2, true);
    EXPECT_TRUE(grid->HasTotals());
    EXPECT_EQ(grid->FindGroupNum(), 2);
    // A summed column does not count.
    grid->setColTotals(1, true);
    EXPECT_EQ(grid->FindGroupNum(), 2);
}

TEST_F(GroupFactorsTest, CheckGroupByRebuildsTheTextFromTheFlags) {
    grid->setCols(4);
    grid->setColDataField(0, u"AGENTNAME"_s);
    grid->setColDataField(2, u"BRANCH"_s);
    grid->setColForTot(0, true);
    grid->setColForTot(2, true);
    grid->setGroupby(u"SOMETHING"_s);
    EXPECT_EQ(keysOf([&] { grid->CheckGroupBy(); }), QStringList{u"Groupby"_s});
    EXPECT_EQ(grid->Groupby(), u"AGENTNAME,BRANCH"_s);
}

TEST_F(GroupFactorsTest, WithoutFlagsTheTextBecomesEmpty) {
    grid->setGroupby(u"BRANCH"_s);
    grid->CheckGroupBy();
    EXPECT_EQ(grid->Groupby(), u""_s);
}

TEST_F(GroupFactorsTest, AFactorWithoutFieldCountsAndAddsNothing) {
    grid->setCols(3);
    grid->setColDataField(0, u" "_s);
    grid->setColForTot(0, true);
    grid->setColDataField(1, u"BRANCH"_s);
    grid->setColForTot(1, true);
    grid->CheckGroupBy();
    EXPECT_EQ(grid->Groupby(), u"BRANCH"_s);
    EXPECT_EQ(grid->FindGroupNum(), 2);
}

TEST_F(GroupFactorsTest, AnInsertedColumnCannotBeEdited) {
    grid->setColEditable(0, true);
    grid->InsertColumn(0);
    EXPECT_FALSE(grid->ColEditable(0));
    EXPECT_TRUE(grid->ColEditable(1));
}

TEST_F(GroupFactorsTest, GroupBy1To4AreStoredOnly) {
    EXPECT_EQ(keysOf([&] {
                  grid->setGroupBy1(u"A"_s);
                  grid->setGroupBy2(u"B"_s);
                  grid->setGroupBy3(u"C"_s);
                  grid->setGroupBy4(u"D"_s);
              }),
              (QStringList{u"Groupby1"_s, u"Groupby2"_s, u"Groupby3"_s, u"Groupby4"_s}));
    EXPECT_EQ(grid->GroupBy1() + grid->GroupBy2() + grid->GroupBy3() + grid->GroupBy4(), u"ABCD"_s);
    EXPECT_EQ(grid->Groupby(), u""_s);
}
