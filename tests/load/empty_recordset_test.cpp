#include "load/empty_recordset.h"

#include "host/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(RecordsetIsEmpty, AnErrorShowsTheBoxAndCountsAsNotEmpty) {
    ScriptedHost host;
    EXPECT_FALSE(RecordsetIsEmpty(nullptr, host));
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_FALSE(RecordsetIsEmpty(std::make_shared<ado::Recordset>(), host)); // closed
    EXPECT_EQ(host.messages.size(), 2u);
}

TEST(RecordsetIsEmpty, IsTrueAtBothEnds) {
    ScriptedHost host;
    auto connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s);
    EXPECT_TRUE(RecordsetIsEmpty(connection->Execute(u"select 1 as a where 1=0"_s), host));
    EXPECT_FALSE(RecordsetIsEmpty(connection->Execute(u"select 1 as a"_s), host));
    EXPECT_TRUE(host.messages.empty());
}
