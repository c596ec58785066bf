#include "widgets/tools/clipboard_copy.h"

#include "core/enums.h"
#include "painted_grid.h"

#include <gtest/gtest.h>

namespace {

using namespace zkp;

const QStringList kHeadings{QStringLiteral("Πόλη"), QStringLiteral("Ποσό"), QStringLiteral("Σημείωση")};

class ClipboardCopy : public testing::Test {
protected:
    ClipboardCopy() {
        surface.setLocale(ReportLocale(QLocale(QStringLiteral("el_GR"))));
        surface.setRows(5);
        surface.setCols(3);
        surface.setColAlignment(1, 6);
        put(1, {QStringLiteral("Βόλος"), QStringLiteral("1.234,50"), QStringLiteral("α")});
        put(2, {QStringLiteral("Βόλος"), QStringLiteral("-3,00"), QStringLiteral("β")});
        put(3, {QStringLiteral("Δράμα"), QStringLiteral("0,00"), QStringLiteral("γ")});
    }
    void put(int row, const QStringList& texts) {
        for (int col = 0; col < texts.size(); ++col)
            surface.setTextMatrix(row, col, texts[col]);
    }
    CopiedCells copyOf(int top, int left, int bottom, int right) {
        surface.Select(top, left, bottom, right);
        return copySelection(surface, kHeadings);
    }

    GridSurface surface;
};

TEST_F(ClipboardCopy, ABlockGoesUnderItsHeadings) {
    const CopiedCells cells = copyOf(1, 0, 2, 1);
    EXPECT_EQ(cells.text, QStringLiteral("Πόλη\tΠοσό\nΒόλος\t1.234,50\nΒόλος\t-3,00\n"));
    EXPECT_EQ(cells.html, QStringLiteral("<meta charset=\"utf-8\"><table border=\"1\" cellspacing=\"0\">\n"
                                         "<tr><th>Πόλη</th><th>Ποσό</th></tr>\n"
                                         "<tr><td>Βόλος</td><td align=\"right\">1.234,50</td></tr>\n"
                                         "<tr><td>Βόλος</td><td align=\"right\">-3,00</td></tr>\n"
                                         "</table>\n"));
}

TEST_F(ClipboardCopy, ASelectionThatWasDrawnUpwardsIsTheSame) {
    surface.Select(2, 1, 1, 0);
    EXPECT_EQ(copySelection(surface, kHeadings).text,
              QStringLiteral("Πόλη\tΠοσό\nΒόλος\t1.234,50\nΒόλος\t-3,00\n"));
}

TEST_F(ClipboardCopy, OneCellGoesAlone) {
    const CopiedCells cells = copyOf(1, 1, 1, 1);
    EXPECT_EQ(cells.text, QStringLiteral("1.234,50"));
    EXPECT_EQ(cells.html, QString());
}

TEST_F(ClipboardCopy, CellsThatShowAsOneAreOne) {
    surface.setMergeCells(1);
    surface.setMergeCol(0, true);
    const CopiedCells cells = copyOf(1, 0, 3, 1);
    EXPECT_EQ(cells.text, QStringLiteral("Πόλη\tΠοσό\nΒόλος\t1.234,50\n\t-3,00\nΔράμα\t0,00\n"));
    EXPECT_TRUE(cells.html.contains(QStringLiteral("<td rowspan=\"2\" valign=\"top\">Βόλος</td>")))
        << qPrintable(cells.html);
    EXPECT_EQ(cells.html.count(QStringLiteral("Βόλος")), 1);
    EXPECT_EQ(copyOf(2, 0, 3, 1).text, QStringLiteral("Πόλη\tΠοσό\nΒόλος\t-3,00\nΔράμα\t0,00\n"))
        << "of a block that begins above, the part that is selected";
}

TEST_F(ClipboardCopy, TabsLineEndsAndLeadingQuotationMarksAreQuoted) {
    put(1, {QStringLiteral("α\tβ"), QStringLiteral("δύο\nγραμμές"), QStringLiteral("\"έτσι\" λέει")});
    put(2, {QStringLiteral("σωλήνας 5\""), QStringLiteral("<b>&"), QStringLiteral("τέλος\r")});
    const CopiedCells cells = copyOf(1, 0, 2, 2);
    EXPECT_EQ(cells.text, QStringLiteral("Πόλη\tΠοσό\tΣημείωση\n"
                                         "\"α\tβ\"\t\"δύο\nγραμμές\"\t\"\"\"έτσι\"\" λέει\"\n"
                                         "σωλήνας 5\"\t<b>&\t\"τέλος\r\"\n"));
    EXPECT_TRUE(cells.html.contains(QStringLiteral("&lt;b&gt;&amp;")));
    EXPECT_TRUE(cells.html.contains(QStringLiteral("δύο<br>γραμμές")));
}

TEST_F(ClipboardCopy, HiddenColumnsAndBlankRowsAtTheEndStayBehind) {
    surface.setColHidden(1, true);
    EXPECT_EQ(copyOf(3, 0, 4, 2).text, QStringLiteral("Πόλη\tΣημείωση\nΔράμα\tγ\n"));
}

TEST_F(ClipboardCopy, SumsAreBoldInTheTable) {
    surface.setRowData(3, ZKPTotals);
    EXPECT_TRUE(copyOf(2, 0, 3, 1)
                    .html.contains(QStringLiteral(
                        "<tr style=\"font-weight:bold\"><td>Δράμα</td><td align=\"right\">0,00</td></tr>")));
}

TEST_F(ClipboardCopy, WholeRowsWhereTheReportSelectsThem) {
    GridSurface::Look look = surface.look();
    look.SelectionMode = 1;
    surface.setLook(look);
    EXPECT_EQ(copyOf(1, 1, 1, 1).text, QStringLiteral("Πόλη\tΠοσό\tΣημείωση\nΒόλος\t1.234,50\tα\n"));
}

TEST_F(ClipboardCopy, NothingWithoutABody) {
    surface.setRows(1);
    EXPECT_EQ(copySelection(surface, kHeadings).text, QString());
}

TEST_F(ClipboardCopy, MoreCellsThanATableTakesGoAsTextAlone) {
    surface.setRows(200'002);
    surface.setTextMatrix(200'001, 0, QStringLiteral("τέλος"));
    const CopiedCells cells = copyOf(1, 0, 200'001, 0);
    EXPECT_EQ(cells.html, QString());
    EXPECT_EQ(cells.text.count(u'\n'), 200'002);
    EXPECT_FALSE(copyOf(1, 0, 100, 0).html.isEmpty());
}

/// A report of one group factor of which the first two rows show.
class CopyOfAReport : public PaintedGridTest {};

TEST_F(CopyOfAReport, RowsOutOfSightGoAsTheyWouldShow) {
    giveRecordSource();
    factors(1);
    kinds({1, 1, 1, 1, 1, 9, 10});
    for (int row = 1; row < 8; ++row)
        grid->setTextMatrix(row, 1, QString::number(row));
    grid->setTextMatrix(3, 0, QStringLiteral("Βόλος"));
    surface().setMergeCells(1);
    surface().setMergeCol(0, true);
    surface().setVisibleRows(2);
    grid->DrawInterface();
    surface().Select(3, 0, 6, 1);
    EXPECT_EQ(copySelection(grid->shownRows(), kHeadings).text,
              QStringLiteral("Πόλη\tΠοσό\nΒόλος\t3\n----\t4\n\t5\n\t6\n"));
    surface().Select(4, 0);
    EXPECT_EQ(copySelection(grid->shownRows(), kHeadings).text, QStringLiteral("----"));
    EXPECT_EQ(grid->TextMatrix(4, 0), QString()) << "nothing was written";
}

} // namespace
