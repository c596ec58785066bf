#include "script_fixture.h"

namespace {

/// A surface of four rows: three to sort, and the last, which `Sort` leaves out.
class ScriptSorting : public ScriptTest {
protected:
    ScriptSorting() {
        linesOf(QStringLiteral("grid.Rows = 1;"
                               "for (const t of ['β', 'α', 'γ', 'x']) grid.AddItem(t);"
                               "function rows() { let all = '';"
                               "    for (let r = 1; r < grid.Rows; r++) all += grid.TextMatrix(r, 0);"
                               "    return all; }"
                               "function downwards(e) {"
                               "    const a = grid.TextMatrix(e.Row1, 0), b = grid.TextMatrix(e.Row2, 0);"
                               "    e.Cmp = a < b ? 1 : a > b ? -1 : 0; }"));
    }
};

TEST_F(ScriptSorting, TheScriptsCompareDecidesACustomSort) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.events.Compare.connect(downwards); grid.Sort(9);"
                                     "print(rows(), grid.sortOut);")),
              QStringList(QStringLiteral("γβαx true")));
}

TEST_F(ScriptSorting, CompareIsAskedOnlyAfterASort) {
    EXPECT_EQ(
        linesOf(QStringLiteral("grid.events.Compare.connect(downwards); grid.SortGrid(9); print(rows());"
                               "grid.Sort(5); print(rows());"
                               "grid.MSFlexGrid1.Sort = 9; print(rows());")),
        (QStringList{QStringLiteral("αβγx"), QStringLiteral("αβγx"), QStringLiteral("γβαx")}));
}

TEST_F(ScriptSorting, SortGridSortsAllRowsByTheSurfacesCodes) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.MSFlexGrid1.Row = 1; grid.SortGrid(8); print(rows());")),
              QStringList(QStringLiteral("xγβα")))
        << "Greek letters stand before Latin ones in the report's locale";
}

TEST_F(ScriptSorting, AHandlerThatThrowsFailsTheCallAndLosesNoRow) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.events.Compare.connect(function (e) { throw new Error('no'); });"
                                     "try { grid.Sort(9); print('passed'); } catch (e) { print(e.message); }"
                                     "print(rows(), grid.Redraw);")),
              (QStringList{QStringLiteral("no"), QStringLiteral("βαγx true")}));
}

TEST_F(ScriptSorting, AnUncaughtFailureOfAHandlerEndsTheScript) {
    EXPECT_EQ(run(QStringLiteral("grid.events.Compare.connect(function (e) {\nthrow new Error('no'); });\n"
                                 "grid.Sort(9); print('not reached');")),
              1);
    EXPECT_EQ(errors, QStringList(QStringLiteral("test.js:2: no")));
    EXPECT_EQ(output, QStringList());
}

TEST_F(ScriptSorting, AHandlerThatContradictsItselfLosesNoRow) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.events.Compare.connect(function (e) { e.Cmp = 1; e.Row1 = 99; e.Row2 = null; });"
                  "grid.Sort(9); print([...rows()].sort().join(''));")),
              QStringList(QStringLiteral("xαβγ")));
}

TEST_F(ScriptSorting, AnAnswerThatIsNoNumberCountsAsEqual) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.events.Compare.connect(function (e) { e.Cmp = e.Row1 === 1 ? NaN : 'x'; });"
                  "grid.Sort(9); print(rows());")),
              QStringList(QStringLiteral("βαγx")));
}

TEST_F(ScriptSorting, SortByColumnRaisesItsEvents) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.events.StartSorting.connect(function () { print('start'); });"
                                     "grid.events.StopSorting.connect(function () { print('stop'); });"
                                     "grid.SortByColumn('');")),
              (QStringList{QStringLiteral("start"), QStringLiteral("stop")}));
}

} // namespace
