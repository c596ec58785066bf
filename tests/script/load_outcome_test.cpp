#include "script_fixture.h"

using testing::ElementsAre;

// How a load went, as a script reads it.

class ScriptLoadOutcome : public ScriptTest {
protected:
    QStringList told(const QString& text) {
        return linesOf(text + QStringLiteral("\nvar o = grid.lastLoad();"
                                             "print(o.result, o.records, o.failure === null);"
                                             "print(o.built); print(o.sent);"));
    }
};

TEST_F(ScriptLoadOutcome, ALoadedReport) {
    EXPECT_THAT(told(QStringLiteral("print(grid.lastLoad().result == ZKPLoadNone); grid.refresh();")),
                ElementsAre(QStringLiteral("true"), QStringLiteral("1 3 true"),
                            QStringLiteral("SELECT * FROM PEOPLE ORDER BY AMOUNT DESC"),
                            QStringLiteral("SELECT * FROM PEOPLE ORDER BY AMOUNT DESC")));
    EXPECT_EQ(linesOf(QStringLiteral("print(o.firstRecordMs > 0, o.lastRecordMs >= o.firstRecordMs);")),
              QStringList{QStringLiteral("true true")});
}

TEST_F(ScriptLoadOutcome, AFailedOneTellsNumberAndDescription) {
    EXPECT_THAT(told(QStringLiteral("grid.Fill(cn, 'SELECT * FROM NONESUCH', ZKP_SQLStatement);"
                                    "grid.refresh();")),
                ElementsAre(QStringLiteral("2 0 false"), QStringLiteral("SELECT * FROM NONESUCH"),
                            QStringLiteral("SELECT * FROM NONESUCH")));
    EXPECT_EQ(linesOf(QStringLiteral("print(o.failure.number == 0x80040E14, "
                                     "o.failure.description === host.messages[0].text);")),
              QStringList{QStringLiteral("true true")});
}

TEST_F(ScriptLoadOutcome, ARefusedOne) {
    EXPECT_THAT(told(QStringLiteral("grid.Cn = null; try { grid.refresh(); } catch (e) {}")),
                ElementsAre(QStringLiteral("3 0 false"), QString(), QString()));
    EXPECT_EQ(linesOf(QStringLiteral("print(o.failure.number == 0x8004000A, o.result == ZKPLoadRefused);")),
              QStringList{QStringLiteral("true true")});
}

TEST_F(ScriptLoadOutcome, AnOutcomeStaysWhatItWasAndAMisspeltNameIsAnError) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.refresh(); var o = grid.lastLoad();"
                                     "grid.RefreshOnChange = false; grid.refresh();"
                                     "print(o.result, grid.lastLoad().result, grid.isLoading());")),
              QStringList{QStringLiteral("1 4 false")});
    EXPECT_EQ(errorNumber(QStringLiteral("o.Result")), 438);
    EXPECT_NE(errorNumber(QStringLiteral("o.records = 7")), 0);
}
