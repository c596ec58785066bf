#include "ado/recordset.h"
#include "base/error.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::ado;

namespace {

/// A driver that counts its links, and lets none go while a statement of it is left.
class CloseTest : public testing::Test {
protected:
    static ConnectionPtr connect() {
        const auto connection = std::make_shared<Connection>();
        connection->Open(u"Driver=" ZKP_SCRIPTED_DRIVER ";Name=Scripted Server;Log=/dev/null"_s);
        return connection;
    }
    /// All but the one that asks.
    int links() const { return asks->Execute(u"links"_s)->Fields().Item(0).Value().toInt() - 1; }

    ConnectionPtr asks = connect();
};

} // namespace

TEST_F(CloseTest, NoLinkIsKeptByRecordsets) {
    std::vector<RecordsetPtr> kept;
    for (int i = 0; i < 20; ++i) {
        const auto connection = connect();
        kept.push_back(connection->Execute(u"vendor type"_s));
        kept.push_back(connection->Execute(u"two results"_s));
        EXPECT_EQ(links(), 1);
        connection->Close();
        EXPECT_EQ(links(), 0);
    }
    for (const auto& rs : kept)
        EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u"value"_s);
}

TEST_F(CloseTest, ResultsThatWereToComeDoNot) {
    const auto connection = connect();
    const auto whole = connection->Execute(u"two results"_s);
    const auto second = whole->NextRecordset();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Fields().Item(0).Value().toString(), u"value"_s);
    const auto half = connection->Execute(u"two results"_s);
    connection->Close();
    EXPECT_FALSE(second->NextRecordset());
    for (int i = 0; i < 2; ++i) {
        try {
            half->NextRecordset();
            FAIL() << "there is no link any more";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), kErrObjectClosed);
        }
        if (i == 0)
            connection->Open();
    }
    EXPECT_EQ(half->RecordCount(), 1);
}

TEST_F(CloseTest, ABrokenLinkIsLetGoWhenTheConnectionOpensAgain) {
    const auto connection = connect();
    const auto half = connection->Execute(u"two results"_s);
    EXPECT_THROW(connection->Execute(u"link broken"_s), Error);
    connection->Open();
    EXPECT_EQ(links(), 1);
    EXPECT_THROW(half->NextRecordset(), Error);
}
