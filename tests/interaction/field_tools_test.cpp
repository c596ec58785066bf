#include "core/stat_field.h"
#include "load/load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A loaded report of two columns over a dictionary of three fields: agent (can be a group factor),
/// number, premium (takes totals).
class FieldToolsTest : public LoadTest {
protected:
    FieldToolsTest() {
        connection->Execute(u"create table CLMNS (dtfld text, Cptn text, wdth money, isgroup bit, isTot bit, "
                            "Algn integer, visbl integer, IsPublic integer)"_s);
        connection->Execute(u"insert into CLMNS values ('POLICYID', 'Αριθμός', 900, 0, 0, 1, 1, 1), "
                            "('AGENTNAME', 'Ασφαλιστής', 2400, 1, 0, 0, 1, 1), "
                            "('PREMIUM', 'Ασφάλιστρα', 1400, 0, 1, 7, 1, 1)"_s);
        grid->setclmns(u"CLMNS"_s);
        columns({u"POLICYID"_s, u"RATE"_s});
        fill();
        grid->refresh();
        logEvents();
    }

    Tool& field() { return grid->Picture1().Tools(u"mnuField"); }

    void choose(const QString& caption) {
        grid->Picture1().changeList(u"mnuField", static_cast<int>(field().list.indexOf(caption)));
    }

    QStringList column(int col) {
        QStringList cells;
        for (int r = 0; r < grid->Rows(); ++r)
            cells << grid->TextMatrix(r, col);
        return cells;
    }
};

TEST_F(FieldToolsTest, AChosenFieldGivesTheColumnItsSixPropertiesInTheirOrderAndLoads) {
    grid->setCol(1);
    const QStringList keys = keysOf([&] { choose(u"Ασφάλιστρα"_s); });
    EXPECT_EQ(keys.mid(0, 6), (QStringList{u"ColDataField"_s, u"ColCaption"_s, u"ColAlignment"_s,
                                           u"ColTotals"_s, u"ColWidth"_s, u"ColBalance"_s}));
    EXPECT_EQ(grid->ColDataField(1), u"PREMIUM"_s);
    EXPECT_EQ(grid->ColCaption(1), u"Ασφάλιστρα"_s);
    EXPECT_EQ(grid->Columns().Item(2).Alignment, 7);
    EXPECT_EQ(grid->ColAlignment(1), 6);
    EXPECT_TRUE(grid->ColTotals(1));
    EXPECT_EQ(grid->ColWidth(1), 1400);
    EXPECT_TRUE(grid->ColBalance(1)) << "what takes totals has two decimals";
    EXPECT_EQ(log.first(), u"Start"_s);
    EXPECT_EQ(grid->TextMatrix(1, 1), u"1.234,50"_s);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FieldToolsTest, AFieldWithoutTotalsHasNoBalance) {
    grid->setColTotals(1, true);
    grid->setColBalance(1, true);
    grid->setCol(1);
    choose(u"Ασφαλιστής"_s);
    EXPECT_FALSE(grid->ColTotals(1));
    EXPECT_FALSE(grid->ColBalance(1));
    EXPECT_EQ(grid->TextMatrix(1, 1), u"Ελένη Ζαφειρίου"_s);
}

TEST_F(FieldToolsTest, TheSameFieldAgainDoesNothing) {
    grid->setCol(0);
    grid->setColCaption(0, u"mine"_s);
    EXPECT_EQ(keysOf([&] { choose(u"Αριθμός"_s); }), QStringList());
    EXPECT_EQ(grid->ColCaption(0), u"mine"_s);
    EXPECT_EQ(log, QStringList());
}

TEST_F(FieldToolsTest, WithoutALoadTheOldDataAreBlankedAndTheOthersStay) {
    grid->setRefreshOnChange(false);
    grid->setRow(2);
    grid->setCol(1);
    grid->MSFlexGrid1().setFillStyle(0);
    int selecting = 0;
    QObject::connect(&grid->events(), &Events::Selecting, [&] { ++selecting; });
    choose(u"Ασφαλιστής"_s);
    EXPECT_EQ(column(1), (QStringList{u"Ασφαλιστής"_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(column(0), (QStringList{u"POLICYID"_s, u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(log, QStringList()) << "no rows are read";
    EXPECT_EQ(grid->Row(), 2) << "the current cell is where it was";
    EXPECT_EQ(grid->RowSel(), 2);
    EXPECT_EQ(grid->Col(), 1);
    EXPECT_EQ(selecting, 0);
    EXPECT_EQ(grid->MSFlexGrid1().FillStyle(), 0);
    grid->setRefreshOnChange(true);
    grid->FillGrid();
    EXPECT_EQ(grid->TextMatrix(1, 1), u"Ελένη Ζαφειρίου"_s);
}

TEST_F(FieldToolsTest, AReportOfHeadingsAloneHasNothingToBlank) {
    grid->setRefreshOnChange(false);
    grid->setRows(1);
    grid->setCol(1);
    choose(u"Ασφαλιστής"_s);
    EXPECT_EQ(grid->ColDataField(1), u"AGENTNAME"_s);
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FieldToolsTest, AGroupFactorOffersFactorsAndRebuildsTheGrouping) {
    grid->setRefreshOnChange(false);
    grid->setColForTot(0, true);
    grid->CheckGroupBy();
    grid->setCol(0);
    grid->fillBandField();
    ASSERT_EQ(field().list, QStringList{u"Ασφαλιστής"_s});
    choose(u"Ασφαλιστής"_s);
    EXPECT_EQ(grid->Groupby(), u"AGENTNAME"_s);
    EXPECT_TRUE(grid->ColForTot(0));
    EXPECT_TRUE(grid->MergeCol(0));
    EXPECT_EQ(grid->Cols(), 2);
}

TEST_F(FieldToolsTest, NoSelectionAndAListThatIsGoneAreNothing) {
    grid->setCol(1);
    EXPECT_EQ(keysOf([&] { grid->Picture1().changeList(u"mnuField", -1); }), QStringList());
    statFields().Clear(); // another control, with another dictionary
    EXPECT_EQ(keysOf([&] { choose(u"Ασφάλιστρα"_s); }), QStringList());
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FieldToolsTest, ADictionaryThatVanishedIsToldByTheLoad) {
    grid->setCol(1);
    connection->Execute(u"drop table CLMNS"_s);
    connection->Execute(u"drop table POLICIES"_s);
    choose(u"Ασφάλιστρα"_s);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(grid->ColDataField(1), u"PREMIUM"_s);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(FieldToolsTest, OtherListsAndTextsAreNotMeant) {
    Tool& chart = grid->Picture1().Tools(u"mnuGraphColumn");
    chart.list = QStringList{u"x"_s, u"y"_s};
    EXPECT_EQ(keysOf([&] { grid->Picture1().changeList(u"mnuGraphColumn", 1); }), QStringList());
    EXPECT_EQ(keysOf([&] { grid->Picture1().changeText(u"txtRecs", u"7"_s); }), QStringList());
}

TEST_F(FieldToolsTest, ATypedCaptionGoesToTheColumnClickedLast) {
    grid->MSFlexGrid1().userPress({1, 0, 0, 0, 1, 1});
    EXPECT_EQ(keysOf([&] { grid->Picture1().changeText(u"mnuCaption", u"Ποσοστό"_s); }),
              QStringList{u"ColCaption"_s});
    EXPECT_EQ(grid->ColCaption(1), u"Ποσοστό"_s);
    EXPECT_EQ(grid->TextMatrix(0, 1), u"Ποσοστό"_s);
    EXPECT_EQ(grid->ColCaption(0), u"POLICYID"_s);
}

TEST_F(FieldToolsTest, ACaptionForAColumnThatIsGoneIsNothing) {
    grid->MSFlexGrid1().userPress({1, 0, 0, 0, 1, 1});
    grid->setCols(1);
    grid->Picture1().changeText(u"mnuCaption", u"x"_s);
    EXPECT_EQ(grid->ColCaption(0), u"POLICYID"_s);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FieldToolsTest, TheFieldOfAnEmptyControlIsNothing) {
    ZkpGrid empty(host);
    empty.Picture1().Tools(u"mnuField").list = QStringList{u"x"_s};
    empty.Picture1().changeList(u"mnuField", 0);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FieldToolsTest, AHandlerMayDestroyTheControl) {
    grid->setCol(1);
    QObject::connect(&grid->events(), &Events::PropertyChanged, [this] { grid.reset(); });
    MenuBar& bar = grid->Picture1();
    bar.changeList(u"mnuField", static_cast<int>(field().list.indexOf(u"Ασφάλιστρα"_s)));
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(log, QStringList());
}

} // namespace
