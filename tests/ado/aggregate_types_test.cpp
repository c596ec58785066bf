#include "ado/sqlite/aggregate_types.h"

#include "ado/ado_fixture.h"
#include "base/currency.h"

namespace zkp::ado::test {

TEST(AggregateTypes, OnlyAggregatesOfPlainColumnsInTheSelectListAreMadeBare) {
    using sqlite::withBareColumns;
    EXPECT_EQ(withBareColumns(u("SELECT DISTINCT A, Sum([T].[P]) As S FROM T Where Sum(P)>1 Group By A")),
              u("SELECT DISTINCT A , ( [T] . [P] ) As S FROM T Where Sum ( P ) > 1 Group By A"));
    EXPECT_EQ(withBareColumns(u("SELECT Sum(P*2), Count(*), (SELECT Sum(P) FROM T) FROM T")), QString());
    EXPECT_EQ(withBareColumns(u("SELECT A FROM T")), QString());
    EXPECT_EQ(withBareColumns(u("insert into T values (1)")), QString());
}

TEST(AggregateTypes, AmountsAndDatesKeepTheTypeOfTheirColumn) {
    auto connection = std::make_shared<Connection>();
    connection->Open(u("sqlite:"));
    connection->Execute(u("create table T (A text, P money, D date, N integer)"));
    connection->Execute(u("insert into T values ('x', 1.5, '2026-11-20', 1), ('x', 2, '2026-11-21', 2)"));
    auto rs = connection->Execute(
        u("select A, Sum(P) as S, Max(D) as M, Avg(N) as V, Sum(N) as C, Sum(P*2) as X from T group by A"));
    EXPECT_EQ(rs->Fields().Item(u"S").Type(), adCurrency);
    EXPECT_EQ(rs->Fields().Item(u"S").Value(), QVariant::fromValue(Currency{35'000}));
    EXPECT_EQ(rs->Fields().Item(u"M").Type(), adDBDate);
    EXPECT_EQ(rs->Fields().Item(u"V").Type(), adDouble);
    EXPECT_EQ(rs->Fields().Item(u"C").Type(), adInteger);
    EXPECT_EQ(rs->Fields().Item(u"X").Type(), adDouble);
}

} // namespace zkp::ado::test
