#include "script_fixture.h"
#include "surface/surface_names.def"

// Every name in the list of the surface's names answers in scripts. The accumulator, MSFlexGrid2, is written
// anew at each call and left out.

namespace {

class SurfaceNames : public ScriptTest, public testing::WithParamInterface<const char*> {
protected:
    SurfaceNames() {
        run(QStringLiteral("var s = grid.%1; s.Rows = 5; s.Cols = 4;").arg(QLatin1String(GetParam())));
    }

    void expectRuns(const QString& statement) {
        EXPECT_EQ(errorOf(statement), QStringLiteral("none")) << qPrintable(statement);
    }
    void expectValue(const char* name, const char* given) {
        const QString place = QStringLiteral("s.") + QLatin1String(name);
        EXPECT_EQ(linesOf(QStringLiteral("%1 = %2; print(%1)").arg(place, QLatin1String(given))),
                  QStringList{QString::fromLatin1(given).remove(QLatin1Char('\''))})
            << name;
    }
};

TEST_P(SurfaceNames, ValuesAreReadAndWritten) {
#define READ_AND_WRITE(Type, Name, ...)                                                                      \
    expectRuns(QStringLiteral("if (s." #Name " === undefined) throw new Error('undefined')"));               \
    expectRuns(QStringLiteral("s." #Name " = s." #Name));
    ZKP_GRIDSURFACE_VALUES(READ_AND_WRITE)
    ZKP_GRIDSURFACE_CURSOR(READ_AND_WRITE)
    ZKP_GRIDSURFACE_CELL_STYLE(READ_AND_WRITE)
    ZKP_GRIDSURFACE_PART_STYLE(READ_AND_WRITE)
    ZKP_GRIDSURFACE_LOOK(READ_AND_WRITE)
    ZKP_GRIDSURFACE_PLACE(READ_AND_WRITE)
    READ_AND_WRITE(, Font)
}

TEST_P(SurfaceNames, AnswersAreReadAndRefuseAValue) {
#define READ_ALONE(Type, Name)                                                                               \
    expectRuns(QStringLiteral("if (s." #Name " === undefined) throw new Error('undefined')"));               \
    EXPECT_EQ(errorNumber(QStringLiteral("s." #Name " = 1")), 438);
    ZKP_GRIDSURFACE_ANSWERS(READ_ALONE)
}

TEST_P(SurfaceNames, IndexedValuesAreReadAndWrittenByTheirMethods) {
#define BOTH_METHODS(Type, Name, ...) expectRuns(QStringLiteral("s.set" #Name "(1, s." #Name "(1))"));
    ZKP_GRIDSURFACE_OF_COLUMN(BOTH_METHODS)
    ZKP_GRIDSURFACE_OF_ROW(BOTH_METHODS)
    ZKP_GRIDSURFACE_BY_INDEX(BOTH_METHODS)
#define BY_CELL(Type, Name) expectRuns(QStringLiteral("s.set" #Name "(1, 2, s." #Name "(1, 2))"));
    ZKP_GRIDSURFACE_BY_CELL(BY_CELL)
#define ONE_METHOD(Type, Name) expectRuns(QStringLiteral("s." #Name "(1)"));
    ZKP_GRIDSURFACE_ROW_ANSWERS(ONE_METHOD)
}

TEST_P(SurfaceNames, MethodsAreThere) {
#define METHOD(Name, ...)                                                                                    \
    if (qstrcmp(#Name, "setSort") != 0)                                                                      \
        expectRuns(QStringLiteral("if (typeof s." #Name " != 'function') throw new Error('none')"));
    ZKP_GRIDSURFACE_METHODS(METHOD)
    ZKP_GRIDSURFACE_MOUSE(METHOD)
    expectRuns(QStringLiteral("s.Sort = 0")); // nothing reads it
    EXPECT_EQ(errorNumber(QStringLiteral("s.Sort")), 438);
}

TEST_P(SurfaceNames, WhatIsWrittenIsWhatIsReadInEachFamily) {
    expectValue("FixedCols", "1");
    expectValue("Row", "3");
    expectValue("CellFontName", "'Serif'");
    expectValue("CellFontItalic", "true");
    expectValue("BackColorFixed", "255");
    expectValue("FontSize", "9.5");
    expectValue("GridLines", "3");
    expectValue("Tag", "'x'");
    expectValue("Left", "120.5");
    EXPECT_EQ(
        linesOf(QStringLiteral("s.setColWidth(2, 900); s.setRowHeight(2, 300);"
                               "s.setTextMatrix(2, 3, 'κείμενο'); s.setColAlignment(2, 7);"
                               "print(s.ColWidth(2), s.RowHeight(2), s.TextArray(11), s.ColAlignment(2))")),
        QStringList{QStringLiteral("900 300 κείμενο 7")});
}

TEST_P(SurfaceNames, OptionalArgumentsMayBeLeftOut) {
    EXPECT_EQ(linesOf(QStringLiteral("s.Select(2, 1); print(s.Row, s.Col, s.RowSel, s.ColSel);"
                                     "s.Select(2, 1, 4, 3); print(s.Row, s.Col, s.RowSel, s.ColSel);"
                                     "s.AddItem('a'); s.AddItem('b', 2); print(s.Rows, s.TextMatrix(2, 0))")),
              (QStringList{QStringLiteral("2 1 2 1"), QStringLiteral("2 1 4 3"), QStringLiteral("7 b")}));
    EXPECT_EQ(errorNumber(QStringLiteral("s.AddItem()")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("s.Clear(1)")), 450);
}

TEST_P(SurfaceNames, WhatAUserDoesReachesTheSurface) {
    EXPECT_EQ(linesOf(QStringLiteral("s.userMove(0, 0, 15, 30, 3, 2); print(s.MouseRow, s.MouseCol);"
                                     "s.userSelect(2, 1); print(s.Row, s.Col)")),
              (QStringList{QStringLiteral("3 2"), QStringLiteral("2 1")}));
}

INSTANTIATE_TEST_SUITE_P(Surfaces, SurfaceNames, testing::Values("MSFlexGrid1", "MSFlexGrid3"),
                         [](const auto& surface) { return std::string(surface.param); });

} // namespace
