#include "script_fixture.h"

// Painting by section and marking, as a script has them.

namespace {

class ScriptMarking : public ScriptTest {
protected:
    ScriptMarking() {
        run(QStringLiteral(
            "grid.refresh(); var surface = grid.MSFlexGrid1; surface.VisibleRows = 2;"
            "grid.BackColor = 0xFFFFFF; grid.BackColorSel = 0x800000;"
            "function back(r, c) {"
            "  var was = [surface.Row, surface.Col], on = grid.RowSelect;"
            "  grid.RowSelect = false; surface.Select(r, c); var found = surface.CellBackColor;"
            "  surface.Select(was[0], was[1]); grid.RowSelect = on;"
            "  return found.toString(16); }"));
    }

    static QStringList texts(const char* joined) { return QString::fromUtf8(joined).split(u'|'); }
};

TEST_F(ScriptMarking, AChosenRowTakesTheBandAndRaisesSelectingTwice) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.RowSelect = true; grid.setColIndexKey(1, true); var n = 0;"
                                     "grid.events.Selecting.connect(function () { ++n; });"
                                     "surface.userSelect(3, 1); print(n, grid.PreRow, grid.indkey);"
                                     "print(back(3, 0), back(1, 0));")),
              texts("2 3 0|800000 ffffff"));
}

TEST_F(ScriptMarking, AScrollPaintsTheRowsThatComeIntoSight) {
    EXPECT_EQ(
        linesOf(QStringLiteral(
            "grid.events.StartInterface.connect(function () { print('start'); });"
            "grid.events.StopInterface.connect(function () { print('stop'); });"
            "grid.setRowData(3, ZKPSubTotals); grid.SubTotalsBackColor = 0xC0C0C0;"
            "grid.DrawInterface(); print(back(3, 0));"
            "surface.userScroll(1, 1); surface.userScroll(2, 1); print(back(3, 0), surface.BottomRow);")),
        texts("start|stop|ffffff|start|stop|c0c0c0 3"));
}

TEST_F(ScriptMarking, RowsAndCellsAreMarkedByTheirMethods) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.reversecolor(2, 0x0000FF, 0); print(back(2, 0), back(2, 1));"
                                     "grid.ReverseCell(3, 1, 1, 0x00FF00, 0); print(back(3, 0), back(3, 1));"
                                     "grid.PreBackColor = 0x80000005; grid.Releasemark(2); print(back(2, 0));"
                                     "grid.RedrawRow(3); print(back(3, 1));")),
              texts("ff ff|ffffff ff00|80000005|80000005"));
}

TEST_F(ScriptMarking, FontsTakeWhatIsGivenAndTheSurfacesOwnForTheRest) {
    EXPECT_EQ(linesOf(QStringLiteral("function font(r, c) { surface.Select(r, c);"
                                     "  return surface.CellFontSize + ' ' + surface.CellFontBold; }"
                                     "grid.FontsRow(2, 'Arial', 14, true); print(font(2, 0));"
                                     "grid.FontsRow(2, undefined, undefined, true); print(font(2, 0));"
                                     "grid.CellFonts(2, 1, 'Arial', 9); print(font(2, 0), font(2, 1));"
                                     "grid.SetCellFonts(1, 'Arial', 20, true, false, false, 1);"
                                     "print(font(1, 0), font(1, 1));")),
              texts("14 true|8 true|8 true 9 false|8 false 20 true"));
}

TEST_F(ScriptMarking, OptionalArgumentsMayBeLeftOutAndSurplusOnesAreErrors) {
    for (const char* call : {"RefreshInterface()", "RefreshInterface(0)", "PaintGroupBlock()",
                             "PaintGroupBlock(false)", "Selectrow()", "makeRowByrow()", "CellFonts(1, 0)",
                             "FontsRow(1)", "SetCellFonts(1, 'Arial', 8, false, false, false, 0, 2, 1)"})
        EXPECT_EQ(errorOf(QStringLiteral("grid.") + QLatin1String(call)), QStringLiteral("none")) << call;
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Selectrow(1)")), 450);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.reversecolor(1)")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.reversecolor('a', 1, 1)")), 13);
}

TEST_F(ScriptMarking, AFailingHandlerOfSelectingEndsTheScript) {
    EXPECT_EQ(run(QStringLiteral("grid.events.Selecting.connect(function () { throw new Error('no'); });\n"
                                 "surface.userSelect(2, 1); print('not reached');")),
              1);
    EXPECT_EQ(output, QStringList());
    EXPECT_TRUE(errors.value(0).contains(QStringLiteral("no"))) << qPrintable(errors.join(u'\n'));
}

} // namespace
