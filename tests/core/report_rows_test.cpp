#include "core/report_rows.h"

#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

constexpr int kLastRow = 13;

/// A report of two group factors of which two rows show, the first two. Rows 3 to 13: a detail, a subtotal,
/// two details with a blank factor, a subtotal with one, a row of no kind, two rows of a host's kind, the
/// totals, and two details. Each section has a font size of its own.
class ReportRowsTest : public PaintedGridTest {
protected:
    ReportRowsTest() {
        giveRecordSource();
        factors(2);
        grid->setRows(kLastRow + 1);
        kinds({1, 1, 1, 9, 1, 1, 9, 0, 42, 42, 10, 1, 1});
        for (int row = 1; row <= kLastRow; ++row)
            for (int col = 0; col < 4; ++col)
                grid->setTextMatrix(row, col, u"%1.%2"_s.arg(row).arg(col));
        for (const int row : {5, 6, 7, 8})
            grid->setTextMatrix(row, 1, u" "_s);
        grid->setFixedFontSize(20);
        grid->setFontSize(21);
        grid->setGroupedFontSize(22);
        grid->setSubTotalsFontSize(23);
        grid->setSubTotalsFontName(u"Sub"_s);
        grid->setSubTotalsFontItalic(true);
        grid->setTotalsFontSize(24);
        grid->setTotalsFontUnderline(true);
        surface().setVisibleRows(2);
        surface().setTopRow(1);
        grid->DrawInterface();
    }

    const ReportRows& rows() { return grid->shownRows(); }

    /// The row by sections, as a reader sees it.
    QString read(int row) {
        return letters(row, [this](int r, int c) { return rows().style(r, c); });
    }
    QStringList texts(int row) {
        QStringList texts;
        for (int c = 0; c < grid->Cols(); ++c)
            texts << rows().text(row, c);
        return texts;
    }

    struct Cell {
        QString text;
        CellStyle style;
        bool operator==(const Cell&) const = default;
    };
    std::vector<Cell> asRead(int row) {
        std::vector<Cell> cells;
        for (int c = 0; c < grid->Cols(); ++c)
            cells.push_back({rows().text(row, c), rows().style(row, c)});
        return cells;
    }
    std::vector<Cell> asItStands(int row) {
        std::vector<Cell> cells;
        for (int c = 0; c < grid->Cols(); ++c)
            cells.push_back({grid->TextMatrix(row, c), style(row, c)});
        return cells;
    }

    /// Every row out of sight reads as it stands on the surface once it has been scrolled to.
    void expectAsPainted(const char* when) {
        for (int row = surface().FixedRows(); row < grid->Rows(); ++row) {
            if (surface().RowIsVisible(row))
                continue;
            const std::vector<Cell> unseen = asRead(row);
            surface().setTopRow(row);
            ASSERT_TRUE(surface().RowIsVisible(row)) << when;
            EXPECT_EQ(unseen, asItStands(row)) << when << ", row " << row;
            EXPECT_EQ(unseen, asRead(row)) << when << ", row " << row << ", read again";
            surface().setTopRow(1);
        }
    }
};

// --- Rows out of sight

TEST_F(ReportRowsTest, ARowOutOfSightHasTheColoursOfItsSections) {
    EXPECT_EQ(read(3), u"ggdd"_s);
    EXPECT_EQ(read(4), u"ssss"_s);
    EXPECT_EQ(read(8), u"ggdd"_s) << "a row of no kind: behind the factors the body's colours";
    EXPECT_EQ(read(11), u"tttt"_s);
    EXPECT_EQ(cells(3), u"dddd"_s) << "the surface itself has not been painted there";
    EXPECT_EQ(cells(4), u"dddd"_s);
}

TEST_F(ReportRowsTest, ARowOutOfSightHasTheFontsOfItsSections) {
    EXPECT_EQ(rows().style(0, 2).fontSize, 20);
    EXPECT_EQ(rows().style(3, 1).fontSize, 22);
    EXPECT_TRUE(rows().style(3, 1).bold);
    EXPECT_EQ(rows().style(3, 2).fontSize, 21);
    EXPECT_FALSE(rows().style(3, 2).bold);
    EXPECT_EQ(rows().style(4, 0).fontSize, 23);
    EXPECT_EQ(rows().style(4, 3).fontName, u"Sub"_s);
    EXPECT_TRUE(rows().style(4, 3).italic && rows().style(4, 3).bold);
    EXPECT_EQ(rows().style(11, 3).fontSize, 24);
    EXPECT_TRUE(rows().style(11, 0).underline);
}

TEST_F(ReportRowsTest, ABlankFactorOutOfSightReadsAsTheMark) {
    EXPECT_EQ(texts(5), (QStringList{u"5.0"_s, u"----"_s, u"5.2"_s, u"5.3"_s}));
    EXPECT_EQ(rows().text(8, 1), u"----"_s) << "a row of no kind";
    EXPECT_EQ(rows().text(7, 1), u" "_s) << "a subtotal";
    EXPECT_EQ(grid->TextMatrix(5, 1), u" "_s) << "nothing is written";
    EXPECT_TRUE(rows().isRepeatMark(5, 1, rows().text(5, 1)));
    EXPECT_FALSE(rows().isRepeatMark(5, 0, rows().text(5, 0)));
    EXPECT_FALSE(rows().isRepeatMark(7, 1, u"----"_s)) << "no factor of a subtotal";
}

TEST_F(ReportRowsTest, EachCellIsOfASection) {
    EXPECT_EQ(rows().section(0, 0), Section::Heading);
    EXPECT_EQ(rows().section(3, 1), Section::GroupFactors);
    EXPECT_EQ(rows().section(3, 2), Section::Details);
    EXPECT_EQ(rows().section(4, 0), Section::SubTotals);
    EXPECT_EQ(rows().section(8, 2), Section::Details);
    EXPECT_EQ(rows().section(11, 0), Section::Totals);
    EXPECT_EQ(rows().kind(11), ZKPTotals);
    EXPECT_EQ(rows().kind(9), 42);
}

TEST_F(ReportRowsTest, ScrollingToARowChangesNothingThatIsRead) {
    expectAsPainted("as loaded");
}

TEST_F(ReportRowsTest, RowsInSightReadAsTheyStand) {
    EXPECT_EQ(asRead(1), asItStands(1));
    EXPECT_EQ(asRead(2), asItStands(2));
    EXPECT_EQ(asRead(0), asItStands(0));
}

TEST_F(ReportRowsTest, OtherColoursReachRowsThatHadTheOldOnes) {
    grid->RefreshInterface(-1);
    ASSERT_EQ(cells(4), u"ssss"_s) << "painted out of sight";
    grid->setSubTotalsBackColor(kTotal);
    grid->setSubTotalsForeColor(kTotal + 1);
    grid->setGroupedFontSize(30);
    EXPECT_EQ(read(4), u"tttt"_s);
    EXPECT_EQ(rows().style(3, 0).fontSize, 30);
    grid->DrawInterface();
    expectAsPainted("other colours");
}

TEST_F(ReportRowsTest, TheSurfacesOwnColoursAndFontAreThoseOfDetails) {
    grid->setBackColor(kTotal);
    grid->setForeColor(kTotal + 1);
    grid->setFontSize(9);
    EXPECT_EQ(read(3), u"ggtt"_s);
    EXPECT_EQ(read(4), u"ssss"_s);
    EXPECT_EQ(rows().style(4, 0).fontSize, 23);
    EXPECT_EQ(rows().style(3, 3).fontSize, 9);
    grid->DrawInterface();
    expectAsPainted("another body");
}

TEST_F(ReportRowsTest, WithoutARecordSourceRowsReadAsTheyStand) {
    grid->setRecordSource(QVariant());
    EXPECT_EQ(asRead(4), asItStands(4));
    EXPECT_EQ(rows().text(5, 1), u" "_s);
}

TEST_F(ReportRowsTest, AReportOfFactorsAloneHasNeitherSumsNorMarks) {
    factors(4);
    EXPECT_EQ(read(4), u"gggg"_s);
    EXPECT_EQ(rows().text(5, 1), u" "_s);
    grid->DrawInterface();
    expectAsPainted("factors alone");
}

TEST_F(ReportRowsTest, FixedColumnsBehindTheFactorsHaveTheColoursOfDetails) {
    grid->setFixedCols(3);
    EXPECT_EQ(read(3), u"ggdd"_s);
    grid->DrawInterface();
    expectAsPainted("fixed columns");
}

TEST_F(ReportRowsTest, ASurfaceAloneReadsAsItStands) {
    const ReportRows alone(surface());
    EXPECT_EQ(alone.text(5, 1), u" "_s);
    EXPECT_EQ(alone.style(4, 0), style(4, 0));
    EXPECT_EQ(alone.section(4, 0), Section::SubTotals);
    EXPECT_EQ(alone.section(3, 0), Section::Details);
}

// --- What a host wrote

TEST_F(ReportRowsTest, AMarkOnARowOutOfSightStandsOverItsSection) {
    grid->ReverseCell(4, 1, 2, kMark, kMark + 1);
    EXPECT_EQ(read(4), u"smms"_s);
    EXPECT_EQ(rows().style(4, 1).fontSize, 23) << "only colours were given";
    surface().setTopRow(4);
    EXPECT_EQ(read(4), u"ssss"_s) << "painted over, as on the surface";
    EXPECT_EQ(asRead(4), asItStands(4));
}

TEST_F(ReportRowsTest, OneAttributeOfAMarkLeavesTheOthersToTheSection) {
    grid->setRow(4);
    grid->setCol(2);
    surface().setFillStyle(0);
    grid->setCellForeColor(kMark + 1);
    surface().setCellFontStrikeThrough(true);
    EXPECT_EQ(rows().style(4, 2).backColor, kSub);
    EXPECT_EQ(rows().style(4, 2).foreColor, kMark + 1);
    EXPECT_TRUE(rows().style(4, 2).strikethru);
    EXPECT_TRUE(rows().style(4, 2).bold);
}

TEST_F(ReportRowsTest, AFontOfARowOutOfSightStandsUntilTheBodyTakesItsOwn) {
    grid->FontsRow(3, {}, 40);
    EXPECT_EQ(rows().style(3, 2).fontSize, 40);
    EXPECT_EQ(rows().style(3, 0).fontSize, 40);
    grid->DrawInterface();
    EXPECT_EQ(rows().style(3, 2).fontSize, 21);
    EXPECT_EQ(rows().style(3, 0).fontSize, 22);
    expectAsPainted("a font written over");
}

TEST_F(ReportRowsTest, TextsOfAHostStand) {
    grid->setTextMatrix(5, 1, u"Βόλος"_s);
    grid->setTextMatrix(6, 0, QString());
    EXPECT_EQ(rows().text(5, 1), u"Βόλος"_s);
    EXPECT_EQ(rows().text(6, 0), u"----"_s) << "blank is blank, whoever wrote it";
    expectAsPainted("texts of a host");
}

TEST_F(ReportRowsTest, StripesAreMarks) {
    grid->setRow1BackColor(kMark);
    grid->setRow1ForeColor(kMark + 1);
    grid->setRowByRow(true);
    expectAsPainted("striped by nobody yet");
    grid->makeRowByrow();
    EXPECT_EQ(read(3), u"mmmm"_s);
    EXPECT_EQ(read(4), u"ssss"_s) << "between the stripes is the section";
    EXPECT_EQ(read(6), u"ggdd"_s);
    EXPECT_EQ(read(11), u"mmmm"_s);
    surface().setTopRow(3);
    EXPECT_EQ(read(3), u"ggdd"_s) << "painting takes them away, here as there";
    EXPECT_EQ(cells(3), u"ggdd"_s);
}

// --- The band

TEST_F(ReportRowsTest, TheBandIsNotRead) {
    grid->setRowSelect(true);
    grid->setRow(2);
    ASSERT_EQ(cells(2), u"ggbb"_s);
    EXPECT_EQ(read(2), u"ggdd"_s);
    grid->setRow(4);
    ASSERT_EQ(cells(4), u"ddbb"_s);
    EXPECT_EQ(read(4), u"ssss"_s) << "out of sight";
    EXPECT_EQ(read(2), u"ggdd"_s);
    grid->setRow(5);
    EXPECT_EQ(read(4), u"ssss"_s) << "and when it has left";
}

TEST_F(ReportRowsTest, AMarkUnderTheBandIsRead) {
    grid->setRowSelect(true);
    grid->reversecolor(5, kMark, kMark + 1);
    grid->setRow(5);
    ASSERT_EQ(cells(5), u"mmbb"_s);
    EXPECT_EQ(read(5), u"mmmm"_s);
    grid->setRow(6);
    EXPECT_EQ(read(5), u"mmmm"_s);
    grid->reversecolor(6, kMark, kMark + 1);
    ASSERT_EQ(cells(6), u"mmbb"_s);
    EXPECT_EQ(read(6), u"mmmm"_s) << "marked while the band stood there";
    grid->setRow(1);
    EXPECT_EQ(read(6), u"mmmm"_s);
}

TEST_F(ReportRowsTest, TheBandOfARowOfNoKindGivesBackWhatItCovers) {
    grid->setRowSelect(true);
    grid->setRow(8);
    ASSERT_EQ(cells(8), u"ddbb"_s);
    EXPECT_EQ(read(8), u"ggdd"_s);
}

TEST_F(ReportRowsTest, TheBandOfASurfaceThatNothingWasLoadedOnIsNotReadEither) {
    grid->setRecordSource(QVariant());
    grid->setRowSelect(true);
    grid->setRow(4);
    ASSERT_EQ(cells(4), u"ddbb"_s);
    EXPECT_EQ(read(4), u"dddd"_s);
}

TEST_F(ReportRowsTest, AReleasedRowIsOfItsSectionAgain) {
    grid->setRowSelect(true);
    grid->setRow(2);
    grid->reversecolor(6, kMark, kMark + 1);
    EXPECT_EQ(read(6), u"mmmm"_s);
    grid->Releasemark(6);
    EXPECT_EQ(read(6), u"ggdd"_s);
}

// --- Other shapes

TEST_F(ReportRowsTest, AfterASortRowsKeepTheirOwnMarksAndKinds) {
    grid->reversecolor(3, kMark, kMark + 1);
    for (int row = 1; row <= kLastRow; ++row)
        grid->setTextMatrix(row, 3, QString::number(100 - row));
    surface().Select(1, 3);
    grid->SortGrid(kSortNumericUp);
    ASSERT_EQ(grid->TextMatrix(11, 3), u"97"_s) << "row 3 is the third last now";
    EXPECT_EQ(read(11), u"mmmm"_s);
    EXPECT_EQ(read(10), u"ssss"_s);
    EXPECT_EQ(read(3), u"tttt"_s) << "the totals, which a sort of all rows moves too";
    EXPECT_EQ(read(12), u"ggdd"_s) << "painted once, and out of sight now";
    EXPECT_EQ(rows().text(9, 1), u"----"_s);
    surface().setTopRow(11); // takes the mark away
    surface().setTopRow(1);
    expectAsPainted("sorted");
}

TEST_F(ReportRowsTest, AnInsertedFactorIsBlankAndReadsAsTheMark) {
    grid->InsertColumn(1);
    grid->setColForTot(1, true);
    grid->CheckGroupBy();
    ASSERT_EQ(grid->Cols(), 5);
    ASSERT_EQ(grid->GroupFactorCount(), 3);
    EXPECT_EQ(texts(3), (QStringList{u"3.0"_s, u"----"_s, u"3.1"_s, u"3.2"_s, u"3.3"_s}));
    EXPECT_EQ(read(3), u"gggdd"_s);
    EXPECT_EQ(read(4), u"sssss"_s);
    grid->DrawInterface();
    expectAsPainted("an inserted factor");
}

TEST_F(ReportRowsTest, InATotalsReportAllFactorsAreOfTheGroupsSection) {
    grid->setTotalForm(true);
    grid->PaintGroupBlock();
    EXPECT_EQ(read(3), u"ggdd"_s) << "as the next painting has it, whatever the block left plain";
    EXPECT_EQ(rows().style(3, 1).fontSize, 22);
    expectAsPainted("the totals form");
}

TEST_F(ReportRowsTest, HiddenColumnsReadLikeTheOthers) {
    surface().setColHidden(1, true);
    surface().setColHidden(3, true);
    EXPECT_EQ(read(3), u"ggdd"_s);
    EXPECT_EQ(rows().text(5, 1), u"----"_s);
    expectAsPainted("hidden columns");
}

TEST_F(ReportRowsTest, CellsJoinByWhatIsRead) {
    surface().setMergeCells(1);
    surface().setMergeCol(1, true);
    const auto joins = [this](int row, int col) {
        return rows().joinsAbove(row, col, rows().text(row, col));
    };
    EXPECT_FALSE(joins(5, 1));
    EXPECT_TRUE(joins(6, 1)) << "the marks of two rows";
    EXPECT_FALSE(joins(7, 1)) << "a subtotal's cell stays blank";
    EXPECT_FALSE(joins(6, 0));
    grid->setTextMatrix(6, 0, u"5.0"_s);
    EXPECT_FALSE(joins(6, 0)) << "a column that doesn't merge";
    surface().setMergeCol(0, true);
    EXPECT_TRUE(joins(6, 0));
    grid->setTextMatrix(0, 0, u"1.0"_s);
    EXPECT_FALSE(joins(1, 0)) << "a heading and the body";
    surface().setMergeCells(0);
    EXPECT_FALSE(joins(6, 0));
}

TEST_F(ReportRowsTest, ARowIsBlankWhenNothingIsRead) {
    for (int col = 0; col < 4; ++col)
        for (const int row : {4, 5})
            grid->setTextMatrix(row, col, u" "_s);
    EXPECT_TRUE(rows().isBlank(4)) << "a subtotal";
    EXPECT_FALSE(rows().isBlank(5)) << "its factors show the mark";
    EXPECT_FALSE(rows().isBlank(3));
}

TEST_F(ReportRowsTest, ReadingWritesNothing) {
    grid->setRows(2001);
    for (int row = 1; row <= 2000; ++row)
        surface().setRowData(row, row % 5 == 0 ? ZKPSubTotals : ZKPSingleRow);
    grid->DrawInterface();
    surface().takeCosts();
    for (int row = 1000; row < 1500; ++row)
        for (int col = 0; col < 4; ++col) {
            rows().text(row, col);
            rows().style(row, col);
        }
    const GridSurface::Costs costs = surface().takeCosts();
    EXPECT_EQ(costs.styleWrites, 0);
    EXPECT_EQ(costs.rowsTouched, 0);
    EXPECT_EQ(costs.rowsCopied, 0);
    EXPECT_EQ(costs.textsMade, 500 * 4);
    EXPECT_EQ(surface().inconsistency(), QString());
}

} // namespace
