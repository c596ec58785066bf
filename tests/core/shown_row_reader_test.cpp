#include "core/shown_row_reader.h"

#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// 1,000 rows of one group factor, in fours with the same value, the last of the four blank. The last row
/// of each ten is a subtotal. Two rows show.
class ShownRowReaderTest : public PaintedGridTest {
protected:
    static constexpr int kRows = 1000;

    ShownRowReaderTest() {
        giveRecordSource();
        factors(1);
        grid->setRows(kRows + 1);
        for (int row = 1; row <= kRows; ++row) {
            surface().setRowData(row, row % 10 == 0 ? ZKPSubTotals : ZKPSingleRow);
            if (row % 4 != 3)
                grid->setTextMatrix(row, 0, u"g%1"_s.arg(row / 4));
            grid->setTextMatrix(row, 1, u"a"_s);
            grid->setTextMatrix(row, 2, QString::number(row));
        }
        surface().setMergeCells(1);
        surface().setMergeCol(0, true);
        surface().setVisibleRows(2);
        surface().setTopRow(1);
        grid->DrawInterface();
    }

    static QString line(const ShownRow& row) {
        QStringList cells;
        for (const ShownCell& cell : row.cells)
            cells << (cell.joinsAbove ? u"^"_s : QString()) + (cell.isRepeatMark ? u"*"_s : QString()) +
                         cell.text;
        return u"%1/%2: "_s.arg(row.row).arg(row.kind) + cells.join(u" | "_s);
    }
};

TEST_F(ShownRowReaderTest, RowsComeWithTheirKindsAndTheColumnsAskedFor) {
    ShownRowReader reader(grid->shownRows(), {0, 2});
    EXPECT_EQ(line(reader.read(500)), u"500/9: g125 | 500"_s);
    EXPECT_EQ(line(reader.read(501)), u"501/1: ^g125 | 501"_s);
    EXPECT_EQ(line(reader.read(502)), u"502/1: ^g125 | 502"_s);
    EXPECT_EQ(line(reader.read(503)), u"503/1: *---- | 503"_s);
    EXPECT_EQ(line(reader.read(502)), u"502/1: ^g125 | 502"_s) << "in any order";
    EXPECT_EQ(line(reader.read(1000)), u"1000/9: g250 | 1000"_s);
}

TEST_F(ShownRowReaderTest, CellsCarryTheirSectionAndStyle) {
    ShownRowReader reader(grid->shownRows(), {2, 0});
    const ShownRow detail = reader.read(503);
    ASSERT_EQ(detail.cells.size(), 2u);
    EXPECT_EQ(detail.cells[0].col, 2);
    EXPECT_EQ(detail.cells[0].section, Section::Details);
    EXPECT_EQ(detail.cells[0].style.backColor, kDetail);
    EXPECT_EQ(detail.cells[1].section, Section::GroupFactors);
    EXPECT_EQ(detail.cells[1].style.backColor, kGroup);
    const ShownRow& sum = reader.read(500);
    EXPECT_EQ(sum.cells[1].section, Section::SubTotals);
    EXPECT_EQ(sum.cells[1].style.backColor, kSub);
}

TEST_F(ShownRowReaderTest, RowsInOrderMakeEachTextOnce) {
    ShownRowReader reader(grid->shownRows(), {0, 1, 2});
    reader.read(100);
    surface().takeCosts();
    for (int row = 101; row <= 600; ++row)
        reader.read(row);
    const GridSurface::Costs costs = surface().takeCosts();
    EXPECT_EQ(costs.textsMade, 500 * 3);
    EXPECT_EQ(costs.styleWrites, 0);
    EXPECT_EQ(costs.rowsTouched, 0);
}

TEST_F(ShownRowReaderTest, AJumpCostsTheCellsAboveOfColumnsThatMerge) {
    ShownRowReader reader(grid->shownRows(), {0, 1, 2});
    reader.read(100);
    surface().takeCosts();
    reader.read(901);
    EXPECT_EQ(surface().takeCosts().textsMade, 3 + 1);
}

TEST_F(ShownRowReaderTest, ARowThatIsNotThereIsAnErrorAndNoRowAbove) {
    ShownRowReader reader(grid->shownRows(), {0});
    EXPECT_EQ(errorNumber([&] { reader.read(kRows + 1); }), kErrInvalidRow);
    EXPECT_EQ(line(reader.read(502)), u"502/1: ^g125"_s);
}

} // namespace
