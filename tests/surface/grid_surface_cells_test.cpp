#include "surface/grid_surface.h"

#include "error_of.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using namespace zkp::test;

namespace {

const ReportLocale& greek() {
    static const ReportLocale locale{QLocale(QLocale::Greek, QLocale::Greece)};
    return locale;
}

/// Columns "a0"... and amounts 0, 1, 2..., bound to `rows` body rows.
GridSurface::LayoutId bindSample(GridSurface& surface, int rows) {
    std::vector<SampleValue> amounts;
    for (int i = 0; i < rows; ++i)
        amounts.emplace_back(Currency::fromWhole(i));
    surface.setLocale(greek());
    surface.setRows(rows + 1);
    const auto layout = surface.addLayout(
        {{numberedTexts("a", rows), CellFormat::OwnText}, {sampleColumn(amounts), CellFormat::Grouped2}});
    surface.bindRows(1, rows, layout, {}, 1);
    return layout;
}

} // namespace

TEST(SurfaceCells, EveryIndexOutsideIsAnErrorOfItsOwn) {
    GridSurface surface;
    for (const int row : {-1, 2, 2'000'000'000}) {
        EXPECT_EQ(errorNumber([&] { surface.TextMatrix(row, 0); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.setTextMatrix(row, 0, u("x")); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.RowData(row); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.setRowData(row, 1); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.styleAt(row, 0); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.setRow(row); }), kErrInvalidRow);
        EXPECT_EQ(errorNumber([&] { surface.setRowSel(row); }), kErrInvalidRow);
    }
    for (const int col : {-1, 2, 2'000'000'000}) {
        EXPECT_EQ(errorNumber([&] { surface.TextMatrix(0, col); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.setTextMatrix(0, col, u("x")); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.ColWidth(col); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.setColPosition(0, col); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.setCol(col); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.setColSel(col); }), kErrInvalidColumn);
        EXPECT_EQ(errorNumber([&] { surface.ColData(col); }), kErrInvalidColumn);
    }
    EXPECT_EQ(errorNumber([&] { surface.TextArray(4); }), kErrInvalidArrayIndex);
    EXPECT_EQ(errorNumber([&] { surface.setTextArray(-1, {}); }), kErrInvalidArrayIndex);
}

TEST(SurfaceCells, TheFlatIndexIsRowTimesColsPlusCol) {
    GridSurface surface;
    surface.setCols(3);
    surface.setTextArray(5, u("x"));
    EXPECT_EQ(surface.TextMatrix(1, 2), u("x"));
    EXPECT_EQ(surface.TextArray(5), u("x"));
}

TEST(SurfaceCells, TextGoesToTheCurrentCellOrTheSelectedBlock) {
    GridSurface surface;
    surface.setRows(4);
    surface.Select(3, 1, 2, 0);
    surface.setText(u("one"));
    EXPECT_EQ(surface.TextMatrix(3, 1), u("one"));
    EXPECT_EQ(surface.TextMatrix(2, 0), QString());
    surface.setFillStyle(1);
    surface.setText(u("all"));
    EXPECT_EQ(surface.TextMatrix(2, 0), u("all"));
    EXPECT_EQ(surface.TextMatrix(3, 1), u("all"));
    EXPECT_EQ(surface.TextMatrix(1, 0), QString());
    EXPECT_EQ(surface.Text(), u("all"));
}

TEST(SurfaceCells, BoundRowsShowTheirRecords) {
    GridSurface surface;
    bindSample(surface, 1500);
    EXPECT_EQ(surface.TextMatrix(1, 0), u("a0"));
    EXPECT_EQ(surface.TextMatrix(1500, 0), u("a1499"));
    EXPECT_EQ(surface.TextMatrix(1500, 1), u("1.499,00"));
    EXPECT_EQ(surface.RowData(1500), 1);
    EXPECT_EQ(surface.RowData(0), 0);
}

TEST(SurfaceCells, AWrittenTextWinsOverTheRecordAnEmptyOneToo) {
    GridSurface surface;
    bindSample(surface, 3);
    surface.setTextMatrix(2, 0, u("mine"));
    surface.setTextMatrix(2, 1, QString());
    EXPECT_EQ(surface.TextMatrix(2, 0), u("mine"));
    EXPECT_EQ(surface.TextMatrix(2, 1), QString());
    EXPECT_EQ(surface.TextMatrix(1, 1), u("0,00"));
}

TEST(SurfaceCells, AWholeColumnIsBlankedBelowItsHeading) {
    GridSurface surface;
    bindSample(surface, 3);
    surface.setTextMatrix(0, 0, u("heading"));
    surface.setTextMatrix(2, 0, u("mine"));
    surface.setTextMatrix(3, 1, u("other"));
    surface.setFillStyle(1);
    surface.Select(1, 0, 3, 0);
    surface.setText({});
    EXPECT_EQ(surface.TextMatrix(0, 0), u("heading"));
    for (int row = 1; row <= 3; ++row)
        EXPECT_EQ(surface.TextMatrix(row, 0), QString());
    EXPECT_FALSE(surface.IsRowBlank(1)) << "the other column";
    EXPECT_EQ(surface.TextMatrix(1, 1), u("0,00"));
    EXPECT_EQ(surface.TextMatrix(3, 1), u("other"));
    surface.Select(3, 1, 1, 0);
    surface.setText({});
    EXPECT_TRUE(surface.IsRowBlank(1));
    EXPECT_TRUE(surface.IsRowBlank(3));
    surface.setTextMatrix(2, 0, u("again"));
    EXPECT_EQ(surface.TextMatrix(2, 0), u("again"));
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceCells, RowsBoundAfterABlankingShowTheirRecords) {
    GridSurface surface;
    const auto layout = bindSample(surface, 3);
    surface.bindRow(0, layout, 2, 0); // a heading that shows a record
    surface.setFillStyle(1);
    surface.Select(1, 0, 3, 0);
    surface.setText({});
    EXPECT_EQ(surface.TextMatrix(0, 0), u("a2"));
    surface.bindRow(2, layout, 1, 1);
    EXPECT_EQ(surface.TextMatrix(2, 0), u("a1"));
    EXPECT_EQ(surface.TextMatrix(1, 0), QString());
}

TEST(SurfaceCells, AColumnMovesAfterItsBlankingAsBefore) {
    GridSurface surface;
    bindSample(surface, 3);
    surface.setFillStyle(1);
    surface.Select(1, 0, 3, 0);
    surface.setText({});
    surface.setColPosition(0, 1);
    EXPECT_EQ(surface.TextMatrix(1, 0), u("0,00"));
    EXPECT_EQ(surface.TextMatrix(1, 1), QString());
}

TEST(SurfaceCells, BindingARowAgainTakesItsTextsAway) {
    GridSurface surface;
    const auto layout = bindSample(surface, 3);
    surface.setTextMatrix(2, 0, u("mine"));
    surface.bindRow(2, layout, 0, 4);
    EXPECT_EQ(surface.TextMatrix(2, 0), u("a0"));
    EXPECT_EQ(surface.RowData(2), 4);
}

TEST(SurfaceCells, RowsBindInAnyOrderOfRecords) {
    GridSurface surface;
    const auto layout = bindSample(surface, 5);
    surface.bindRows(
        2, 3, layout, [](int i) { return static_cast<std::uint32_t>(4 - i); }, 9);
    EXPECT_EQ(surface.TextMatrix(1, 0), u("a0"));
    EXPECT_EQ(surface.TextMatrix(2, 0), u("a4"));
    EXPECT_EQ(surface.TextMatrix(4, 0), u("a2"));
    EXPECT_EQ(surface.TextMatrix(5, 0), u("a4"));
    EXPECT_EQ(surface.RowData(3), 9);
}

TEST(SurfaceCells, BindingOutsideIsAnError) {
    GridSurface surface;
    const auto layout = bindSample(surface, 5);
    EXPECT_EQ(errorNumber([&] { surface.bindRow(6, layout, 0, 1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.bindRows(3, 4, layout, {}, 1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.bindRows(3, 2'147'483'647, layout, {}, 1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.bindRow(1, 99, 0, 1); }), kErrInvalidCall);
    EXPECT_EQ(errorNumber([&] { surface.bindRow(1, 0, 0, 1); }), kErrInvalidCall);
    surface.bindRow(1, layout, 4'000'000'000u, 1);
    EXPECT_EQ(surface.TextMatrix(1, 0), QString()) << "a record past the end shows nothing";
}

TEST(SurfaceCells, ASubtotalRowInsertedWhereTheReaderStandsPushesTheRecordDown) {
    GridSurface surface;
    const auto layout = bindSample(surface, 3);
    surface.setRows(1);
    surface.setRows(4);
    const auto again = surface.addLayout({{numberedTexts("a", 3), CellFormat::OwnText}});
    EXPECT_LE(again, layout) << "layouts of the rows that are gone are gone";
    surface.bindRow(1, again, 0, 1);
    surface.bindRow(2, again, 1, 1);
    surface.AddItem(QString(), 2);
    surface.setTextMatrix(2, 0, u("sum"));
    surface.setRowData(2, 9);
    surface.bindRow(4, again, 2, 1);
    QStringList rows;
    for (int row = 1; row < surface.Rows(); ++row)
        rows += surface.TextMatrix(row, 0) + QString::number(surface.RowData(row));
    EXPECT_EQ(rows, (QStringList{u("a01"), u("sum9"), u("a11"), u("a21")}));
}

TEST(SurfaceCells, AMovedColumnTakesAllItsThingsAlong) {
    GridSurface surface;
    bindSample(surface, 2);
    surface.setTextMatrix(0, 0, u("head"));
    surface.setTextMatrix(1, 0, u("own"));
    surface.setColWidth(0, 500);
    surface.setColData(0, 42);
    surface.setColAlignment(0, 7);
    surface.setColHidden(0, true);
    surface.setColPosition(0, 1);
    EXPECT_EQ(surface.TextMatrix(0, 1), u("head"));
    EXPECT_EQ(surface.TextMatrix(1, 1), u("own"));
    EXPECT_EQ(surface.TextMatrix(2, 1), u("a1"));
    EXPECT_EQ(surface.TextMatrix(2, 0), u("1,00"));
    EXPECT_EQ(surface.ColWidth(1), 500);
    EXPECT_EQ(surface.ColData(1), QVariant(42));
    EXPECT_EQ(surface.ColAlignment(1), 7);
    EXPECT_TRUE(surface.ColHidden(1));
}

TEST(SurfaceCells, AColumnAddedAfterwardsIsBlank) {
    GridSurface surface;
    bindSample(surface, 2);
    surface.setColPosition(1, 0);
    surface.setCols(1); // the texts go
    surface.setCols(3);
    EXPECT_EQ(surface.TextMatrix(2, 0), u("1,00"));
    EXPECT_EQ(surface.TextMatrix(2, 1), QString());
    EXPECT_EQ(surface.TextMatrix(2, 2), QString());
}

TEST(SurfaceCells, TheLocaleCountsWhenATextIsMade) {
    GridSurface surface;
    bindSample(surface, 1200);
    surface.setLocale(ReportLocale(QLocale(QLocale::English, QLocale::UnitedStates)));
    EXPECT_EQ(surface.TextMatrix(1200, 1), u("1,199.00"));
}

TEST(SurfaceCells, AHundredMegabyteTextComesBack) {
    GridSurface surface;
    const QString text(100'000'000, u'x');
    surface.setTextMatrix(1, 0, text);
    EXPECT_EQ(surface.TextMatrix(1, 0).size(), 100'000'000);
    surface.setTextMatrix(1, 0, u("short"));
    EXPECT_EQ(surface.TextMatrix(1, 0), u("short"));
    const std::string bytes(100'000'000, 'y');
    const auto layout = surface.addLayout({{sampleColumn({bytes}), CellFormat::OwnText}});
    surface.bindRow(1, layout, 0, 1);
    EXPECT_EQ(surface.TextMatrix(1, 0).size(), 100'000'000);
}

TEST(SurfaceCells, EqualNeighboursMergeOnlyWhereAskedAndWithinTheGivenRows) {
    GridSurface surface;
    surface.setRows(1);
    for (const char* text : {"a", "a", "a", " ", " ", "b"})
        surface.AddItem(u(text));
    surface.setTextMatrix(0, 0, u("a"));
    EXPECT_EQ(surface.mergedRange(2, 0, 1, 6), (CellRange{2, 0, 2, 0})) << "merging is off";
    surface.setMergeCells(1);
    surface.setMergeCol(0, true);
    EXPECT_EQ(surface.mergedRange(2, 0, 0, 6), (CellRange{1, 0, 3, 0})) << "the heading stays apart";
    EXPECT_EQ(surface.mergedRange(2, 0, 2, 6), (CellRange{2, 0, 3, 0}));
    EXPECT_EQ(surface.mergedRange(4, 0, 1, 6), (CellRange{4, 0, 4, 0})) << "blanks never merge";
    EXPECT_EQ(surface.mergedRange(1, 1, 1, 6), (CellRange{1, 1, 1, 1}));
}

TEST(SurfaceCells, ARowMergesAcross) {
    GridSurface surface;
    surface.setCols(4);
    surface.setMergeCells(1);
    for (int col = 1; col < 4; ++col)
        surface.setTextMatrix(1, col, u("t"));
    surface.setMergeRow(1, true);
    EXPECT_EQ(surface.mergedRange(1, 2, 1, 1), (CellRange{1, 1, 1, 3}));
    surface.setMergeRow(1, false);
    EXPECT_EQ(surface.mergedRange(1, 2, 1, 1), (CellRange{1, 2, 1, 2}));
}

TEST(SurfaceCells, MergingLooksNoFurtherThanTheGivenRows) {
    GridSurface surface;
    std::vector<SampleValue> same(100'000, std::string("same"));
    surface.setRows(100'001);
    surface.setMergeCells(1);
    surface.setMergeCol(0, true);
    surface.bindRows(1, 100'000, surface.addLayout({{sampleColumn(same), CellFormat::OwnText}}), {}, 1);
    surface.takeCosts();
    EXPECT_EQ(surface.mergedRange(50'010, 0, 50'000, 50'040), (CellRange{50'000, 0, 50'040, 0}));
    EXPECT_LE(surface.takeCosts().textsMade, 42);
}
