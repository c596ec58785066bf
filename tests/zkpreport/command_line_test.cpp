#include "print_qt.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The program as a process, as people start it.

namespace {

class CommandLine : public testing::Test {
protected:
    /// The exit code; what the program writes is in `output` and `errors`.
    int start(const QStringList& arguments) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ZKPREPORT_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        output = QString::fromUtf8(process.readAllStandardOutput());
        errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    QString write(const QString& name, const QByteArray& text) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return name;
    }

    QTemporaryDir folder;
    QString output;
    QString errors;
};

TEST_F(CommandLine, HelpTellsEveryCommandWithALineOfItsOwn) {
    EXPECT_EQ(start({QStringLiteral("--help")}), 0);
    for (const char* name :
         {"\n  show ", "\n  run ", "\n  demo-db ", "\n  template ", "\n  shots ", "--help", "--version"})
        EXPECT_TRUE(output.contains(QLatin1String(name))) << name << qPrintable(output);
    EXPECT_EQ(errors, QString());
}

TEST_F(CommandLine, VersionTellsTheProgramAndItsVersion) {
    EXPECT_EQ(start({QStringLiteral("--version")}), 0);
    EXPECT_TRUE(output.startsWith(QStringLiteral("zkpreport ")));
}

TEST_F(CommandLine, EachCommandHasAHelpOfItsOwn) {
    for (const char* name : {"show", "run", "demo-db", "template", "shots"}) {
        EXPECT_EQ(start({QLatin1String(name), QStringLiteral("--help")}), 0) << name;
        EXPECT_TRUE(output.contains(QLatin1String(name))) << qPrintable(output);
    }
}

TEST_F(CommandLine, AnUnknownCommandOrOptionIsToldWithExitCode2) {
    EXPECT_EQ(start({QStringLiteral("shwo")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("shwo"))) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("--rowz"), QStringLiteral("5"),
                     QStringLiteral("x")}),
              2);
    EXPECT_TRUE(errors.contains(QStringLiteral("rowz"))) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("demo-db")}), 2);
    EXPECT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("x"), QStringLiteral("--rows"),
                     QStringLiteral("many")}),
              2);
    EXPECT_EQ(start({QStringLiteral("run")}), 2);
    EXPECT_EQ(start({QStringLiteral("run"), QStringLiteral("nonesuch.js")}), 2);
    EXPECT_EQ(errors, QStringLiteral("zkpreport: can't read nonesuch.js: No such file or directory\n"));
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("nonesuch.db")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("nonesuch.db"))) << qPrintable(errors);
}

TEST_F(CommandLine, RunGivesTheScriptItsArgumentsAndPrintsItsLines) {
    write(QStringLiteral("a.js"), "print('Καλημέρα', args.join('+'), args.length);");
    EXPECT_EQ(
        start({QStringLiteral("run"), QStringLiteral("a.js"), QStringLiteral("α"), QStringLiteral("--help")}),
        0);
    EXPECT_EQ(output, QStringLiteral("Καλημέρα α+--help 2\n"));
    EXPECT_EQ(errors, QString());
}

TEST_F(CommandLine, RunEndsWithExitCode1AndTheFailuresPlace) {
    write(QStringLiteral("a.js"), "print('before');\nnew ZkpGrid().refresh();\nprint('after');");
    EXPECT_EQ(start({QStringLiteral("run"), QStringLiteral("a.js")}), 1);
    EXPECT_EQ(output, QStringLiteral("before\n"));
    EXPECT_EQ(errors, QStringLiteral("a.js:2: The Property Cn Hasn't Been set!\n"));
    write(QStringLiteral("b.js"), "\n(");
    EXPECT_EQ(start({QStringLiteral("run"), QStringLiteral("b.js")}), 1);
    EXPECT_TRUE(errors.startsWith(QStringLiteral("b.js:2: "))) << qPrintable(errors);
}

TEST_F(CommandLine, DemoDbMakesADatabaseOnceWithSoManyPolicies) {
    const QStringList make{QStringLiteral("demo-db"), QStringLiteral("demo.db"), QStringLiteral("--rows"),
                           QStringLiteral("30"),      QStringLiteral("--seed"),  QStringLiteral("7")};
    ASSERT_EQ(start(make), 0) << qPrintable(errors);
    write(QStringLiteral("count.js"), "var cn = new Connection(); cn.Open('sqlite:demo.db');"
                                      "print(cn.Execute('SELECT COUNT(*) FROM POLICIES').Fields(0).Value);");
    EXPECT_EQ(start({QStringLiteral("run"), QStringLiteral("count.js")}), 0) << qPrintable(errors);
    EXPECT_EQ(output, QStringLiteral("30\n"));
    EXPECT_EQ(start(make), 1);
    EXPECT_TRUE(errors.contains(QStringLiteral("demo.db"))) << qPrintable(errors);
}

TEST_F(CommandLine, ShowWithoutADisplayDrawsTheWindowAndPrintsTheFirstRows) {
    ASSERT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("demo.db"), QStringLiteral("--rows"),
                     QStringLiteral("40")}),
              0);
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("--database"), QStringLiteral("demo.db"),
                     QStringLiteral("--picture"), QStringLiteral("window.png")}),
              0)
        << qPrintable(errors);
    const QStringList lines = output.split(QLatin1Char('\n'));
    // A heading, 20 rows, a blank line, where the picture is, and the end of the last line.
    ASSERT_EQ(lines.size(), 24) << qPrintable(output);
    EXPECT_TRUE(lines.at(0).contains(QStringLiteral("Αρ. Συμβολαίου")));
    EXPECT_TRUE(lines.at(22).contains(QDir(folder.path()).absoluteFilePath(QStringLiteral("window.png"))));
    const QImage picture(folder.filePath(QStringLiteral("window.png")));
    EXPECT_EQ(picture.size(), QSize(1280, 800));
}

TEST_F(CommandLine, ShowGroupsAReport) {
    ASSERT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("demo.db"), QStringLiteral("--rows"),
                     QStringLiteral("40")}),
              0);
    const QString category = QStringLiteral("--group=CATEGORY");
    EXPECT_EQ(start({QStringLiteral("show"), category}), 0) << qPrintable(errors);
    EXPECT_TRUE(output.startsWith(QStringLiteral("Κλάδος"))) << qPrintable(output);
    EXPECT_EQ(start({QStringLiteral("show"), category, QStringLiteral("--totals")}), 0) << qPrintable(errors);
    EXPECT_TRUE(output.contains(QStringLiteral("Πλήθος"))) << qPrintable(output);
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("--group=PREMIUM")}), 1);
    EXPECT_TRUE(errors.contains(QStringLiteral("PREMIUM"))) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("--totals")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("--group"))) << qPrintable(errors);
}

TEST_F(CommandLine, WithoutACommandTheWindowIsShown) {
    ASSERT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("demo.db"), QStringLiteral("--rows"),
                     QStringLiteral("5")}),
              0);
    EXPECT_EQ(start({}), 0) << qPrintable(errors);
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("plain_report.png"))));
    EXPECT_TRUE(output.contains(QStringLiteral("plain_report.png")));
}

TEST_F(CommandLine, ShowTellsADamagedDatabaseAndOneWithoutTheReport) {
    write(QStringLiteral("bad.db"), "this is no database, and long enough not to be taken for an empty one");
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("bad.db")}), 1);
    EXPECT_NE(errors.trimmed(), QString());
    write(QStringLiteral("make.js"),
          "var cn = new Connection(); cn.Open('sqlite:empty.db'); cn.Execute('CREATE TABLE A (B)');");
    write(QStringLiteral("empty.db"), "");
    ASSERT_EQ(start({QStringLiteral("run"), QStringLiteral("make.js")}), 0) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("empty.db")}), 1);
    EXPECT_NE(errors.trimmed(), QString());
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("plain_report.png"))));
}

TEST_F(CommandLine, ShotsDrawsEveryPictureThatItNames) {
    EXPECT_EQ(start({QStringLiteral("shots"), QStringLiteral("pictures")}), 0) << qPrintable(errors);
    const QDir pictures(folder.filePath(QStringLiteral("pictures")));
    for (const char* name : {"plain_report", "grouped_report", "totals_report", "context_menu", "column_drag",
                             "grouped_report_dark"}) {
        const QString file = QStringLiteral("%1.png").arg(QLatin1String(name));
        EXPECT_TRUE(output.contains(file)) << name;
        EXPECT_EQ(QImage(pictures.filePath(file)).size(), QSize(1280, 800)) << name;
    }
    EXPECT_EQ(QImage(pictures.filePath(QStringLiteral("grouped_report_200.png"))).size(), QSize(2560, 1600));
    const auto picture = [&](const char* name) { return QImage(pictures.filePath(QLatin1String(name))); };
    EXPECT_NE(picture("context_menu.png"), picture("grouped_report.png")) << "a menu is open";
    EXPECT_NE(picture("column_drag.png"), picture("grouped_report.png")) << "a heading is on its way";
    EXPECT_EQ(pictures.entryList(QDir::Files).size(), output.count(u'\n'));
}

TEST_F(CommandLine, ShotsWantsAFolderAndADatabaseThatIsThere) {
    EXPECT_EQ(start({QStringLiteral("shots")}), 2);
    EXPECT_EQ(start({QStringLiteral("shots"), QStringLiteral("x"), QStringLiteral("--database"),
                     QStringLiteral("none.db")}),
              2);
    EXPECT_TRUE(errors.contains(QStringLiteral("none.db"))) << qPrintable(errors);
}

TEST_F(CommandLine, ATemplateGoesThroughItsTextExactly) {
    const QString database = QStringLiteral("--database=t.db");
    EXPECT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("t.db"), QStringLiteral("--rows=5")}), 0);
    write(QStringLiteral("save.js"), "const cn = new Connection(); cn.Open('sqlite:t.db');"
                                     "cn.Execute(\"insert into frms (lstCode) values (12), (0)\");"
                                     "const grid = new ZkpGrid(); grid.Cn = cn; grid.Cols = 3;"
                                     "grid.setColCaption(1, 'Ασφάλιστρα'); grid.OrderBy = 'a = \"b\"\\n';"
                                     "grid.SaveTemplate(undefined, 'Μηνιαία');"
                                     "grid.SaveTemplate(undefined, 'ABCD12');"
                                     "grid.SaveTemplate(undefined, 'ABCD0.4');"); // row 0 has no name
    EXPECT_EQ(start({QStringLiteral("run"), QStringLiteral("save.js")}), 0) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("list"), database}), 0);
    EXPECT_EQ(output, QStringLiteral("frms12\nΜηνιαία\n"));

    const auto exported = [&](const char* name, const char* file) {
        EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("export"), QString::fromUtf8(name),
                         QString::fromUtf8(file), database}),
                  0)
            << qPrintable(errors);
        QFile text(folder.filePath(QString::fromUtf8(file)));
        EXPECT_TRUE(text.open(QIODevice::ReadOnly));
        return text.readAll();
    };
    const QByteArray first = exported("Μηνιαία", "first.txt");
    EXPECT_TRUE(first.contains("Ασφάλιστρα"));
    EXPECT_EQ(exported("frms12", "second.txt"), first);
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("import"), QStringLiteral("Αντίγραφο"),
                     QStringLiteral("first.txt"), database}),
              0);
    EXPECT_EQ(exported("Αντίγραφο", "third.txt"), first);
}

TEST_F(CommandLine, ATemplateThatCannotBeReadOrWrittenIsToldAndNothingChanges) {
    const QString database = QStringLiteral("--database=t.db");
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("list"), database}), 1);
    EXPECT_TRUE(errors.startsWith(QStringLiteral("zkpreport template: there is no file t.db")));
    EXPECT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("t.db"), QStringLiteral("--rows=5")}), 0);
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("export"), QStringLiteral("Καμία"),
                     QStringLiteral("none.txt"), database}),
              1);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("none.txt"))));
    write(QStringLiteral("bad.txt"), "this is no template\n");
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("import"), QStringLiteral("Κακή"),
                     QStringLiteral("bad.txt"), database}),
              1);
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("list"), database}), 0);
    EXPECT_EQ(output, QString());
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("export"), QStringLiteral("Καμία")}), 2);
}

TEST_F(CommandLine, EachCommandTakesAFileBySqliteToo) {
    ASSERT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("sqlite:t.db"), QStringLiteral("--rows=5")}),
              0);
    const QString database = QStringLiteral("--database=sqlite:t.db");
    EXPECT_EQ(start({QStringLiteral("show"), database}), 0) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("template"), QStringLiteral("list"), database}), 0) << qPrintable(errors);
    EXPECT_EQ(start({QStringLiteral("show"), QStringLiteral("sqlite:none.db")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("there is no file none.db"))) << qPrintable(errors);
}

TEST_F(CommandLine, AServerThatCannotBeReachedIsToldWithoutItsPassword) {
    const QString server = QStringLiteral("Driver={no such driver};Server=srv02;Database=office;PWD=secret");
    const QString database = QStringLiteral("--database=") + server;
    const auto expectExit = [&](int exitCode, const QStringList& arguments) {
        EXPECT_EQ(start(arguments), exitCode) << qPrintable(arguments.join(u' '));
        EXPECT_NE(errors.trimmed(), QString());
        EXPECT_FALSE((output + errors).contains(QStringLiteral("secret"))) << qPrintable(errors);
    };
    expectExit(1, {QStringLiteral("show"), database});
    EXPECT_TRUE(errors.contains(QStringLiteral("office (srv02)"))) << qPrintable(errors);
    EXPECT_TRUE(errors.contains(QStringLiteral("no such driver"))) << "the driver manager's words";
    expectExit(1, {QStringLiteral("template"), QStringLiteral("list"), database});
    expectExit(1, {QStringLiteral("shots"), QStringLiteral("pictures"), database});
    expectExit(1, {QStringLiteral("demo-db"), QStringLiteral("--into"), server});
    expectExit(2, {QStringLiteral("demo-db"), server});
    expectExit(2, {server});
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList()) << "no file of such a name";
}

TEST_F(CommandLine, DemoDbGoesIntoAServerOnlyByItsConnectionString) {
    EXPECT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("--into"), QStringLiteral("t.db")}), 2);
    EXPECT_TRUE(errors.contains(QStringLiteral("connection string"))) << qPrintable(errors);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("t.db"))));
}

TEST_F(CommandLine, ATemplateForARowThatIsNotThereIsToldSo) {
    const QString database = QStringLiteral("--database=t.db");
    ASSERT_EQ(start({QStringLiteral("demo-db"), QStringLiteral("t.db"), QStringLiteral("--rows=5")}), 0);
    write(QStringLiteral("save.js"), "const cn = new Connection(); cn.Open('sqlite:t.db');"
                                     "const grid = new ZkpGrid(); grid.Cn = cn; grid.Cols = 3;"
                                     "grid.SaveTemplate(undefined, 'Μηνιαία');");
    ASSERT_EQ(start({QStringLiteral("run"), QStringLiteral("save.js")}), 0) << qPrintable(errors);
    ASSERT_EQ(start({QStringLiteral("template"), QStringLiteral("export"), QStringLiteral("Μηνιαία"),
                     QStringLiteral("a.txt"), database}),
              0);
    for (const char* action : {"import", "export"}) {
        EXPECT_EQ(start({QStringLiteral("template"), QLatin1String(action), QStringLiteral("ABCD99"),
                         QStringLiteral("a.txt"), database}),
                  1);
        EXPECT_TRUE(errors.contains(QStringLiteral("there is no row 99 in frms"))) << qPrintable(errors);
    }
}

} // namespace
