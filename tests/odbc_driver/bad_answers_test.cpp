#include "ado/recordset.h"
#include "base/error.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "zkp_grid.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// What no server here answers, by a driver that does.
class BadAnswersTest : public testing::Test {
protected:
    BadAnswersTest() { cn->Open(u"Driver=" ZKP_SCRIPTED_DRIVER ";Name=Scripted Server;Log=/dev/null"_s); }

    ado::RecordsetPtr open(const char* sql) {
        auto rs = std::make_shared<ado::Recordset>();
        rs->Open(QString::fromUtf8(sql), cn);
        return rs;
    }
    Error failureOf(const char* sql) {
        try {
            open(sql);
        } catch (const Error& error) {
            return error;
        }
        return Error(0, QString());
    }
    /// Boxes of a control that shows a statement's records.
    QStringList boxesOf(ZkpGrid& grid, const QString& statement) {
        host->messages.clear();
        grid.setCols(1);
        grid.setColDataField(0, u"V"_s);
        grid.Fill(cn, statement, ZKP_SQLStatement);
        grid.refresh();
        QStringList texts;
        for (const auto& message : host->messages)
            texts << message.text;
        return texts;
    }

    ado::ConnectionPtr cn = std::make_shared<ado::Connection>();
    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
};

} // namespace

TEST_F(BadAnswersTest, AllWordsOfTheDriverAreTold) {
    const Error error = failureOf("three words");
    EXPECT_EQ(error.number(), kErrBadStatement);
    EXPECT_EQ(error.description(), u"[Scripted] Incorrect syntax near 'words'.\n"
                                   "[Scripted] The statement has been terminated.\n"
                                   "[Scripted] Statement(s) could not be prepared."_s);
    EXPECT_EQ(error.source(), u"Scripted Server"_s);
    EXPECT_EQ(failureOf("no words").number(), kErrDatabase);
    EXPECT_FALSE(failureOf("no words").description().isEmpty());
    EXPECT_EQ(open("anything")->RecordCount(), 0);
}

TEST_F(BadAnswersTest, ALinkThatBreaksIsOpenedAgainByTheSameConnection) {
    for (const char* statement : {"link broken", "link breaks behind 3000"}) {
        const Error error = failureOf(statement);
        EXPECT_EQ(error.number(), kErrDatabase) << statement;
        EXPECT_EQ(error.description(), u"[Scripted] Communication link failure"_s) << statement;
        cn->Open();
        EXPECT_EQ(open("vendor type")->RecordCount(), 1);
    }
}

TEST_F(BadAnswersTest, NoRecordsetIsLeftHalfFetched) {
    auto rs = std::make_shared<ado::Recordset>();
    EXPECT_THROW(rs->Open(u"link breaks behind 3000"_s, cn), Error);
    EXPECT_EQ(rs->State(), ado::adStateClosed);
    cn->Open();
    rs->Open(u"vendor type"_s, cn);
    EXPECT_EQ(rs->RecordCount(), 1);
}

TEST_F(BadAnswersTest, ATypeThatTheDriverCallsUnknownIsReadAsText) {
    for (const char* statement : {"vendor type", "unknown type"}) {
        const auto rs = open(statement);
        EXPECT_EQ(rs->Fields().Item(0).Type(), 202) << statement;
        EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u"value"_s) << statement;
    }
}

TEST_F(BadAnswersTest, HalvesOfCharactersBecomeTheSignForAnUnknownOne) {
    EXPECT_EQ(open("halves of characters")->Fields().Item(0).Value().toString(), u"a\uFFFDb\uFFFDΩ"_s);
}

/// The column says 50 characters, which may take 100 units; this driver can't go back into a block.
TEST_F(BadAnswersTest, AValueLongerThanItsColumnIsNeitherCutNorTakenFromAnotherRecord) {
    const Error error = failureOf("longer than told");
    EXPECT_EQ(error.number(), kErrDatabase);
    EXPECT_EQ(error.description(), u"A value is longer than its column."_s);
    EXPECT_EQ(open("vendor type")->RecordCount(), 1);
}

TEST_F(BadAnswersTest, AFieldNameOf128LettersComesWhole) {
    const QString name(128, u'Ω');
    const auto rs = open("long name");
    EXPECT_EQ(rs->Fields().Item(0).Name(), name);
    EXPECT_EQ(rs->Collect(name).toString(), u"value"_s);
}

TEST_F(BadAnswersTest, AControlTellsTheDriversWordsAndLoadsAgain) {
    ZkpGrid grid(host);
    EXPECT_EQ(boxesOf(grid, u"vendor type"_s), QStringList());
    EXPECT_EQ(grid.TextMatrix(1, 0), u"value"_s);
    for (const QString& statement : {u"link broken"_s, u"link breaks behind 3000"_s}) {
        const QStringList boxes = boxesOf(grid, statement);
        ASSERT_EQ(boxes.size(), 1) << statement.toStdString();
        EXPECT_TRUE(boxes[0].contains(u"[Scripted] Communication link failure"_s)) << boxes[0].toStdString();
        EXPECT_TRUE(grid.Redraw());
        EXPECT_EQ(host->pointer(), kPointerDefault);
        cn->Open();
        EXPECT_EQ(boxesOf(grid, u"vendor type"_s), QStringList());
        EXPECT_EQ(grid.TextMatrix(1, 0), u"value"_s);
    }
    EXPECT_TRUE(boxesOf(grid, u"three words"_s).value(0).contains(u"The statement has been terminated."_s));
    EXPECT_EQ(boxesOf(grid, u"vendor type"_s), QStringList());
}
