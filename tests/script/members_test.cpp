#include "script_fixture.h"

namespace {

class Properties : public ScriptTest {
protected:
    QString valueOf(const char* expression) {
        return linesOf(QStringLiteral("print(%1)").arg(QString::fromUtf8(expression))).value(0);
    }
};

TEST_F(Properties, PlainOnesAreReadAndWritten) {
    linesOf(QStringLiteral("grid.Filter = 'PREMIUM>100'; grid.EuroVer = false; grid.MinRows = 7;"));
    EXPECT_EQ(valueOf("grid.Filter"), QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(valueOf("grid.EuroVer"), QStringLiteral("false"));
    EXPECT_EQ(valueOf("grid.MinRows"), QStringLiteral("7"));
}

TEST_F(Properties, IndexedOnesAreAMethodToReadAndASetMethodToWrite) {
    linesOf(QStringLiteral(
        "grid.setColWidth(1, 900); grid.setTextMatrix(1, 0, 'κείμενο'); grid.setRowData(1, 9);"));
    EXPECT_EQ(valueOf("grid.ColWidth(1)"), QStringLiteral("900"));
    EXPECT_EQ(valueOf("grid.TextMatrix(1, 0)"), QStringLiteral("κείμενο"));
    EXPECT_EQ(valueOf("grid.RowData(1)"), QStringLiteral("9"));
}

TEST_F(Properties, AFilterThatSomebodyTypesIsTakenOrAnsweredWithTheReason) {
    EXPECT_EQ(valueOf("grid.setUserFilter('A=1 or B=2') === ''"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("grid.Filter"), QStringLiteral("( A=1 or B=2 )"));
    EXPECT_EQ(valueOf("grid.setUserFilter('A=1; drop table PEOPLE')"),
              QStringLiteral("Το φίλτρο δεν μπορεί να έχει ; έξω από εισαγωγικά (χαρακτήρας 4)."));
    EXPECT_EQ(valueOf("grid.Filter"), QStringLiteral("( A=1 or B=2 )"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.UserFilter = 'A=1'")), 438);
    linesOf(QStringLiteral("grid.AllowSubselects = true"));
    EXPECT_EQ(valueOf("grid.setUserFilter('A in (select 1)') === ''"), QStringLiteral("true"));
}

TEST_F(Properties, IdentityCanBeWrittenAndNotRead) {
    for (const char* name : {"ProductID", "Ierarxia", "IerID"}) {
        const QString property = QStringLiteral("grid.") + QLatin1String(name);
        EXPECT_EQ(errorNumber(property + QStringLiteral(" = '-1'")), 0) << name;
        EXPECT_EQ(errorNumber(property), 438) << name;
    }
    for (const char* name : {"Remote", "UserID"}) {
        const QString property = QStringLiteral("grid.") + QLatin1String(name);
        EXPECT_EQ(errorNumber(property + QStringLiteral(" = 1")), 0) << name;
        EXPECT_EQ(errorNumber(property), 438) << name;
    }
}

TEST_F(Properties, ReadOnlyOnesRefuseAValue) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.HasTotals = true")), 438);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.MSFlexGrid1 = null")), 438);
}

TEST_F(Properties, AMethodCannotBeWrittenOver) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.ColWidth = 900")), 438);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.refresh = 1")), 438);
}

TEST_F(Properties, AMisspeltNameIsAnErrorOnReadingAndWriting) {
    for (const char* object :
         {"grid", "cn", "people()", "people().Fields", "people().Fields(0)", "grid.Columns",
          "grid.Columns.Item(1)", "grid.MSFlexGrid1", "grid.Picture1", "grid.events", "grid.events.Click",
          "grid.cmdHide", "grid.lblfilter", "host", "grid.Picture1.Bands('BndTemplate')",
          "grid.Picture1.Tools('txtRecs')", "new Command()"}) {
        const QString name = QString::fromLatin1(object) + QStringLiteral(".Nonesuch");
        EXPECT_EQ(errorNumber(name), 438) << object;
        EXPECT_EQ(errorNumber(name + QStringLiteral(" = 1")), 438) << object;
    }
}

TEST_F(Properties, NamesAreWrittenWithTheirOwnCase) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.filter")), 438);
    EXPECT_EQ(errorNumber(QStringLiteral("people().eof")), 438);
}

TEST_F(Properties, AMisspeltMethodIsAnErrorOnCalling) {
    EXPECT_NE(errorOf(QStringLiteral("grid.Refresh()")), QStringLiteral("none"));
    EXPECT_NE(errorOf(QStringLiteral("people().movenext()")), QStringLiteral("none"));
    EXPECT_EQ(run(QStringLiteral("\ngrid.Refresh()")), 1);
    EXPECT_TRUE(errors.value(0).startsWith(QStringLiteral("test.js:2: "))) << qPrintable(errors.value(0));
}

TEST_F(Properties, ATextIsNoNumberAndANumberIsAText) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Rows = 'three'")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Rows = '3'")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Rows = null")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Rows = undefined")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.EuroVer = 'yes'")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Filter = 5")), 0);
    EXPECT_EQ(valueOf("grid.Filter"), QStringLiteral("5"));
}

TEST_F(Properties, TrueIsMinusOneAsANumberAndAnyNumberButZeroIsTrue) {
    linesOf(QStringLiteral("grid.MinRows = true; grid.EuroVer = 0; grid.FrozenRow = -1;"));
    EXPECT_EQ(valueOf("grid.MinRows"), QStringLiteral("-1"));
    EXPECT_EQ(valueOf("grid.EuroVer"), QStringLiteral("false"));
    EXPECT_EQ(valueOf("grid.FrozenRow"), QStringLiteral("true"));
}

TEST_F(Properties, NumbersBecomeIntegersByRoundingHalfToEven) {
    linesOf(QStringLiteral("grid.StartingLine = 2.5; grid.LineCounter = 3.5;"));
    EXPECT_EQ(valueOf("grid.StartingLine"), QStringLiteral("2"));
    EXPECT_EQ(valueOf("grid.LineCounter"), QStringLiteral("4"));
}

TEST_F(Properties, ANumberOutOfRangeIsAnErrorAndNeverAnotherNumber) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.StartingLine = 3e9")), 6);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.AlignTitle = 40000")), 6);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.StartingLine = NaN")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.PrintLeftMargin = 1e300")), 6);
}

TEST_F(Properties, ColoursAreTheSameWithAndWithoutSign) {
    // 0x80000005 is -2147483643 as a signed number of 32 bits.
    linesOf(QStringLiteral("grid.TitleBackColor = -2147483643;"));
    EXPECT_EQ(valueOf("grid.TitleBackColor == 0x80000005"), QStringLiteral("true"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.TitleBackColor = 0x100000000")), 6);
}

TEST_F(Properties, AmountsAreNumbers) {
    linesOf(QStringLiteral("grid.PrintLeftMargin = 12.34567;"));
    EXPECT_EQ(valueOf("grid.PrintLeftMargin"), QStringLiteral("12.3457"));
}

TEST_F(Properties, ObjectsAreTakenOnlyOfTheirOwnKind) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Cn = grid")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Cn = 'x'")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.RCrw = cn")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Cn = null")), 0);
    EXPECT_EQ(valueOf("grid.Cn"), QStringLiteral("null"));
}

TEST_F(Properties, AVariantKeepsWhatItGot) {
    for (const char* value : {"5", "2.5", "'x'", "true", "null"}) {
        linesOf(QStringLiteral("grid.ParamValue = %1;").arg(QLatin1String(value)));
        EXPECT_EQ(valueOf("grid.ParamValue"), QString::fromLatin1(value).remove(QLatin1Char('\''))) << value;
    }
    EXPECT_EQ(valueOf("(grid.ParamValue = cn, grid.ParamValue === cn)"), QStringLiteral("true"));
}

class Methods : public Properties {};

TEST_F(Methods, ATextIsNoIndex) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.ColWidth('1')")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.setColWidth('x', 900)")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Columns.Item('1')")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.MSFlexGrid1.TextMatrix('0', 0)")), 13);
}

TEST_F(Methods, ASurplusArgumentIsAnErrorEvenWhenUndefined) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.ColWidth(0, 1)")), 450);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.refresh(1)")), 450);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.refresh(undefined)")), 450);
    EXPECT_EQ(errorNumber(QStringLiteral("cn.Execute('SELECT 1', 2)")), 450);
}

TEST_F(Methods, AMissingArgumentIsAnError) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.ColWidth()")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.ColWidth(undefined)")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.setColWidth(undefined, 900)")), 449);
}

TEST_F(Methods, AnOptionalArgumentMayBeLeftOutOrUndefined) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Fill(cn, 'SELECT 1', 0)")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Fill(cn, 'SELECT 1', 0, undefined)")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Fill(cn, 'SELECT 1', 0, undefined, 1)")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Fill(cn, 'SELECT 1', 0, '', 1)")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.AddItem('x')")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.AddItem('x', undefined)")), 0);
}

TEST_F(Methods, AnArgumentInAndOutIsAnObjectWithAValueOrAPlainValue) {
    linesOf(QStringLiteral("grid.events.KeyDown.connect(function (e) { e.KeyCode = 65; });"));
    EXPECT_EQ(linesOf(QStringLiteral("var code = {value: 27}; var left = grid.UserControl_KeyDown(code, 0);"
                                     "print(left, code.value, grid.UserControl_KeyDown(27, 0))")),
              QStringList{QStringLiteral("65 65 65")});
}

TEST_F(Methods, OperationsWithoutACallerAreReachable) {
    EXPECT_EQ(valueOf("grid.FindAccountColumns()"), QStringLiteral("false"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.RecalcBalanceColumn()")), 0);
}

TEST_F(Methods, WhatGivesNothingGivesUndefinedAndAnEmptyVariantIsNull) {
    EXPECT_EQ(valueOf("grid.Clear()"), QStringLiteral("undefined"));
    EXPECT_EQ(valueOf("grid.ClearGrid()"), QStringLiteral("null"));
}

TEST_F(Methods, ErrorsOfTheControlCarryNumberAndDescription) {
    EXPECT_EQ(errorOf(QStringLiteral("new ZkpGrid().refresh()")),
              QStringLiteral("2147745802 The Property Cn Hasn't Been set!")); // 0x8004000A
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Columns.Item(3)")), 9);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.setTextMatrix(0, 9, '')")), 30010);
}

class ColumnRecords : public Properties {};

TEST_F(ColumnRecords, CountFromOneAndAreCounted) {
    EXPECT_EQ(valueOf("grid.Columns.Count"), QStringLiteral("2"));
    EXPECT_EQ(valueOf("grid.Columns.Item(2).Datafield"), QStringLiteral("AMOUNT"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Columns.Item(0)")), 9);
}

TEST_F(ColumnRecords, MembersAreReadAndWritten) {
    for (const char* name : {"Caption", "Datafield", "EditRs", "EditTag", "EditField1", "EditField2"}) {
        EXPECT_EQ(
            valueOf(qPrintable(QStringLiteral("(grid.Columns.Item(1).%1 = 'κ', grid.Columns.Item(1).%1)")
                                   .arg(QLatin1String(name)))),
            QStringLiteral("κ"))
            << name;
    }
    for (const char* name : {"Width", "Alignment", "Position", "BestWidth", "EditKind", "EditLength"}) {
        EXPECT_EQ(valueOf(qPrintable(QStringLiteral("(grid.Columns.Item(1).%1 = 7, grid.Columns.Item(1).%1)")
                                         .arg(QLatin1String(name)))),
                  QStringLiteral("7"))
            << name;
    }
    for (const char* name :
         {"Credit", "Debit", "Balance", "Stat_ic", "Totals", "changed", "Index_Key", "ForTot", "ForSize",
          "cnt", "PerCnt", "lR", "PerSize", "Avrg", "Editable", "calcEuro"}) {
        EXPECT_EQ(
            valueOf(qPrintable(QStringLiteral("(grid.Columns.Item(1).%1 = true, grid.Columns.Item(1).%1)")
                                   .arg(QLatin1String(name)))),
            QStringLiteral("true"))
            << name;
    }
}

TEST_F(ColumnRecords, AHeldRecordStaysThatRecordAndTellsWhenItIsGone) {
    linesOf(
        QStringLiteral("var first = grid.Columns.Item(1), second = grid.Columns.Item(2); grid.Cols = 1;"));
    EXPECT_EQ(valueOf("first.Datafield"), QStringLiteral("NAME"));
    EXPECT_EQ(errorNumber(QStringLiteral("second.Datafield")), 91);
}

TEST_F(ColumnRecords, CreditIsStoredThoughItsAccessorAlwaysAnswersFalse) {
    linesOf(QStringLiteral("grid.setColCredit(1, true);"));
    EXPECT_EQ(valueOf("grid.ColCredit(1)"), QStringLiteral("false"));
    EXPECT_EQ(valueOf("grid.Columns.Item(2).Credit"), QStringLiteral("true"));
}

} // namespace
