#include "load_fixture.h"

#include <cmath>
#include <limits>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A surface filled by hand.
class SortingTest : public LoadTest {
protected:
    /// Details with these cells, parted by "|".
    void rows(const QStringList& lines) {
        grid->setCols(static_cast<int>(lines.front().split(u'|').size()));
        grid->setRows(1);
        for (const QString& line : lines)
            add(ZKPSingleRow, line);
    }

    void add(int kind, const QString& line) {
        grid->AddItem(QString(line).replace(u'|', u'\t'));
        grid->setRowData(grid->Rows() - 1, kind);
    }

    /// All rows below the heading: cells joined by "|", rows by blanks.
    QString sorted() const {
        QStringList lines;
        for (int r = 1; r < grid->Rows(); ++r) {
            QStringList cells;
            for (int c = 0; c < grid->Cols(); ++c)
                cells << grid->TextMatrix(r, c);
            lines << cells.join(u'|');
        }
        return lines.join(u' ');
    }

    /// The first columns are group factors, as a load with such flags leaves the control.
    void factors(int count) {
        for (int c = 0; c < count; ++c)
            grid->setColForTot(c, true);
        grid->CheckGroupBy();
    }

    /// The host's order: by the text of column 0, from Ω to Α.
    void compareDownwards() {
        QObject::connect(&grid->events(), &Events::Compare, [this](CompareArgs& e) {
            ++asked;
            e.Cmp = grid->TextMatrix(e.Row2.toInt(), 0).compare(grid->TextMatrix(e.Row1.toInt(), 0));
        });
    }

    int asked = 0;
};

} // namespace

// --- Sort

TEST_F(SortingTest, SortLeavesTheLastRowOutAndNumbersFromTheTop) {
    rows({u"γ|7"_s, u"α|8"_s, u"β|9"_s, u"Α|5"_s});
    grid->setColcnt(1, true);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"α|1 β|2 γ|3 Α|5"_s);
}

TEST_F(SortingTest, SortWithTwoDataRowsHasOneRowToSort) {
    rows({u"β"_s, u"α"_s});
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"β α"_s) << "the last row stays out";
}

TEST_F(SortingTest, ABlankRowKeepsItsNumber) {
    rows({u"β|7"_s, u"|8"_s, u"α|9"_s, u"x|x"_s});
    grid->setColcnt(1, true);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"|8 α|2 β|3 x|x"_s);
}

TEST_F(SortingTest, TheLastNumberColumnIsNumberedAndAnotherCountsAsText) {
    rows({u"|7|"_s, u"||5"_s, u"x|x|x"_s});
    grid->setColcnt(1, true);
    grid->setColcnt(2, true);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"|7|1 ||5 x|x|x"_s);
}

TEST_F(SortingTest, WithNoNumberColumnNothingIsNumbered) {
    rows({u"β|7"_s, u"α|8"_s, u"x|x"_s});
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"α|8 β|7 x|x"_s);
}

TEST_F(SortingTest, SortBeforeAnyOtherGoesByTheCurrentColumn) {
    rows({u"1|β"_s, u"2|α"_s, u"x|x"_s});
    grid->setCol(1);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"2|α 1|β x|x"_s);
}

TEST_F(SortingTest, SortGoesByTheColumnOfTheCustomSortBefore) {
    rows({u"1|β"_s, u"2|α"_s, u"x|x"_s});
    grid->MSFlexGrid1().Select(1, 1, 2, 1);
    grid->SortGrid(kSortCustom);
    grid->setCol(0);
    grid->Sort(kSortTextDown);
    EXPECT_EQ(sorted(), u"1|β 2|α x|x"_s) << "β before α";
    EXPECT_EQ(grid->Col(), 1);
}

TEST_F(SortingTest, SortGoesByTheColumnOfSortByColumn) {
    rows({u"1|β"_s, u"2|α"_s, u"x|x"_s});
    grid->setRefreshOnChange(false);
    grid->setCol(1);
    grid->SortByColumn({});
    grid->setCol(0);
    grid->Sort(kSortTextDown);
    EXPECT_EQ(sorted(), u"1|β 2|α x|x"_s);
}

TEST_F(SortingTest, ASortColumnThatIsNoMoreIsPassedOver) {
    rows({u"β|1"_s, u"α|2"_s, u"x|x"_s});
    grid->MSFlexGrid1().Select(1, 1, 2, 1);
    grid->SortGrid(kSortCustom);
    grid->setCols(1);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"α β x"_s);
}

TEST_F(SortingTest, SortPassesOverErrorsAndStillNumbers) {
    rows({u"β|7"_s, u"α|8"_s, u"x|x"_s});
    grid->setColcnt(1, true);
    EXPECT_NO_THROW(grid->Sort(42));
    EXPECT_NO_THROW(grid->Sort(-1));
    EXPECT_EQ(sorted(), u"β|1 α|2 x|x"_s);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(SortingTest, SortOnASurfaceWithNoDataRowDoesNothing) {
    for (const int count : {1, 2}) {
        grid->setRows(count);
        EXPECT_NO_THROW(grid->Sort(kSortTextUp));
        EXPECT_NO_THROW(grid->SortGrid(kSortTextUp));
        EXPECT_EQ(grid->Rows(), count);
    }
}

TEST_F(SortingTest, SortEndsOnTheFirstRowWithTheSortedRowsSelected) {
    rows({u"γ"_s, u"β"_s, u"α"_s, u"x"_s});
    grid->Sort(kSortTextUp);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->RowSel(), 3);
}

TEST_F(SortingTest, SortLeavesRedrawAsItWas) {
    rows({u"β"_s, u"α"_s, u"x"_s});
    grid->Sort(kSortTextUp);
    EXPECT_TRUE(grid->Redraw());
    grid->setRedraw(false);
    grid->Sort(kSortTextUp);
    EXPECT_FALSE(grid->Redraw());
}

TEST_F(SortingTest, SortOfManyRowsMakesAboutATextForEach) {
    constexpr int kRows = 20'000;
    grid->setCols(3);
    grid->setRows(kRows + 2);
    for (int r = 1; r <= kRows + 1; ++r)
        grid->MSFlexGrid1().setTextMatrix(r, 0, QString::number(r % 50));
    grid->setColcnt(2, true);
    grid->MSFlexGrid1().takeCosts();
    grid->Sort(kSortTextUp);
    EXPECT_LE(grid->MSFlexGrid1().takeCosts().textsMade, 2 * kRows) << "one to sort, one to number";
    EXPECT_EQ(grid->TextMatrix(kRows, 2), QString::number(kRows));
}

// --- SortGrid

TEST_F(SortingTest, SortGridSortsTheSelectedRows) {
    rows({u"γ"_s, u"β"_s, u"α"_s, u"Α"_s});
    grid->MSFlexGrid1().Select(2, 0, 3, 0);
    grid->SortGrid(kSortTextUp);
    EXPECT_EQ(sorted(), u"γ α β Α"_s);
    grid->MSFlexGrid1().Select(2, 0);
    grid->SortGrid(kSortTextBlindDown);
    EXPECT_EQ(sorted(), u"γ β α Α"_s) << "one row stands for all";
    EXPECT_FALSE(grid->sortOut());
}

TEST_F(SortingTest, SortGridPassesOverErrors) {
    rows({u"β"_s, u"α"_s});
    EXPECT_NO_THROW(grid->SortGrid(10));
    EXPECT_EQ(sorted(), u"β α"_s);
}

// --- The host's order

TEST_F(SortingTest, SortGivesCustomSortsToTheHostForGood) {
    rows({u"α"_s, u"γ"_s, u"β"_s, u"ω"_s});
    compareDownwards();
    EXPECT_FALSE(grid->sortOut());
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(asked, 0) << "not before the first Sort";
    grid->Sort(kSortCustom);
    EXPECT_TRUE(grid->sortOut());
    EXPECT_EQ(sorted(), u"γ β α ω"_s);

    asked = 0;
    grid->MSFlexGrid1().Select(1, 0);
    grid->SortGrid(kSortCustom);
    EXPECT_GT(asked, 0);
    EXPECT_EQ(sorted(), u"ω γ β α"_s);

    asked = 0;
    grid->setRefreshOnChange(false);
    grid->setColDataField(0, u""_s);
    grid->SortByColumn({});
    EXPECT_GT(asked, 0) << "a later SortByColumn asks the host too";
}

TEST_F(SortingTest, ASortOfAnotherKindSwitchesToTheHostToo) {
    rows({u"α"_s, u"β"_s, u"x"_s});
    grid->Sort(kSortTextUp);
    EXPECT_TRUE(grid->sortOut());
}

TEST_F(SortingTest, WithoutAHandlerTheHostHoldsAllRowsEqual) {
    rows({u"β"_s, u"α"_s, u"x"_s});
    grid->Sort(kSortCustom);
    EXPECT_EQ(sorted(), u"β α x"_s);
}

TEST_F(SortingTest, TheHandlersAnswerCountsByItsSign) {
    const struct {
        QVariant answer;
        QString order;
    } cases[] = {
        {0.25, u"γ β α x"_s},           {1e300, u"γ β α x"_s},      {u"1"_s, u"γ β α x"_s},
        {-0.25, u"α β γ x"_s},          {true, u"α β γ x"_s},       {0, u"α β γ x"_s},
        {u"more"_s, u"α β γ x"_s},      {QVariant(), u"α β γ x"_s}, {std::nan(""), u"α β γ x"_s},
        {QVariantList(), u"α β γ x"_s},
    };
    QVariant answer;
    QObject::connect(&grid->events(), &Events::Compare, [&](CompareArgs& e) { e.Cmp = answer; });
    for (const auto& c : cases) {
        rows({u"α"_s, u"β"_s, u"γ"_s, u"x"_s});
        answer = c.answer;
        grid->Sort(kSortCustom);
        EXPECT_EQ(sorted(), c.order) << c.answer.toString().toStdString();
    }
}

TEST_F(SortingTest, AHandlerThatContradictsItselfLosesNoRow) {
    QStringList lines;
    for (int i = 100; i < 300; ++i)
        lines << QString::number(i);
    rows(lines);
    unsigned state = 1;
    QObject::connect(&grid->events(), &Events::Compare, [&](CompareArgs& e) {
        state = state * 1'103'515'245u + 12'345u;
        e.Cmp = static_cast<int>(state >> 16) % 3 - 1;
    });
    grid->Sort(kSortCustom);
    QStringList after = sorted().split(u' ');
    after.sort();
    EXPECT_EQ(after, lines);
}

TEST_F(SortingTest, AHandlerThatThrowsLeavesTheRowsAsTheyWere) {
    rows({u"β|7"_s, u"α|8"_s, u"γ|9"_s, u"x|x"_s});
    grid->setColcnt(1, true);
    const auto connection = QObject::connect(&grid->events(), &Events::Compare,
                                             [](CompareArgs&) { throw std::runtime_error("no"); });
    EXPECT_NO_THROW(grid->Sort(kSortCustom));
    EXPECT_EQ(sorted(), u"β|1 α|2 γ|3 x|x"_s);
    EXPECT_TRUE(grid->Redraw());
    EXPECT_NO_THROW(grid->SortGrid(kSortCustom));
    QObject::disconnect(connection);
    grid->Sort(kSortTextUp);
    EXPECT_EQ(sorted(), u"α|1 β|2 γ|3 x|x"_s) << "and the next sort works";
}

TEST_F(SortingTest, AHandlerThatChangesRowsEndsWithoutAnOrder) {
    rows({u"δ"_s, u"γ"_s, u"β"_s, u"α"_s, u"x"_s});
    QObject::connect(&grid->events(), &Events::Compare, [&](CompareArgs& e) {
        if (grid->Rows() > 3)
            grid->RemoveItem(1);
        e.Cmp = 1;
    });
    EXPECT_NO_THROW(grid->Sort(kSortCustom));
    EXPECT_EQ(sorted(), u"α x"_s);
}

TEST_F(SortingTest, AHandlerThatSortsIsNotFollowed) {
    rows({u"γ"_s, u"α"_s, u"β"_s, u"x"_s});
    compareDownwards();
    QObject::connect(&grid->events(), &Events::Compare, [&](CompareArgs&) { grid->SortGrid(kSortCustom); });
    EXPECT_NO_THROW(grid->Sort(kSortCustom));
    EXPECT_EQ(sorted(), u"γ β α x"_s);
}

TEST_F(SortingTest, AHandlerMayDestroyTheControl) {
    for (const bool direct : {false, true}) {
        grid = std::make_unique<ZkpGrid>(host);
        rows({u"β"_s, u"α"_s, u"γ"_s, u"x"_s});
        grid->Sort(kSortTextUp);
        grid->MSFlexGrid1().Select(1, 0);
        QObject::connect(&grid->events(), &Events::Compare, [this](CompareArgs&) { grid.reset(); });
        if (direct)
            EXPECT_NO_THROW(grid->MSFlexGrid1().setSort(kSortCustom));
        else
            EXPECT_NO_THROW(grid->Sort(kSortCustom));
        EXPECT_FALSE(grid);
    }
}

// --- The control's own order

TEST_F(SortingTest, DetailsSortInsideTheirGroupsAndTheTotalsRowStaysLast) {
    rows({u"Α|3"_s, u"Α|1"_s});
    add(ZKPTotals, u" |15"_s);
    add(ZKPSubTotals, u"Β|9"_s);
    add(ZKPSingleRow, u"Β|5"_s);
    add(ZKPSubTotals, u"Α|6"_s);
    add(ZKPSingleRow, u"Β|4"_s);
    add(ZKPSingleRow, u"Α|2"_s);
    factors(1);
    grid->setCol(1);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"Α|1 Α|2 Α|3 Α|6 Β|4 Β|5 Β|9  |15"_s);
}

TEST_F(SortingTest, SubtotalsOfTwoLevelsStayBehindTheirGroups) {
    rows({u"Β|β|1"_s});
    add(ZKPSubTotals, u"Α|α|3"_s);
    add(ZKPSubTotals, u"Α||3"_s);
    add(ZKPSubTotals, u"Β||1"_s);
    add(ZKPSingleRow, u"Α|α|2"_s);
    add(ZKPSubTotals, u"Β|β|1"_s);
    add(ZKPSingleRow, u"Α|α|1"_s);
    factors(2);
    grid->setCol(2);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"Α|α|1 Α|α|2 Α|α|3 Α||3 Β|β|1 Β|β|1 Β||1"_s);
}

TEST_F(SortingTest, ABlankKeyStandsBehindAllOthersWithItsSubtotalBehindIt) {
    rows({u"|2"_s, u"ω|1"_s, u"z|1"_s, u"|1"_s});
    add(ZKPSubTotals, u" |3"_s);
    add(ZKPSubTotals, u"ω|1"_s);
    factors(1);
    grid->setCol(1);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"ω|1 ω|1 z|1 |1 |2  |3"_s);
}

TEST_F(SortingTest, InATotalsReportTheInnermostFactorIsAPlainColumn) {
    rows({u"Β|α"_s, u"Α|β"_s, u"Α|α"_s});
    factors(2);
    grid->setTotalForm(true);
    grid->setCol(0);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"Α|β Α|α Β|α"_s) << "equal keys and values keep their order";
}

TEST_F(SortingTest, WithoutFactorsAllRowsAreOneGroup) {
    rows({u"β"_s, u"α"_s});
    add(ZKPSubTotals, u"Α"_s);
    add(ZKPSingleRow, u"ά"_s);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"α ά β Α"_s);
}

TEST_F(SortingTest, TheSortColumnsFieldTypeDecides) {
    connection->Execute(u"create table T (AMOUNT money, STARTS date, CODE text, MARK integer)"_s);
    connection->Execute(u"insert into T values (10, '2026-01-02', '10', 1), (9, '1999-12-31', '9', 2),"
                        "(100, null, '100', 3)"_s);
    columns({u"AMOUNT"_s, u"STARTS"_s, u"CODE"_s, u"MARK"_s});
    fill(u"select * from T order by MARK"_s);
    grid->refresh();
    const auto order = [&](int column) {
        grid->MSFlexGrid1().Select(1, column);
        grid->SortGrid(kSortCustom);
        QString marks;
        for (int r = 1; r < grid->Rows(); ++r)
            marks += grid->TextMatrix(r, 3);
        return marks;
    };
    EXPECT_EQ(order(0), u"213"_s) << "numbers";
    EXPECT_EQ(order(1), u"321"_s) << "dates; the null stands for 01/01/1800";
    EXPECT_EQ(order(2), u"132"_s) << "texts: 10, 100, 9";
    grid->setTextMatrix(1, 1, u"no date"_s);
    grid->setTextMatrix(2, 1, u"31/12/1799"_s);
    EXPECT_EQ(order(1), u"312"_s) << "a text that is no date is later than 1799";
}

TEST_F(SortingTest, TheShareOfTheCountSortsAsANumberWithoutAField) {
    rows({u"10,00"_s, u"9,50"_s, u"100,00"_s});
    grid->setColDataField(0, u"POS_CNT"_s);
    grid->SortGrid(kSortCustom);
    EXPECT_EQ(sorted(), u"9,50 10,00 100,00"_s);
}

TEST_F(SortingTest, TheSurfacesOwnCustomSortAsksTheControl) {
    rows({u"β"_s, u"α"_s});
    grid->MSFlexGrid1().setSort(kSortCustom);
    EXPECT_EQ(sorted(), u"α β"_s);
}
