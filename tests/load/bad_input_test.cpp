#include "load_fixture.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Databases that are not what they should be: a clear box, and the control works on.
class BadInputTest : public LoadTest {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    std::shared_ptr<ado::Connection> database(const QString& file) {
        QFile(file).open(QIODevice::WriteOnly); // an empty file is an empty database
        auto cn = std::make_shared<ado::Connection>();
        cn->Open(u"sqlite:"_s + file);
        return cn;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(BadInputTest, AConnectionThatWasNeverOpened) {
    grid->Fill(std::make_shared<ado::Connection>(), u"select 1 as A"_s, ZKP_SQLStatement);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().size(), 3);
}

TEST_F(BadInputTest, ATableThatIsNotThere) {
    fill(u"select * from NOWHERE"_s);
    grid->refresh();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().contains(u"NOWHERE"_s));
}

TEST_F(BadInputTest, TheEmptyStatement) {
    fill(u""_s);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(BadInputTest, ASecondStatementBehindTheFirst) {
    fill(u"select * from POLICIES; drop table POLICIES"_s);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().size(), 3);
}

TEST_F(BadInputTest, ALockedDatabase) {
    auto first = database(path(u"locked.db"_s));
    first->Execute(u"create table T (A integer)"_s);
    auto second = std::make_shared<ado::Connection>();
    second->Open(u"sqlite:"_s + path(u"locked.db"_s));
    first->Execute(u"begin exclusive"_s);
    grid->setCommandTimeout(1);
    grid->Fill(second, u"select * from T"_s, ZKP_SQLStatement);
    grid->refresh();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().contains(u"locked"_s)) << boxes().first().toStdString();
    first->Execute(u"rollback"_s);
    grid->Fill(second, u"select * from T"_s, ZKP_SQLStatement);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(BadInputTest, ADamagedDatabase) {
    const QString file = path(u"damaged.db"_s);
    {
        auto cn = database(file);
        cn->Execute(u"create table T (A text)"_s);
        cn->BeginTrans();
        for (int i = 0; i < 200; ++i)
            cn->Execute(
                u"insert into T values ('0123456789012345678901234567890123456789012345678901234567890123456789')"_s);
        cn->CommitTrans();
    }
    QFile damaged(file);
    ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
    damaged.seek(4096);
    damaged.write(QByteArray(8192, '\xAA'));
    damaged.close();
    auto cn = std::make_shared<ado::Connection>();
    const Error opening = errorOf([&] { cn->Open(u"sqlite:"_s + file); });
    if (opening.number() == 0) {
        grid->Fill(cn, u"select * from T"_s, ZKP_SQLStatement);
        grid->refresh();
        EXPECT_EQ(boxes().size(), 1);
    }
}

TEST_F(BadInputTest, TextThatIsNotUtf8) {
    connection->Execute(u"create table BAD (A text)"_s);
    connection->Execute(u"insert into BAD values (cast(x'CE41FF' as text))"_s);
    columns({u"A"_s});
    fill(u"select A from BAD"_s);
    grid->refresh();
    EXPECT_TRUE(grid->TextMatrix(1, 0).contains(u'A'));
    EXPECT_TRUE(grid->TextMatrix(1, 0).contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(BadInputTest, ACellOfAHundredMegabytes) {
    columns({u"A"_s});
    fill(u"select replace(hex(zeroblob(50000000)), '00', 'ab') as A"_s);
    grid->refresh();
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(grid->TextMatrix(1, 0).size(), 100'000'000);
}

// A text that is a number is read by the report's locale, where a point groups.
TEST_F(BadInputTest, TextInASummedColumnStandsAsItIsUnlessItIsANumber) {
    columns({u"A"_s});
    grid->setColTotals(0, true);
    fill(u"select 'αβγ' as A union all select '1.234,5'"_s);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: αβγ"_s, u"1: 1.234,50"_s, u"10: 1.234,50"_s}));
    EXPECT_TRUE(host->messages.empty());
}
