#include "column_commands_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

using ColumnDeleteTest = ColumnCommandsTest;

struct DeleteCase {
    const char* title;
    bool totals;
    int factors;
    QString hidden; ///< positions of hidden columns
    int col;
    QString told; ///< empty: it is deleted
};

class DeleteRefusals : public ColumnDeleteTest, public testing::WithParamInterface<DeleteCase> {};

const QString kOnly = u"Δεν μπορώ να διαγράψω την μοναδική στήλη"_s;
const QString kLast = u"Δεν μπορώ να διαγράψω τον τελευταίο Παράγοντα"_s;

TEST_P(DeleteRefusals, AColumnGoesUnlessItIsTheOnlyOneOrTheLastFactorOfATotalsReport) {
    const DeleteCase& one = GetParam();
    factors(one.factors);
    grid->setTotalForm(one.totals);
    for (const QChar position : one.hidden)
        grid->setColWidth(position.digitValue(), 0);
    grid->setCol(one.col);
    host->onMsgBox = [](const ScriptedHost::Message&) { return int(kAnswerNo); };
    const QString before = shape();

    grid->mnuDelete_Click();

    if (one.told.isEmpty()) {
        EXPECT_EQ(grid->Cols(), 3);
        EXPECT_EQ(grid->Columns().Count(), 3);
        EXPECT_EQ(log, QStringList{u"DelColumn %1"_s.arg(grid->Col())});
        return;
    }
    ASSERT_EQ(boxes(), QStringList{one.told});
    EXPECT_EQ(host->messages.front().style, kMsgBoxCritical);
    EXPECT_EQ(shape(), before);
    EXPECT_TRUE(grid->RefreshOnChange()) << "nothing has changed";
    EXPECT_EQ(log, QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DeleteRefusals,
    testing::Values(DeleteCase{"one of four", false, 0, u""_s, 1, {}},
                    DeleteCase{"one of two that show", false, 0, u"03"_s, 1, {}},
                    DeleteCase{"the only one that shows", false, 0, u"013"_s, 2, kOnly},
                    DeleteCase{"a hidden one beside the only one that shows", false, 0, u"013"_s, 0, kOnly},
                    DeleteCase{"no column shows at all", false, 0, u"0123"_s, 0, {}},
                    DeleteCase{"the only factor of a detail report", false, 1, u""_s, 0, {}},
                    DeleteCase{"the only factor of a totals report", true, 1, u""_s, 0, kLast},
                    DeleteCase{"one of its two factors", true, 2, u""_s, 1, {}},
                    DeleteCase{"a plain column of it", true, 1, u""_s, 2, {}},
                    DeleteCase{"the only column, which is its only factor", true, 1, u"123"_s, 0, kOnly}),
    [](const auto& each) { return "Case" + std::to_string(each.index); });

TEST_F(ColumnDeleteTest, DeletingTheLastColumnMakesTheOneBeforeItCurrent) {
    grid->setCol(3);
    int position = 3;
    grid->deletecolumn(position);
    EXPECT_EQ(shape(), u"aAa1|bBb1|cCc1"_s);
    EXPECT_EQ(position, 2);
    EXPECT_EQ(grid->Col(), 2);
}

TEST_F(ColumnDeleteTest, TheColumnInItsPlaceIsCurrentOtherwise) {
    grid->setCol(1);
    int position = 1;
    grid->deletecolumn(position);
    EXPECT_EQ(shape(), u"aAa1|cCc1|dDd1"_s);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(grid->Col(), 1);
}

TEST_F(ColumnDeleteTest, AColumnWithoutAFieldIsDeletedWithoutAQuestion) {
    factors(2);
    grid->setColDataField(1, u"  "_s);
    grid->setCol(1);
    grid->mnuDelete_Click();
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_EQ(grid->GroupFactorCount(), 1);
}

TEST_F(ColumnDeleteTest, APlainColumnIsDeletedWithoutAQuestion) {
    grid->setCol(1);
    grid->mnuDelete_Click();
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_EQ(log, QStringList{u"DelColumn 1"_s});
}

TEST_F(ColumnDeleteTest, AGroupWithAFieldIsAskedAboutAndANoLeavesTheRows) {
    factors(2);
    grid->setRedraw(false);
    host->onMsgBox = [](const ScriptedHost::Message&) { return int(kAnswerNo); };
    grid->mnuDelete_Click();
    ASSERT_EQ(boxes(), QStringList{u"Να ανανεώσω τώρα τη λίστα;"_s});
    EXPECT_EQ(host->messages.front().style, 32 + 4) << "question icon, Yes and No";
    EXPECT_EQ(shape(), u"b*Bb1|cCc1|dDd1"_s);
    EXPECT_EQ(grid->Groupby(), u"b"_s);
    EXPECT_FALSE(grid->RefreshOnChange());
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(log, QStringList{u"DelColumn 0"_s});
}

TEST_F(ColumnDeleteTest, AndAYesLoadsAgain) {
    factors(1);
    fill(u"select 'x' as b, 'y' as c, 'z' as d"_s);
    grid->setRefreshOnChange(false);
    grid->mnuDelete_Click();
    EXPECT_EQ(boxes(), QStringList{u"Να ανανεώσω τώρα τη λίστα;"_s});
    EXPECT_EQ(shape(), u"bBx|cCy|dDz"_s);
    EXPECT_TRUE(grid->RefreshOnChange());
    EXPECT_EQ(log, (QStringList{u"load"_s, u"DelColumn 0"_s}));
}

/// Wanted: the question looks at the current column, and so does the surface.
TEST_F(ColumnDeleteTest, AnotherPositionThanTheCurrentOneTakesTwoDifferentColumns) {
    factors(1);
    grid->setCol(0);
    int position = 2;
    host->onMsgBox = [](const ScriptedHost::Message&) { return int(kAnswerNo); };
    grid->deletecolumn(position);
    EXPECT_EQ(boxes(), QStringList{u"Να ανανεώσω τώρα τη λίστα;"_s});
    EXPECT_EQ(shape(), u"a*Bb1|bCc1|dDd1"_s) << "fields a, b, d over the cells of B, C, D";
    EXPECT_EQ(position, 2);
    EXPECT_EQ(grid->Col(), 2);
}

TEST_F(ColumnDeleteTest, APositionOffTheEndIsTheCollectionsErrorWithTheGridShorterByOne) {
    int position = 4;
    grid->deletecolumn(position);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages.front().title, u"QRN Insurance"_s);
    EXPECT_EQ(grid->Cols(), 3);
    EXPECT_EQ(grid->Columns().Count(), 4);
    EXPECT_EQ(position, 4);
    grid->setCols(3);
    EXPECT_EQ(grid->Columns().Count(), 3) << "the host can bring the two together again";
}

TEST_F(ColumnDeleteTest, ANegativePositionIsTheSameError) {
    int position = -1;
    grid->deletecolumn(position);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(grid->Columns().Count(), 4);
}

TEST_F(ColumnDeleteTest, TheVeryLastColumnCanBeDeletedByPositionWithItsBox) {
    grid->setCols(1);
    int position = 0;
    grid->deletecolumn(position);
    EXPECT_EQ(grid->Cols(), 0);
    EXPECT_EQ(grid->Columns().Count(), 0);
    EXPECT_EQ(host->messages.size(), 1u) << "there is no column to go to";
    grid->mnuAddColumn_Click();
    EXPECT_EQ(grid->Cols(), 1);
    EXPECT_EQ(grid->Columns().Count(), 1);
}

TEST_F(ColumnDeleteTest, WithNoColumnsEachCommandSaysSoOrDoesItsWork) {
    grid->setCols(1);
    int position = 0;
    grid->deletecolumn(position);
    for (const bool totals : {false, true}) {
        grid->setTotalForm(totals);
        host->messages.clear();
        grid->mnuDelete_Click();
        EXPECT_EQ(host->messages.size(), 1u);
        EXPECT_EQ(grid->Cols(), 0);
    }
    grid->setTotalForm(false);
    grid->mnuInsert_Click();
    EXPECT_EQ(grid->Cols(), 1);
    EXPECT_EQ(grid->Columns().Count(), 1);
    EXPECT_EQ(surface().inconsistency(), QString());
}

TEST_F(ColumnDeleteTest, TheAnswerMayDestroyTheControl) {
    factors(1);
    host->onMsgBox = [this](const ScriptedHost::Message&) {
        grid.reset();
        return int(kAnswerYes);
    };
    grid->mnuDelete_Click();
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(log, QStringList());
}

} // namespace
