#include "case_file.h"
#include "sql_server_grammar.h"

#include "ado/connection.h"
#include "ado/recordset.h"
#include "base/error.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "zkp_grid.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zkp::sqlcases {

using namespace Qt::StringLiterals;

namespace {

const QString kFolder = QStringLiteral(ZKP_SOURCE_DIR "/tests/sql/");

bool isStatement(const QString& text) {
    const QString trimmed = text.trimmed();
    return trimmed.startsWith(u"select", Qt::CaseInsensitive) ||
           trimmed.startsWith(u"exec", Qt::CaseInsensitive);
}

/// Every statement that a case expects of a builder, once.
QStringList expectedStatements() {
    QStringList statements;
    for (const QString& name : QDir(kFolder + u"cases"_s).entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        for (const Case& one : readCases(kFolder + u"cases/"_s + name)) {
            for (const Step& step : one.steps) {
                if (step.verb == u"result" && isStatement(step.value))
                    statements << step.value;
            }
        }
    }
    statements.removeDuplicates();
    return statements;
}

/// What else the control sends.
QStringList otherStatements() {
    return {u"Select * From Reports Where RecSource = 'POLICIESDATA'"_s,
            u"Select * from DICT where visbl = 1 and (isGroup = 1 or [Sum] = 1 or [Avg] = 1 or [Min] =1  or "
            u"[Max] = 1) order by cptn"_s,
            u"Select TOP 1 * From DICT Where SourceTableName = 'AGENTS'"_s,
            u"Select * From DICT Where DtFld = 'PREMIUM'"_s,
            u" exec Sec_GetUserIerarxiaID 'P1'"_s,
            u"SELECT GenValue from QRN_MAIN where GenKEY = 2 and GenSubKey=18"_s,
            u"select * from frms2 where lstCode = 'Μηνιαίο'"_s,
            u"select * from frms where lstCode = 12"_s,
            u"SELECT [A] From [T] Where D >= Convert(Datetime,'11/20/2026',102) order by  1"_s,
            u"SELECT [A] From [T] Where [Odd, Name] = N'[x]' and B = '' -- 'TOP 1 TRUE"_s};
}

/// A connection to a driver that says it is a certain server and writes down what reaches it.
class Sent {
public:
    explicit Sent(const QString& more) {
        connection->Open(u"Driver=" ZKP_SCRIPTED_DRIVER ";Log=%1;%2"_s.arg(log(), more));
        QFile::remove(log());
    }
    QStringList statements() const {
        QFile file(log());
        QStringList read;
        if (!file.open(QIODevice::ReadOnly))
            return read;
        while (!file.atEnd()) {
            const auto bytes = file.readLine().toLongLong() * qint64(sizeof(char16_t));
            const QByteArray text = file.read(bytes);
            read << QString(reinterpret_cast<const QChar*>(text.constData()), text.size() / 2);
        }
        return read;
    }

    ado::ConnectionPtr connection = std::make_shared<ado::Connection>();

private:
    QString log() const { return folder_.filePath(u"statements"_s); }
    QTemporaryDir folder_;
};

std::string refusal(const QString& statement) {
    try {
        SqlServerGrammar::check(statement);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return {};
}

/// A reason and a statement between bars, a line each.
QStringList knownRefusals() {
    QFile file(kFolder + u"sql_server_refused.txt"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList lines;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#'))
            lines << line;
    }
    return lines;
}

} // namespace

TEST(SqlServer, EveryStatementReachesTheDriverAsItIs) {
    const QStringList statements =
        expectedStatements() + otherStatements() + QStringList{u"SELECT [Odd ]] Name], `B` FROM \"T\""_s};
    ASSERT_GT(statements.size(), 140);
    for (const QString& server :
         {u"Name=Microsoft SQL Server"_s, u"Name=Whatever Else"_s, u"Name=PostgreSQL;Dialect=SqlServer"_s}) {
        const Sent sent(server);
        for (const QString& statement : statements) {
            sent.connection->Execute(statement);
            EXPECT_EQ(sent.connection->LastStatementSent(), statement);
        }
        EXPECT_EQ(sent.statements(), statements) << server.toStdString();
    }
}

TEST(SqlServer, TheDialectCanBeNamedInTheConnectionString) {
    const Sent sent(u"Name=Microsoft SQL Server;dialect = PostgreSQL"_s);
    sent.connection->Execute(u"SELECT TOP 1 [A] FROM T"_s);
    EXPECT_EQ(sent.statements().last(), u"SELECT \"a\" FROM T LIMIT 1"_s);
}

TEST(SqlServer, AControlAsksWhoTheUserIsByTheProcedure) {
    const Sent sent(u"Name=Microsoft SQL Server"_s);
    ZkpGrid grid(std::make_shared<ScriptedHost>());
    // No records come back here; a user who is nobody is an error of Fill.
    EXPECT_THROW(grid.Fill(sent.connection, u"POLICIESDATA"_s, ZKP_Table_QUERY, u"P1"_s), Error);
    EXPECT_EQ(sent.statements(), QStringList(u" exec Sec_GetUserIerarxiaID 'P1'"_s));
}

TEST(SqlServer, TemplatesAreWrittenByParameters) {
    const Sent sent(u"Name=Microsoft SQL Server"_s);
    ZkpGrid grid(std::make_shared<ScriptedHost>());
    grid.setCn(sent.connection);
    grid.setCols(1);
    grid.SaveTemplate({}, u"new"_s);
    EXPECT_EQ(sent.statements(),
              QStringList({u"select * from frms2 where lstCode = 'new'"_s,
                           u"INSERT INTO [dbo].[frms2] ([lstCode],[datein],[ZKP_]) OUTPUT INSERTED.[lstCode] "
                           u"VALUES (?,?,?)"_s,
                           u"select * FROM  frms2  WHERE [lstCode] = ?"_s}));
    grid.SaveTemplate({}, u"old"_s);
    EXPECT_EQ(
        sent.statements().mid(3),
        QStringList(
            {u"select * from frms2 where lstCode = 'old'"_s,
             u"select * , [lstCode] from frms2 where lstCode = 'old'"_s,
             u"SELECT TOP (2) 1 AS found FROM [dbo].[frms2] WITH (UPDLOCK, HOLDLOCK) WHERE [lstCode] = ?"_s,
             u"UPDATE [dbo].[frms2] SET [lstCode]=?,[datein]=?,[ZKP_]=? WHERE [lstCode] = ?"_s,
             u"select * FROM  frms2  WHERE [lstCode] = ?"_s}));
}

TEST(SqlServer, TheStatementsHaveItsGrammar) {
    QStringList refused;
    for (const QString& statement : expectedStatements() + otherStatements()) {
        const std::string why = refusal(statement);
        if (!why.empty())
            refused << QString::fromStdString(why) << u'|' + statement + u'|';
    }
    EXPECT_EQ(refused, knownRefusals());
}

TEST(SqlServer, TheGrammarIsThatOfTheServer) {
    for (const char* taken :
         {"SELECT TOP 10 [A], B AS [C D], Count(*) n FROM [T] GROUP BY A, B",
          "select distinct A from (T left join [U] on T.K = U.K) left join V on T.K = V.K order by A desc",
          "SELECT * FROM T WHERE A IN ('1', 2) and (B = 1 or not (C between 1 and 2)) and D is not null",
          "SELECT case when Sum(A)>0 then Sum(A) else 1 end / (SELECT Max(B) FROM U WHERE U.K = T.K) FROM T",
          "SELECT A FROM T WHERE (A + 1) * 2 > 3 and D < Convert(Datetime,'1/2/2026',102)",
          "EXEC dbo.P 'a', 2, null"})
        EXPECT_EQ(refusal(QString::fromUtf8(taken)), "") << taken;
    for (const char* refused :
         {"SELECT A FROM T LIMIT 1", "SELECT `A` FROM T", "SELECT A FROM T WHERE TRUE",
          "SELECT A FROM T WHERE isgroup or isTot", "SELECT A, B FROM T GROUP BY A",
          "SELECT A, Count(*) FROM T", "SELECT DISTINCT A FROM T ORDER BY B", "SELECT A FROM T ORDER BY 1,2",
          "SELECT Sum() FROM T", "SELECT A FROM T LEFT JOIN U ON", "SELECT A FROM T, T", "SELECT A FROM []",
          "SELECT A FROM T WHERE ", "SELECT A,, B FROM T", "SELECT A FROM T WHERE A='P'1'",
          "SELECT A FROM T GROUP BY 1", "SELECT A FROM (SELECT A FROM T)", "EXEC", "EXEC P A.B"})
        EXPECT_NE(refusal(QString::fromUtf8(refused)), "") << refused;
}

} // namespace zkp::sqlcases
