#include "load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using RowReaderTest = LoadTest;

TEST_F(RowReaderTest, EachRecordIsOneRowInItsOwnTexts) {
    columns({u"POLICYID"_s, u"AGENTNAME"_s, u"RATE"_s, u"STARTS"_s, u"ACTIVE"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1 | Ελένη Ζαφειρίου | 0,25 | 20/11/2026 | True"_s,
                                     u"1: 2 |  |  |  | "_s, u"1: 3 |  | 12,5 | 5/3/1999 | False"_s}));
}

TEST_F(RowReaderTest, CurrencyFieldsShowCentsByEuroVer) {
    columns({u"PREMIUM"_s});
    fill();
    grid->refresh();
    // A null counts as 0; -0.005 rounds away from zero.
    EXPECT_EQ(report(), (QStringList{u"1: 1.234,50"_s, u"1: 0,00"_s, u"1: -0,01"_s}));
    EXPECT_EQ(grid->MSFlexGrid1().ColDataType(0), 6);
    grid->setEuroVer(false);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1.235"_s, u"1: 0"_s, u"1: 0"_s}));
}

TEST_F(RowReaderTest, SummedColumnsAreFormattedWhateverTheirType) {
    columns({u"POLICYID"_s, u"RATE"_s});
    grid->setColTotals(0, true);
    grid->setColTotals(1, true);
    fill();
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1,00 | 0,25"_s, u"1: 2,00 | 0,00"_s, u"1: 3,00 | 12,50"_s,
                                     u"10: 6,00 | 12,75"_s}));
    EXPECT_EQ(grid->MSFlexGrid1().ColDataType(0), 6);
}

TEST_F(RowReaderTest, SummedColumnsFollowEuroVerUnlessTheyAreABalance) {
    columns({u"RATE"_s, u"RATE"_s});
    grid->setColTotals(0, true);
    grid->setColTotals(1, true);
    grid->setColBalance(1, true);
    grid->setEuroVer(false);
    fill();
    grid->refresh();
    EXPECT_EQ(report(),
              (QStringList{u"1: 0 | 0,25"_s, u"1: 0 | 0,00"_s, u"1: 13 | 12,50"_s, u"10: 13 | 12,75"_s}));
}

TEST_F(RowReaderTest, ABalanceThatIsNotSummedGoesByItsType) {
    columns({u"RATE"_s});
    grid->setColBalance(0, true);
    fill();
    grid->refresh();
    EXPECT_EQ(report().first(), u"1: 0,25"_s);
    EXPECT_EQ(grid->MSFlexGrid1().ColDataType(0), 0);
}

TEST_F(RowReaderTest, CalcEuroIsNotLookedAt) {
    columns({u"PREMIUM"_s});
    grid->setColCalcEuro(0, true);
    grid->setEuroVer(false);
    fill();
    grid->refresh();
    EXPECT_EQ(report().first(), u"1: 1.235"_s);
}

TEST_F(RowReaderTest, FieldsAreFoundWithoutRegardToCase) {
    columns({u"agentname"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().first(), u"1: Ελένη Ζαφειρίου"_s);
}

TEST_F(RowReaderTest, AMissingFieldMarksItsHeadingAndLeavesItsCellsEmpty) {
    columns({u"NOFIELD"_s, u"POLICYID"_s});
    grid->setColCaption(0, u" Κωδικός "_s);
    fill();
    grid->refresh();
    EXPECT_EQ(grid->ColCaption(0), u"#Κωδικός# (Λάθος)"_s);
    EXPECT_EQ(grid->TextMatrix(0, 0), u"#Κωδικός# (Λάθος)"_s);
    EXPECT_EQ(grid->ColDataField(0), u""_s);
    EXPECT_EQ(report(), (QStringList{u"1:  | 1"_s, u"1:  | 2"_s, u"1:  | 3"_s}));
    EXPECT_TRUE(host->messages.empty());
    grid->refresh(); // the loss is lasting, the mark is not made twice
    EXPECT_EQ(grid->ColCaption(0), u"#Κωδικός# (Λάθος)"_s);
}

TEST_F(RowReaderTest, AColumnWithABlankFieldIsEmptyAndNotMarked) {
    columns({u" "_s, u"POLICYID"_s});
    grid->setColCaption(0, u"Κενή"_s);
    fill();
    grid->refresh();
    EXPECT_EQ(grid->ColCaption(0), u"Κενή"_s);
    EXPECT_EQ(report().first(), u"1:  | 1"_s);
}

// The order of the tests makes this so, and it stands.
TEST_F(RowReaderTest, APercentColumnOfAPlainReportShowsTheFieldBeforeIt) {
    columns({u"POLICYID"_s, u"POS_PREMIUM"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().first(), u"1: 1 | 1"_s);
    EXPECT_EQ(grid->ColCaption(1), u"POS_PREMIUM"_s);
}

TEST_F(RowReaderTest, APercentColumnKeepsTheFieldBeforeABlankOrMissingOne) {
    columns({u"POLICYID"_s, u" "_s, u"NOFIELD"_s, u"POS_X"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().first(), u"1: 1 |  |  | 1"_s);
}

TEST_F(RowReaderTest, APercentColumnWithNoFieldBeforeItEndsTheLoad) {
    columns({u"POS_X"_s, u"POLICYID"_s});
    logEvents();
    fill();
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{u"Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID"_s});
    EXPECT_EQ(host->messages[0].style, 16);
    EXPECT_EQ(host->messages[0].title, u""_s);
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Stop"_s}));
}

TEST_F(RowReaderTest, ALowerCasePercentNameIsLookedUpAsAField) {
    columns({u"POLICYID"_s, u"pos_x"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->ColCaption(1), u"#pos_x# (Λάθος)"_s);
}

TEST_F(RowReaderTest, EventsFrameTheRowsAndNameEachOfThem) {
    columns({u"POLICYID"_s});
    logEvents();
    fill();
    grid->refresh();
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Row 1"_s, u"Row 2"_s, u"Row 3"_s, u"Stop"_s}));
}

TEST_F(RowReaderTest, WithoutSumsNoRowsAreAddedAndBlankOnesStay) {
    columns({u"AGENTNAME"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 4); // the two records with no name are blank rows and stand
}

TEST_F(RowReaderTest, WithTwoFixedRowsTheLastRecordHasNoRow) {
    grid->setRows(3);
    grid->setFixedRows(2);
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 4);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"1"_s);
    EXPECT_EQ(grid->TextMatrix(3, 0), u"2"_s);
    EXPECT_EQ(boxes(), QStringList{u"Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID"_s});
}

TEST_F(RowReaderTest, TheSameHoldsWithAHandlerOnEachRow) {
    grid->setRows(3);
    grid->setFixedRows(2);
    columns({u"POLICYID"_s});
    logEvents();
    fill();
    grid->refresh();
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Row 2"_s, u"Row 3"_s, u"Stop"_s}));
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(RowReaderTest, WithoutFixedRowsTheFirstRecordStandsInRowZero) {
    grid->setFixedRows(0);
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->TextMatrix(0, 0), u"1"_s);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"3"_s);
    EXPECT_EQ(grid->TextMatrix(3, 0), u""_s);
}

TEST_F(RowReaderTest, ASecondLoadOfAnotherShapeLeavesNothingOfTheFirst) {
    columns({u"POLICYID"_s, u"AGENTNAME"_s});
    fill();
    grid->refresh();
    columns({u"AGENTNAME"_s});
    fill(u"select AGENTNAME from POLICIES where POLICYID=1"_s);
    grid->refresh();
    EXPECT_EQ(report(), QStringList{u"1: Ελένη Ζαφειρίου"_s});
}
