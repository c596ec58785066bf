#include "sql/query_exists.h"

#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using QueryExistsTest = test::DatabaseTest;

TEST_F(QueryExistsTest, FindsViewsAndTables) {
    run(u"create table Πελάτες (a)"_s);
    run(u"create view SpecialInfo as select 1 as a"_s);
    EXPECT_TRUE(QueryExists(cn, u"SpecialInfo"_s));
    EXPECT_TRUE(QueryExists(cn, u"Πελάτες"_s));
    EXPECT_FALSE(QueryExists(cn, u"Special"_s));
    EXPECT_FALSE(QueryExists(cn, u"SpecialInfo2"_s));
}

TEST_F(QueryExistsTest, NamesAreComparedTrimmedAndInCapitals) {
    run(u"create view Πελάτες as select 1 as a"_s);
    run(u"create table [ padded ] (a)"_s);
    EXPECT_TRUE(QueryExists(cn, u"  πελάτεσ "_s)); // final sigma and sigma share a capital
    EXPECT_FALSE(QueryExists(cn, u"πελατες"_s));   // accents count
    EXPECT_TRUE(QueryExists(cn, u"PADDED"_s));
}

TEST_F(QueryExistsTest, AMatchStandsWhateverFollowsIt) {
    run(u"create table a (x)"_s);
    run(u"create table b (x)"_s);
    run(u"create table c (x)"_s);
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        EXPECT_TRUE(QueryExists(cn, name));
}

TEST_F(QueryExistsTest, AnEmptyNameOrDatabaseHasNoMatch) {
    EXPECT_FALSE(QueryExists(cn, u"a"_s));
    run(u"create table a (x)"_s);
    EXPECT_FALSE(QueryExists(cn, u""_s));
    EXPECT_FALSE(QueryExists(cn, u"  "_s));
}

TEST_F(QueryExistsTest, WithoutAnOpenConnectionItIsAnError) {
    cn->Close();
    EXPECT_EQ(test::errorNumber([&] { QueryExists(cn, u"a"_s); }), 3709u);
    EXPECT_EQ(test::errorNumber([&] { QueryExists(nullptr, u"a"_s); }), 91u);
}
