#include "load/group_sums.h"

#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale kGreek{QLocale(u"el_GR"_s)};

/// A row of texts parted by "|".
class TextRow : public GroupRow {
public:
    TextRow(const QString& cells)
        : cells_(cells.split(u'|')) {}
    QString text(int column) const override { return cells_[column]; }
    Decimal number(int column) const override {
        return Decimal::fromText(cells_[column], kGreek).value_or(Decimal());
    }

private:
    QStringList cells_;
};

/// Two keys and one summed column, unless a test says otherwise.
class GroupSumsTest : public testing::Test {
protected:
    GroupSumsTest() {
        shape.columns = 3;
        shape.factors = 2;
        shape.summed = {2};
    }

    void start(const QString& record) {
        sums.clear(shape, kGreek);
        sums.start(TextRow(record));
    }

    void goOn(const QString& record) {
        sums.addToGrandSums(TextRow(record));
        sums.addToGroups(TextRow(record));
    }

    /// The accumulator row by row, cells parted by "|".
    QStringList rows() const {
        QStringList result;
        for (int row = 0; row < sums.rows(); ++row) {
            QStringList cells;
            for (int c = 0; c < shape.columns; ++c)
                cells << sums.text(row, c);
            result << cells.join(u'|');
        }
        return result;
    }

    GroupShape shape;
    GroupSums sums;
};

} // namespace

TEST_F(GroupSumsTest, TheFirstRecordOpensEveryLevelWithItsOwnTexts) {
    start(u"A|x|1.234,50"_s);
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||1.234,50"_s, u"A|x|1.234,50"_s, u" | |1.234,50"_s}));
}

TEST_F(GroupSumsTest, ARecordOfTheSameGroupsAddsToAllOfThemAsAPlainNumber) {
    start(u"A|x|1.234,50"_s);
    goOn(u"A|x|0,75"_s);
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||1235,25"_s, u"A|x|1235,25"_s, u" | |1235,25"_s}));
}

TEST_F(GroupSumsTest, AnInnerBreakCountsInTheOuterGroup) {
    start(u"A|x|10,00"_s);
    const TextRow next(u"A|y|5,00"_s);
    EXPECT_TRUE(sums.breaksAt(next));
    EXPECT_TRUE(sums.isKeyOpen(0, next));
    EXPECT_FALSE(sums.isKeyOpen(1, next));
    sums.addToGrandSums(next);
    sums.reset(1, next);
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||15"_s, u"A|y|5,00"_s, u" | |15"_s}));
    EXPECT_FALSE(sums.breaksAt(next));
}

TEST_F(GroupSumsTest, AnOuterBreakOpensAllLevels) {
    start(u"A|x|10,00"_s);
    const TextRow next(u"B|x|5,00"_s);
    EXPECT_FALSE(sums.isKeyOpen(0, next));
    sums.reset(0, next);
    EXPECT_EQ(rows()[1], u"B||5,00"_s);
    EXPECT_EQ(rows()[2], u"B|x|5,00"_s);
}

// Of a sum and a record's figure, one of which is 0, the other stands.
TEST_F(GroupSumsTest, AZeroLeavesTheOuterSumAsItWas) {
    start(u"A|x|1.000,00"_s);
    sums.reset(1, TextRow(u"A|y|0,00"_s));
    EXPECT_EQ(rows()[1], u"A||1.000,00"_s);
}

TEST_F(GroupSumsTest, AZeroOuterSumTakesTheRecordsText) {
    start(u"A|x|0,00"_s);
    sums.reset(1, TextRow(u"A|y|1.000,00"_s));
    EXPECT_EQ(rows()[1], u"A||1.000,00"_s);
}

// "A B" with "C" and "A" with "B C" read the same when joined, and no group ends; wanted.
TEST_F(GroupSumsTest, KeysThatAreEqualWhenJoinedDoNotBreak) {
    start(u"A B|C|1,00"_s);
    EXPECT_FALSE(sums.breaksAt(TextRow(u"A|B C|1,00"_s)));
}

TEST_F(GroupSumsTest, ATextThatIsNoNumberCountsAsZero) {
    start(u"A|x|πολλά"_s);
    EXPECT_EQ(rows()[3], u" | |πολλά"_s);
    goOn(u"A|x|2,50"_s);
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||2,5"_s, u"A|x|2,5"_s, u" | |2,5"_s}));
}

// Each record of a totals report is a group of the innermost factor already.
TEST_F(GroupSumsTest, InATotalsReportTheInnermostFactorDoesNotBreak) {
    shape.totalForm = true;
    start(u"A|x|10,00"_s);
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||10,00"_s, u"  |  |10,00"_s, u" | |10,00"_s}));
    EXPECT_FALSE(sums.breaksAt(TextRow(u"A|y|5,00"_s)));
    EXPECT_TRUE(sums.breaksAt(TextRow(u"B|x|5,00"_s)));
}

// Its sum takes the records that go on in the group and is never set back; wanted.
TEST_F(GroupSumsTest, InATotalsReportTheInnermostSumIsNeverReset) {
    shape.totalForm = true;
    start(u"A|x|10,00"_s);
    goOn(u"A|y|5,00"_s);
    sums.reset(0, TextRow(u"B|x|100,00"_s));
    EXPECT_EQ(rows()[2], u"  |  |15"_s);
    EXPECT_EQ(rows()[1], u"B||100,00"_s);
}

TEST_F(GroupSumsTest, OneFactorOfATotalsReportMakesNoGroups) {
    shape.columns = 2;
    shape.factors = 1;
    shape.summed = {1};
    shape.totalForm = true;
    EXPECT_FALSE(shape.hasGroups());
    start(u"A|10,00"_s);
    EXPECT_EQ(rows(), (QStringList{u"|"_s, u"  |10,00"_s, u" |10,00"_s}));
}

TEST_F(GroupSumsTest, WithoutFactorsThereAreOnlyGrandSums) {
    shape.factors = 0;
    start(u"A|x|10,00"_s);
    EXPECT_FALSE(shape.hasGroups());
    EXPECT_EQ(sums.rows(), 2);
    sums.addToGrandSums(TextRow(u"B|x|-10,00"_s));
    EXPECT_TRUE(sums.number(1, 2).isZero());
}

TEST_F(GroupSumsTest, ARunAddsWhatItsRecordsWouldOneByOne) {
    start(u"A|x|10,00"_s);
    sums.addRun(2, Decimal(Currency::fromWhole(7)));
    EXPECT_EQ(rows(), (QStringList{u"||"_s, u"A||17"_s, u"A|x|17"_s, u" | |17"_s}));
}

// A factor that is summed too has key and sum in one cell: adding changes the key. Wanted.
TEST_F(GroupSumsTest, TheSumOfAnInnerBreakChangesTheKeyOfASummedFactor) {
    shape.summed = {0, 2};
    EXPECT_TRUE(shape.sumsKeys());
    start(u"5|x|1,00"_s);
    sums.reset(1, TextRow(u"5|y|1,00"_s));
    EXPECT_EQ(rows()[1], u"10||2"_s);
    EXPECT_FALSE(sums.isKeyOpen(0, TextRow(u"5|y|1,00"_s)));
}

TEST_F(GroupSumsTest, ManyFiguresThatNetToZeroAreZero) {
    start(u"A|x|0,00"_s);
    for (int i = 0; i < 10'000; ++i) {
        goOn(u"A|x|0,10"_s);
        goOn(u"A|x|-0,10"_s);
    }
    EXPECT_TRUE(sums.number(1, 2).isZero());
    EXPECT_EQ(sums.text(3, 2), u"0"_s);
}
