#pragma once

#include "print_qt.h"
#include "script/script_runner.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The script engine wants an application object; one serves all tests of the program.
inline void needApplication() {
    static int argc = 1;
    static char name[] = "zkpreport_tests";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
}

/// Runs scripts in the test's own process. Each test is a world of its own.
class ScriptTest : public testing::Test {
protected:
    ScriptTest() { run(QString::fromUtf8(kPrelude)); }

    /// The exit code; what the script prints and what ends it are in `output` and `errors`.
    int run(const QString& text, const QStringList& arguments = {}) {
        output.clear();
        errors.clear();
        return runner.runText(text, QStringLiteral("test.js"), arguments);
    }

    /// The lines that a script prints that must end well.
    QStringList linesOf(const QString& text) {
        EXPECT_EQ(run(text), 0) << qPrintable(errors.join(QLatin1Char('\n')));
        return output;
    }

    /// "NUMBER DESCRIPTION" of the error that an expression or statement ends in; "none" without one.
    QString errorOf(const QString& statement) {
        const QStringList lines =
            linesOf(QStringLiteral("try { %1; print('none'); } catch (e) { print(e.number, e.description); }")
                        .arg(statement));
        return lines.isEmpty() ? QString() : lines.last();
    }

    /// The number alone.
    int errorNumber(const QString& statement) {
        const QString error = errorOf(statement);
        return error == QLatin1String("none") ? 0 : error.section(QLatin1Char(' '), 0, 0).toInt();
    }

    QStringList output;
    QStringList errors;

private:
    struct Application {
        Application() { needApplication(); }
    } application_;

    // Three people; `AMOUNT` is money, one is unknown, as is one name.
    static constexpr char kPrelude[] = R"js(
        host.locale = "el_GR";
        var cn = new Connection();
        cn.Open("sqlite:");
        cn.Execute("CREATE TABLE PEOPLE (NAME TEXT, AMOUNT MONEY, DUE DATE, SEEN TIMESTAMP, PAID BIT)");
        cn.Execute("INSERT INTO PEOPLE VALUES ('Άννα', 1234.5, '2026-11-20', '2026-11-20 14:05:00', 1), " +
                   "('Βασίλης', NULL, NULL, NULL, 0), (NULL, -3, '2026-01-02', NULL, NULL)");
        function people() {
            return cn.Execute("SELECT * FROM PEOPLE ORDER BY AMOUNT DESC");
        }
        function makeGrid() {
            var made = new ZkpGrid();
            made.Cols = 2;
            made.setColDataField(0, "NAME");
            made.setColDataField(1, "AMOUNT");
            made.Fill(cn, "SELECT * FROM PEOPLE ORDER BY AMOUNT DESC", ZKP_SQLStatement);
            return made;
        }
        var grid = makeGrid();
    )js";

protected:
    zkp::script::ScriptRunner runner{[this](const QString& line) { output << line; },
                                     [this](const QString& line) { errors << line; }};
};
