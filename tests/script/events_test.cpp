#include "script_fixture.h"

namespace {

class ScriptEvents : public ScriptTest {
protected:
    QStringList texts(const char* lines) { return QString::fromUtf8(lines).split(QLatin1Char('|')); }
};

TEST_F(ScriptEvents, AHandlerHearsTheEventWithItsArguments) {
    EXPECT_EQ(
        linesOf(QStringLiteral("grid.events.RetrieveRow.connect(function (e) {"
                               "    print(e.rw, e.rsrc.Collect('NAME'), e.rsrc === grid.RecordSource); });"
                               "grid.refresh();")),
        texts("1 Άννα true|2 null true|3 Βασίλης true"));
}

TEST_F(ScriptEvents, EventsWithoutArgumentsGiveTheHandlerNone) {
    EXPECT_EQ(linesOf(QStringLiteral("function tell() { print('filling', arguments.length); }"
                                     "grid.events.StartFilling.connect(tell); grid.refresh();")),
              texts("filling 0"));
}

TEST_F(ScriptEvents, SeveralHandlersRunInTheirOrderAndShareTheArguments) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.events.KeyDown.connect(function (e) { print('a', e.KeyCode); e.KeyCode = 2; });"
                  "grid.events.KeyDown.connect(function (e) { print('b', e.KeyCode, e.Shift); });"
                  "print(grid.UserControl_KeyDown(1, 4));")),
              texts("a 1|b 2 4|2"));
}

TEST_F(ScriptEvents, ADisconnectedHandlerHearsNothing) {
    EXPECT_EQ(
        linesOf(QStringLiteral("function hear(e) { print('heard'); }"
                               "grid.events.Click.connect(hear); grid.events.Click.disconnect(hear);"
                               "grid.events.Click.disconnect(hear); grid.MSFlexGrid1.userClick(1, 0);")),
        QStringList());
}

TEST_F(ScriptEvents, AHandlerMayDisconnectItself) {
    EXPECT_EQ(
        linesOf(QStringLiteral("function once(e) { print(e.rw); grid.events.RetrieveRow.disconnect(once); }"
                               "grid.events.RetrieveRow.connect(once); grid.refresh();")),
        texts("1"));
}

TEST_F(ScriptEvents, WhatAHandlerWritesReachesTheControl) {
    // Every record is written one row further down than the last one's handler left.
    EXPECT_EQ(
        linesOf(QStringLiteral("grid.events.RetrieveRow.connect(function (e) { if (e.rw == 1) e.rw = 2; });"
                               "grid.refresh(); print(grid.TextMatrix(1, 0), grid.TextMatrix(3, 1));")),
        texts("Άννα -3,00"));
}

TEST_F(ScriptEvents, AMisspeltArgumentIsAnError) {
    EXPECT_EQ(
        run(QStringLiteral("grid.events.RetrieveRow.connect(function (e) { e.row = 2; });\ngrid.refresh();")),
        1);
    EXPECT_EQ(errors, texts("test.js:1: RetrieveRow has no member row"));
}

TEST_F(ScriptEvents, AnArgumentLeftWithAnotherKindOfValueIsAFailure) {
    EXPECT_EQ(run(QStringLiteral(
                  "grid.events.RetrieveRow.connect(function (e) { e.rw = 'x'; });\ngrid.refresh();")),
              1);
    EXPECT_EQ(errors, texts("test.js:2: rw of RetrieveRow must be a number"));
}

TEST_F(ScriptEvents, AnUnknownEventAndAHandlerThatIsNoFunctionAreErrors) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.events.Retrieve")), 438);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.events.Click.connect(5)")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.events.Click.connect()")), 449);
}

TEST_F(ScriptEvents, EveryEventCanBeBoundAlsoThoseThatAreNeverRaised) {
    for (const char* name : {"Compare",
                             "Click",
                             "DblClick",
                             "KeyDown",
                             "KeyPress",
                             "KeyUp",
                             "MouseDown",
                             "MouseUp",
                             "Selecting",
                             "MenuExportTable",
                             "PrintCommand",
                             "StartSorting",
                             "StopSorting",
                             "StartFilling",
                             "StopFillIng",
                             "StartInterface",
                             "StopInterface",
                             "MenuSaveTemplate",
                             "MenuSaveTemplateAs",
                             "MenuLoadTemplate",
                             "MenuTitle",
                             "addcolumn",
                             "FirstRetrieved",
                             "DelColumn",
                             "InsertColumn",
                             "LeaveEdit",
                             "StartEdit",
                             "Groupby",
                             "GroupBy1",
                             "GroupBy2",
                             "GroupBy3",
                             "GroupBy4",
                             "RetrieveRow",
                             "PropertyChanged"}) {
        EXPECT_EQ(errorOf(QStringLiteral("grid.events.%1.connect(function () {})").arg(QLatin1String(name))),
                  QStringLiteral("none"))
            << name;
    }
}

TEST_F(ScriptEvents, ChangesOfPropertiesAreAnEventWithTheKey) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.events.PropertyChanged.connect(function (e) { print(e.name); });"
                  "grid.clmns = 'D'; grid.setColWidth(0, 900); grid.Cols = 3; grid.ProductID = '1';")),
              texts("Clmns|ColWidth|Cols"));
}

// A handler that fails: the control ends the operation by its own error road, then the script has it.

TEST_F(ScriptEvents, AFailureInAHandlerEndsTheRunAfterTheControlEndedTheLoad) {
    EXPECT_EQ(
        run(QStringLiteral("host.onMsgBox = function (e) { print(e.text, e.style); return 1; };\n"
                           "grid.events.StopFillIng.connect(function () { print('stopped', grid.Rows); });\n"
                           "grid.events.RetrieveRow.connect(function (e) {\n"
                           "    if (e.rw == 2)\n"
                           "        throw new Error('boom');\n"
                           "});\n"
                           "grid.refresh();\n"
                           "print('not here');\n")),
        1);
    EXPECT_EQ(output, texts("Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID 16|stopped 4"));
    EXPECT_EQ(errors, texts("test.js:5: boom"));
}

TEST_F(ScriptEvents, TheScriptMayCatchAHandlersFailureAndGoOn) {
    EXPECT_EQ(linesOf(QStringLiteral("function fail() { throw new Error('boom'); }"
                                     "grid.events.RetrieveRow.connect(fail);"
                                     "try { grid.refresh(); } catch (e) { print('caught', e.message); }"
                                     "grid.events.RetrieveRow.disconnect(fail);"
                                     "grid.refresh(); print(grid.RecCount, host.messages.length);")),
              texts("caught boom|3 1"));
}

TEST_F(ScriptEvents, AHandlersOwnCatchKeepsTheLoadGoing) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.events.RetrieveRow.connect(function (e) {"
                                     "    try { e.rsrc.Fields('NIX'); } catch (x) { print(x.number); } });"
                                     "grid.refresh(); print(host.messages.length);")),
              texts("3265|3265|3265|0"));
}

TEST_F(ScriptEvents, AThrownValueThatIsNoErrorEndsTheRunToo) {
    EXPECT_EQ(run(QStringLiteral(
                  "grid.events.StartFilling.connect(function () { throw 'a text'; });\ngrid.refresh();")),
              1);
    EXPECT_EQ(errors, texts("test.js:2: a text"));
}

TEST_F(ScriptEvents, AFailureInAPropertysHandlerComesOutOfTheAssignment) {
    EXPECT_EQ(
        run(QStringLiteral(
            "grid.events.PropertyChanged.connect(function (e) {\n  nonesuch();\n});\ngrid.Filter = 'x';")),
        1);
    EXPECT_EQ(errors, texts("test.js:2: nonesuch is not defined"));
}

TEST_F(ScriptEvents, OfSeveralFailuresTheFirstCounts) {
    EXPECT_EQ(
        run(QStringLiteral("grid.events.RetrieveRow.connect(function () { throw new Error('first'); });\n"
                           "grid.events.StopFillIng.connect(function () { throw new Error('second'); });\n"
                           "grid.refresh();")),
        1);
    EXPECT_EQ(errors, texts("test.js:1: first"));
}

TEST_F(ScriptEvents, AHandlerMayStartTheLoadAgain) {
    EXPECT_EQ(linesOf(QStringLiteral("var again = true;"
                                     "grid.events.RetrieveRow.connect(function () {"
                                     "    if (again) { again = false; grid.refresh(); } });"
                                     "grid.refresh(); print(again);")),
              texts("false"));
    EXPECT_EQ(linesOf(QStringLiteral("grid.refresh(); print(grid.Rows, grid.RecCount);")), texts("4 3"));
}

TEST_F(ScriptEvents, AHandlerThatCallsItselfForEverEndsInAnError) {
    EXPECT_EQ(run(QStringLiteral("grid.events.PropertyChanged.connect(function () { grid.Filter = 'x'; });\n"
                                 "grid.Filter = 'y';")),
              1);
    EXPECT_EQ(errors, texts("test.js:1: handlers call each other too deeply"));
    EXPECT_EQ(linesOf(QStringLiteral("var other = makeGrid(); other.refresh(); print(other.Rows);")),
              texts("4"));
}

TEST_F(ScriptEvents, ALoadThatStartsItselfForEverIsNoCrash) {
    run(QStringLiteral("grid.events.StartFilling.connect(function () { grid.refresh(); }); grid.refresh();"));
    EXPECT_EQ(linesOf(QStringLiteral("var other = makeGrid(); other.refresh(); print(other.Rows);")),
              texts("4"));
}

TEST_F(ScriptEvents, AHandlerMayChangeTheColumns) {
    EXPECT_EQ(run(QStringLiteral("grid.events.RetrieveRow.connect(function () { grid.Cols = 1; });"
                                 "try { grid.refresh(); } catch (e) {} print(grid.Cols);")),
              0);
    EXPECT_EQ(output, texts("1"));
}

TEST_F(ScriptEvents, AHandlerMayDropTheGrid) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var dropped = makeGrid();"
                  "dropped.events.RetrieveRow.connect(function () {"
                  "    dropped = null;"
                  "    var waste = []; for (var i = 0; i < 200000; ++i) waste = [waste.length]; });"
                  "dropped.refresh(); print(dropped);")),
              texts("null"));
}

TEST_F(ScriptEvents, AHandlerMayDestroyTheControl) {
    EXPECT_EQ(linesOf(QStringLiteral("var doomed = makeGrid(); var surface = doomed.MSFlexGrid1;"
                                     "doomed.events.RetrieveRow.connect(function () { doomed.destroy(); });"
                                     "doomed.refresh(); print('after');"
                                     "try { doomed.Rows; } catch (e) { print(e.number); }"
                                     "try { surface.Rows; } catch (e) { print(e.number); }")),
              texts("after|91|91"));
}

TEST_F(ScriptEvents, AHandlerOfTheSurfaceMayDestroyTheControl) {
    EXPECT_EQ(linesOf(QStringLiteral("var doomed = makeGrid(); doomed.refresh();"
                                     "doomed.events.Click.connect(function () { doomed.destroy(); });"
                                     "doomed.MSFlexGrid1.userClick(1, 0); print('after');")),
              texts("after"));
}

} // namespace
