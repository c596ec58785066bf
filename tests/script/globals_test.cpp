#include "script_fixture.h"

using testing::ElementsAre;

namespace {

QStringList lines(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts)
        list << QString::fromUtf8(text);
    return list;
}

class Globals : public ScriptTest {};

TEST_F(Globals, PrintJoinsItsValuesByABlankOnOneLine) {
    EXPECT_EQ(linesOf(QStringLiteral("print('α', 1, true, null, 2.5); print();")),
              lines({"α 1 true null 2.5", ""}));
}

TEST_F(Globals, PrintNamesObjectsByTheirClass) {
    EXPECT_EQ(linesOf(QStringLiteral("print(grid, cn, people());")),
              lines({"[object ZkpGrid] [object Connection] [object Recordset]"}));
}

TEST_F(Globals, ArgsAreTheArgumentsBehindTheScript) {
    run(QStringLiteral("print(args.length, args[0], args[1])"),
        {QStringLiteral("πρώτο"), QStringLiteral("--x")});
    EXPECT_EQ(output, lines({"2 πρώτο --x"}));
}

TEST_F(Globals, EnumerationNamesAreNumbers) {
    EXPECT_EQ(
        linesOf(QStringLiteral("print(ZKPSingleRow, ZKPSubTotals, ZKPTotals, ZKPScrollup, ZKPScrollDown,"
                               "ZKPScrollHorizontaly, ZKPSectionFixed, ZKPSectionGroup, ZKPSectionDetail,"
                               "ZKPSectionSubTotals, ZKPSectionTotals, ZKP_SQLStatement, ZKP_Table_QUERY,"
                               "ZKP_RecordSet, ZKP_Command)")),
        lines({"1 9 10 0 1 2 0 1 2 3 4 0 1 2 3"}));
}

TEST_F(Globals, ObjectsKnowTheirConstructor) {
    EXPECT_EQ(
        linesOf(QStringLiteral("print(grid instanceof ZkpGrid, cn instanceof Connection, "
                               "new Recordset() instanceof Recordset, new Command() instanceof Command, "
                               "grid instanceof Connection)")),
        lines({"true true true true false"}));
}

TEST_F(Globals, ConstructorsTakeNoArguments) {
    EXPECT_EQ(errorNumber(QStringLiteral("new ZkpGrid(1)")), 450);
}

TEST_F(Globals, TheSameThingIsTheSameObject) {
    EXPECT_EQ(
        linesOf(QStringLiteral("print(grid.MSFlexGrid1 === grid.MSFlexGrid1, grid.Cn === cn,"
                               "grid.events.Click === grid.events.Click, grid.Picture1 === grid.Picture1,"
                               "grid.Columns.Item(1) === grid.Columns.Item(1),"
                               "grid.MSFlexGrid1 === grid.MSFlexGrid2)")),
        lines({"true true true true true false"}));
}

TEST_F(Globals, ObjectsGoThroughTheUsualQuestionsOfTheLanguage) {
    EXPECT_EQ(linesOf(QStringLiteral("print(grid == grid, grid == 'x', String(grid), 'nix' in grid, "
                                     "JSON.stringify({a: 1}), typeof grid, grid.hasOwnProperty('Filter'))")),
              lines({"true false [object ZkpGrid] false {\"a\":1} object false"}));
}

} // namespace
