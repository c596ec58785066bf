#include "sql/group_order.h"

#include "ado/connection.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

QString order(const QString& values, const QStringList& factors) {
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s);
    ado::Recordset records;
    records.Open(u"with t(A, B, C) as (values "_s + values + u") select * from t"_s, connection);
    keepGroupsTogether(records, factors);
    QStringList found;
    for (; !records.Eof(); records.MoveNext())
        found << records.Collect(u"A"_s).toString() + records.Collect(u"B"_s).toString() +
                     records.Collect(u"C"_s).toString();
    return found.join(u' ');
}

} // namespace

TEST(GroupOrder, GroupsThatStandTogetherStayInTheirOrder) {
    EXPECT_EQ(order(u"('b','y',2),('b','x',1),('a','x',1)"_s, {u"A"_s, u"B"_s, u"C"_s}), u"by2 bx1 ax1"_s);
}

TEST(GroupOrder, GroupsThatStandApartAreSorted) {
    EXPECT_EQ(order(u"('b','x',1),('a','x',2),('b','y',3)"_s, {u"A"_s, u"B"_s}), u"ax2 bx1 by3"_s);
}

TEST(GroupOrder, OuterGroupsCountThoughInnerOnesStandTogether) {
    EXPECT_EQ(order(u"('b','x',1),('a','x',2),('b','y',3)"_s, {u" A "_s, u"B"_s, u"C"_s}), u"ax2 bx1 by3"_s);
}

TEST(GroupOrder, ANullAndAnEmptyTextAreTwoGroups) {
    EXPECT_EQ(order(u"(null,'x',1),('','x',2),('a','x',3)"_s, {u"A"_s, u"B"_s}), u"x1 x2 ax3"_s);
}

// Each record is a group of the innermost factor.
TEST(GroupOrder, TheInnermostFactorNeedsNoOrder) {
    EXPECT_EQ(order(u"('b','y',1),('b','x',2),('b','y',3)"_s, {u"A"_s, u"B"_s}), u"by1 bx2 by3"_s);
    EXPECT_EQ(order(u"('b','y',1),('a','x',2),('b','y',3)"_s, {u"A"_s}), u"by1 ax2 by3"_s);
}

TEST(GroupOrder, AFactorThatTheRecordsLackChangesNothing) {
    EXPECT_EQ(order(u"('b','x',1),('a','x',2),('b','y',3)"_s, {u"NONE"_s, u"A"_s, u"B"_s}), u"bx1 ax2 by3"_s);
}
