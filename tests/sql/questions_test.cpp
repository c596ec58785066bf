#include "ado/connection.h"
#include "grid_fixture.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace zkp;

// How often the database is asked, the catalogue included.

namespace {

QStringList* asked = nullptr; // of the connection that a test opens

int noteStatement(unsigned, void*, void*, void* text) {
    if (asked)
        *asked << QString::fromUtf8(static_cast<const char*>(text));
    return 0;
}

int watchConnection(sqlite3* database, char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, noteStatement, nullptr);
}

/// A report of three dictionary fields of one source.
class QuestionsTest : public GridTest {
protected:
    QuestionsTest() {
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(watchConnection));
        connection->Open(u"sqlite:"_s);
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(watchConnection));
        for (const QString& statement :
             {u"create table POLICIES (A integer, B integer, C integer)"_s,
              u"insert into POLICIES values (1, 2, 3)"_s,
              u"create table DICT (DTFLD text, CPTN text, VISBL bit, ISPUBLIC bit, ISGROUP bit, "
              "[SUM] bit, [AVG] bit, [MIN] bit, [MAX] bit, SOURCEFIELDNAME text, EXPR text, "
              "SOURCETABLENAME text, KEYMASTER text, FOREIGNKEY text, WDTH money, ISTOT bit, ALGN integer)"_s,
              u"create table Reports (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s,
              u"insert into Reports values ('POLICIES', 'POLICIES', '', ''), ('DICT', 'DICT', '', '')"_s})
            connection->Execute(statement);
        for (const QString& key : {u"A"_s, u"B"_s, u"C"_s})
            connection->Execute(
                u"insert into DICT (DTFLD, CPTN, VISBL, ISPUBLIC, SOURCEFIELDNAME, "
                "SOURCETABLENAME, WDTH) values ('%1', '%1', 1, 1, '%1', 'POLICIES', 1000)"_s.arg(key));
        grid->setclmns(u"DICT"_s);
        grid->setSqlOnRunTime(true);
        grid->setCols(3);
        for (int c = 0; c < 3; ++c)
            grid->setColDataField(c, QString(QChar(u'A' + c)));
        grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
        asked = &questions;
    }
    ~QuestionsTest() override { asked = nullptr; }

    void load() {
        grid->setFilter(u"A > 0"_s);
        questions.clear();
        grid->refresh();
        EXPECT_EQ(grid->RecCount(), 1);
        EXPECT_TRUE(host->messages.empty());
    }

    int ofDictionary() const { return count(u"Where DtFld ="_s); }
    int ofCatalogue() const { return count(u"pragma_table_info"_s); }

    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    QStringList questions;

private:
    int count(const QString& part) const {
        return static_cast<int>(questions.filter(part, Qt::CaseInsensitive).size());
    }
};

} // namespace

TEST_F(QuestionsTest, ALoadAsksForEachFieldAndOnceForTheSourcesColumns) {
    load();
    EXPECT_EQ(ofDictionary(), 3);
    EXPECT_EQ(ofCatalogue(), 1);
    EXPECT_EQ(grid->SQLRun().toString(),
              u"SELECT [POLICIES].[A] AS [A], [POLICIES].[B] AS [B], [POLICIES].[C] AS [C] "
              "FROM  POLICIES  Where  [POLICIES].[A] > 0"_s);
}

TEST_F(QuestionsTest, TheNextLoadAsksAgain) {
    load();
    load();
    EXPECT_EQ(ofDictionary(), 3);
    EXPECT_EQ(ofCatalogue(), 1);
}

TEST_F(QuestionsTest, AHostThatAsksAfterALoadGetsByWithItsAnswer) {
    load();
    questions.clear();
    QString tables;
    EXPECT_EQ(grid->makefldSql(u"B"_s, tables), u"[POLICIES].[B] AS [B]"_s);
    EXPECT_EQ(ofDictionary(), 1);
    EXPECT_EQ(ofCatalogue(), 0);
}

TEST_F(QuestionsTest, AnotherSourceOrConnectionIsAskedForItself) {
    load();
    QString tables;
    questions.clear();
    grid->setRecordSource(u"DICT"_s);
    grid->makefldSql(u"B"_s, tables);
    EXPECT_EQ(ofCatalogue(), 1);

    // The statements of another connection aren't noted here: only that its failure counts as before.
    const auto other = std::make_shared<ado::Connection>();
    other->Open(u"sqlite:"_s);
    grid->setCn(other);
    EXPECT_EQ(grid->makefldSql(u"B"_s, tables), QString());
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(QuestionsTest, AFieldWithoutASourceColumnAsksNothingOfTheCatalogue) {
    connection->Execute(u"insert into DICT (DTFLD, EXPR) values ('X', '1+1')"_s);
    questions.clear();
    QString tables;
    EXPECT_EQ(grid->makefldSql(u"X"_s, tables, false), u"1+1"_s);
    EXPECT_EQ(ofCatalogue(), 0);
}
