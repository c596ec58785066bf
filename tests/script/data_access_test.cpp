#include "script_fixture.h"

namespace {

class DataAccess : public ScriptTest {
protected:
    QString valueOf(const char* expression) {
        return linesOf(QStringLiteral("print(%1)").arg(QString::fromUtf8(expression))).value(0);
    }
};

TEST_F(DataAccess, FieldsAreNamedCountedAndCalled) {
    EXPECT_EQ(valueOf("people().Fields.Count"), QStringLiteral("5"));
    EXPECT_EQ(valueOf("people().Fields('AMOUNT').Value"), QStringLiteral("1234.5"));
    EXPECT_EQ(valueOf("people().Fields.Item('amount').Value"), QStringLiteral("1234.5"));
    EXPECT_EQ(valueOf("people().Fields(1).Name"), QStringLiteral("AMOUNT"));
    EXPECT_EQ(valueOf("people().Fields(1).Type"), QStringLiteral("6"));
    EXPECT_EQ(valueOf("people().Collect('NAME')"), QStringLiteral("Άννα"));
    EXPECT_EQ(valueOf("(rs = people(), rs.Fields === rs.Fields && rs.Fields(1) === rs.Fields('AMOUNT'))"),
              QStringLiteral("true"));
}

TEST_F(DataAccess, AFieldThatIsNotThereIsError3265) {
    EXPECT_EQ(errorNumber(QStringLiteral("people().Fields('NIX')")), 3265);
    EXPECT_EQ(errorNumber(QStringLiteral("people().Fields(5)")), 3265);
    EXPECT_EQ(errorNumber(QStringLiteral("people().Collect('NIX')")), 3265);
    EXPECT_EQ(errorNumber(QStringLiteral("people().Fields(1.5)")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("people().Fields(null)")), 13);
}

TEST_F(DataAccess, ValuesKeepTheirKind) {
    EXPECT_EQ(valueOf("typeof people().Collect('AMOUNT')"), QStringLiteral("number"));
    EXPECT_EQ(valueOf("people().Collect('DUE')"), QStringLiteral("2026-11-20"));
    EXPECT_EQ(valueOf("people().Collect('SEEN')"), QStringLiteral("2026-11-20 14:05:00"));
    EXPECT_EQ(valueOf("people().Collect('PAID') === true"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("cn.Execute('SELECT 7 AS N').Collect('N') === 7"), QStringLiteral("true"));
}

TEST_F(DataAccess, NullAndTheEmptyTextStayApart) {
    EXPECT_EQ(linesOf(QStringLiteral("var rs = cn.Execute(\"SELECT NULL AS A, '' AS B\");"
                                     "print(rs.Collect('A') === null, rs.Collect('B') === '')")),
              QStringList{QStringLiteral("true true")});
}

TEST_F(DataAccess, BytesAreAnArrayBuffer) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var bytes = new Uint8Array(cn.Execute(\"SELECT x'0102FF' AS B\").Collect('B'));"
                  "print(bytes.length, bytes[0], bytes[2])")),
              QStringList{QStringLiteral("3 1 255")});
}

TEST_F(DataAccess, ARecordsetIsWalked) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var rs = people(), names = [];"
                  "print(rs.BOF, rs.EOF, rs.RecordCount, rs.AbsolutePosition, rs.State);"
                  "for (rs.MoveFirst(); !rs.EOF; rs.MoveNext()) names.push(rs.Fields('NAME').Value);"
                  "print(names.length, names[0], names[1], names[2], rs.EOF);"
                  "rs.MoveLast(); rs.MovePrevious(); print(rs.AbsolutePosition);"
                  "rs.AbsolutePosition = 3; print(rs.Collect('NAME'));")),
              (QStringList{QStringLiteral("false false 3 1 1"), QStringLiteral("3 Άννα null Βασίλης true"),
                           QStringLiteral("2"), QStringLiteral("Βασίλης")}));
    EXPECT_EQ(
        errorNumber(QStringLiteral("rs = people(); rs.MoveLast(); rs.MoveNext(); rs.Collect('NAME')")),
        3021);
}

TEST_F(DataAccess, FilterSortAndCloneWorkOnTheSameRecords) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var rs = people(); var all = rs.Clone();"
                  "rs.Filter = 'AMOUNT < 0'; print(rs.RecordCount, rs.Filter, all.RecordCount);"
                  "rs.Filter = ''; rs.Sort = 'AMOUNT ASC'; rs.MoveLast(); print(rs.Collect('AMOUNT'));")),
              (QStringList{QStringLiteral("1 AMOUNT < 0 3"), QStringLiteral("1234.5")}));
}

TEST_F(DataAccess, ARecordIsAddedAndChanged) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var rs = new Recordset(); rs.Open('SELECT * FROM PEOPLE', cn, 3, 3);"
                  "rs.AddNew(); rs.setCollect('NAME', 'Γιώργος'); rs.Fields('AMOUNT').Value = 5; rs.Update();"
                  "print(cn.Execute(\"SELECT AMOUNT FROM PEOPLE WHERE NAME = 'Γιώργος'\").Collect(0));")),
              QStringList{QStringLiteral("5")});
}

TEST_F(DataAccess, ACommandMayHoldSeveralStatements) {
    EXPECT_EQ(linesOf(QStringLiteral("var command = new Command();"
                                     "command.CommandText = 'SELECT 1 AS A; SELECT 2 AS B';"
                                     "command.ActiveConnection = cn;"
                                     "var rs = new Recordset(); rs.Open(command); print(rs.Collect('A'));"
                                     "rs = rs.NextRecordset(); print(rs.Collect('B'), rs.NextRecordset());")),
              (QStringList{QStringLiteral("1"), QStringLiteral("2 null")}));
}

TEST_F(DataAccess, ARecordsetOrACommandCanBeTheSourceOfAReport) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.Fill(cn, people(), ZKP_RecordSet); grid.refresh(); print(grid.RecCount);"
                  "var command = new Command(); command.CommandText = 'SELECT * FROM PEOPLE LIMIT 2';"
                  "grid.Fill(cn, command, ZKP_Command); grid.refresh(); print(grid.RecCount);")),
              (QStringList{QStringLiteral("3"), QStringLiteral("2")}));
}

TEST_F(DataAccess, AConnectionHasItsPropertiesAndTransactions) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "print(cn.State, cn.CommandTimeout); cn.CommandTimeout = 5; print(cn.CommandTimeout);"
                  "cn.BeginTrans(); cn.Execute('DELETE FROM PEOPLE'); cn.RollbackTrans(); "
                  "print(people().RecordCount);"
                  "cn.BeginTrans(); cn.Execute('DELETE FROM PEOPLE'); cn.CommitTrans(); "
                  "print(people().RecordCount);"
                  "cn.Close(); print(cn.State);")),
              (QStringList{QStringLiteral("1 30"), QStringLiteral("5"), QStringLiteral("3"),
                           QStringLiteral("0"), QStringLiteral("0")}));
    EXPECT_EQ(errorNumber(QStringLiteral("people()")), 3709);
}

TEST_F(DataAccess, TheSchemaTellsTheColumnsOfATable) {
    EXPECT_EQ(linesOf(QStringLiteral("var rs = cn.OpenSchema(4, [null, null, 'PEOPLE']);"
                                     "print(rs.RecordCount, rs.Collect('COLUMN_NAME'));"
                                     "print(cn.OpenSchema(4, [null, null, 'NIX']).RecordCount);")),
              (QStringList{QStringLiteral("5 NAME"), QStringLiteral("0")}));
    EXPECT_EQ(errorNumber(QStringLiteral("cn.OpenSchema(4, 'PEOPLE')")), 13);
}

TEST_F(DataAccess, AStatementThatTheDatabaseCannotTakeIsAnErrorWithItsNumber) {
    EXPECT_EQ(linesOf(QStringLiteral("try { cn.Execute('SELEC 1'); } catch (e) { print(e.number == "
                                     "0x80040E14, e.description.length > 0); }")),
              QStringList{QStringLiteral("true true")});
    EXPECT_NE(errorOf(QStringLiteral("new Connection().Open('sqlite:/nonesuch/file.db')")),
              QStringLiteral("none"));
}

TEST_F(DataAccess, ADateMayBeGivenAsADateOrAText) {
    EXPECT_EQ(linesOf(QStringLiteral("var rs = new Recordset(); rs.Open('SELECT * FROM PEOPLE', cn, 3, 3);"
                                     "rs.Fields('SEEN').Value = new Date(2026, 0, 2, 9, 30, 0); rs.Update();"
                                     "print(rs.Collect('SEEN'));")),
              QStringList{QStringLiteral("2026-01-02 09:30:00")});
}

TEST_F(DataAccess, ManyShortLivedObjectsAreNoTrouble) {
    EXPECT_EQ(
        linesOf(QStringLiteral("var rs = people(), sum = 0;"
                               "for (var i = 0; i < 20000; ++i) sum += rs.Clone().Fields('AMOUNT').Value;"
                               "print(sum);")),
        QStringList{QStringLiteral("24690000")});
}

} // namespace
