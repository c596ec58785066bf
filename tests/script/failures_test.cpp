#include "script_fixture.h"

#include <QFile>

namespace {

class Failures : public ScriptTest {
protected:
    QString errorOfRun(const char* text) {
        EXPECT_EQ(run(QString::fromUtf8(text)), 1);
        EXPECT_EQ(errors.size(), 1);
        return errors.value(0);
    }
};

TEST_F(Failures, AnUncaughtFailureTellsFileLineAndMessage) {
    EXPECT_EQ(errorOfRun("var a;\n\nthrow new Error('boom');"), QStringLiteral("test.js:3: boom"));
}

TEST_F(Failures, AFailureOfTheControlTellsTheScriptsOwnLine) {
    EXPECT_EQ(errorOfRun("\nfunction load(g) {\n  g.refresh();\n}\nload(new ZkpGrid());"),
              QStringLiteral("test.js:3: The Property Cn Hasn't Been set!"));
}

TEST_F(Failures, TheCaughtErrorKnowsItsPlaceToo) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "\ntry {\n grid.nix;\n} catch (e) { print(e.lineNumber, e instanceof Error); }")),
              QStringList{QStringLiteral("3 true")});
}

TEST_F(Failures, ASyntaxErrorTellsItsLine) {
    EXPECT_TRUE(errorOfRun("var a = 1;\nvar b = (;").startsWith(QStringLiteral("test.js:2: ")));
}

TEST_F(Failures, AMisspeltVariableTellsItsLine) {
    EXPECT_EQ(errorOfRun("\nnonesuch();"), QStringLiteral("test.js:2: nonesuch is not defined"));
}

TEST_F(Failures, AThrownValueThatIsNoErrorIsTold) {
    EXPECT_EQ(errorOfRun("\nthrow 'a text';"), QStringLiteral("test.js:2: a text"));
    EXPECT_EQ(errorOfRun("throw null;"), QStringLiteral("test.js:1: null"));
}

TEST_F(Failures, EndlessRecursionIsAnErrorAndNoCrash) {
    EXPECT_EQ(errorOfRun("function again() { return again() + 1; }\nagain();"),
              QStringLiteral("test.js:1: Maximum call stack size exceeded."));
    EXPECT_NE(errorOf(QStringLiteral("function deep() { grid.Rows; deep(); } deep();")),
              QStringLiteral("none"));
    EXPECT_EQ(linesOf(QStringLiteral("print(grid.Rows)")), QStringList{QStringLiteral("2")});
}

TEST_F(Failures, WhatIsPrintedBeforeAFailureStays) {
    errorOfRun("print('before'); throw new Error('x'); print('after');");
    EXPECT_EQ(output, QStringList{QStringLiteral("before")});
}

TEST_F(Failures, AScriptFileThatIsNotThereIsToldWithExitCode2) {
    EXPECT_EQ(runner.runFile(QStringLiteral("/nonesuch/x.js"), {}), 2);
    EXPECT_EQ(errors, QStringList{QStringLiteral("can't read /nonesuch/x.js: No such file or directory")});
}

TEST_F(Failures, AProgramThatGivesItsNameIsNamedWhereAFileCanNotBeRead) {
    zkp::script::ScriptRunner named([](const QString&) {}, [this](const QString& line) { errors << line; },
                                    QStringLiteral("myprogram"));
    EXPECT_EQ(named.runFile(QStringLiteral("/nonesuch/x.js"), {}), 2);
    EXPECT_EQ(errors,
              QStringList{QStringLiteral("myprogram: can't read /nonesuch/x.js: No such file or directory")});
}

TEST_F(Failures, AFilesOwnNameStandsBeforeItsLine) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("αρχείο μου.js"));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/usr/bin/env zkpreport\nprint('ναι');\nthrow new Error('όχι');\n");
    file.close();
    EXPECT_EQ(runner.runFile(name, {}), 1);
    EXPECT_EQ(output.value(0), QStringLiteral("ναι"));
    EXPECT_EQ(errors, QStringList{name + QStringLiteral(":3: όχι")});
}

TEST_F(Failures, ADetachedMethodIsAnErrorAndNoCrash) {
    EXPECT_NE(errorOf(QStringLiteral("var f = grid.refresh; f()")), QStringLiteral("none"));
    EXPECT_NE(errorOf(QStringLiteral("grid.refresh.call({})")), QStringLiteral("none"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.refresh.call(cn)")), 91);
    EXPECT_NE(errorOf(QStringLiteral("ZkpGrid.prototype.Filter")), QStringLiteral("none"));
}

TEST_F(Failures, ALoadThatFailsShowsItsBoxAndLeavesTheControlUsable) {
    EXPECT_EQ(
        linesOf(QStringLiteral("grid.Fill(cn, 'SELECT * FROM NONESUCH', ZKP_SQLStatement); grid.refresh();"
                               "print(host.messages.length, host.messages[0].style);"
                               "grid.Fill(cn, 'SELECT * FROM PEOPLE', ZKP_SQLStatement); grid.refresh(); "
                               "print(grid.RecCount, host.pointer);")),
        (QStringList{QStringLiteral("1 16"), QStringLiteral("3 0")}));
}

} // namespace
