#include "ado/odbc/amount_text.h"
#include "ado/odbc/connection_text.h"
#include "ado/odbc/read_only.h"
#include "ado/odbc/wide_text.h"

#include "ado/ado_fixture.h"

namespace zkp::ado::test {

using namespace zkp::ado::odbc;

TEST(ConnectionText, TheDialectIsTakenOut) {
    const ConnectionText text =
        readConnectionText(u("Driver={A;Dialect=B};dialect = MariaDB ;PWD={x}};y};UID=z"));
    EXPECT_EQ(text.forDriver, u("Driver={A;Dialect=B};PWD={x}};y};UID=z"));
    EXPECT_EQ(text.dialect, Dialect::MariaDb);
    EXPECT_FALSE(readConnectionText(u("DSN=Office")).dialect);
    EXPECT_EQ(errorNumber([] { readConnectionText(u("DSN=a;Dialect=Other")); }), kErrDatabase);
}

TEST(ConnectionText, TheDialectIsKnownByTheServersName) {
    EXPECT_EQ(dialectOfServer(u("PostgreSQL")), Dialect::PostgreSql);
    EXPECT_EQ(dialectOfServer(u("MariaDB")), Dialect::MariaDb);
    EXPECT_EQ(dialectOfServer(u("MySQL")), Dialect::MariaDb);
    EXPECT_EQ(dialectOfServer(u("Microsoft SQL Server")), Dialect::SqlServer);
}

TEST(AmountText, DigitsBecomeAnExactAmount) {
    EXPECT_EQ(amountFromText("-12.5")->scaled, -125'000);
    EXPECT_EQ(amountFromText(".12345")->scaled, 1'235) << "half away from zero";
    EXPECT_EQ(amountFromText("-0.000049")->scaled, 0);
    EXPECT_EQ(amountFromText("922337203685477.5807")->scaled, 9'223'372'036'854'775'807);
    EXPECT_FALSE(amountFromText("922337203685477.5808"));
    EXPECT_FALSE(amountFromText("NaN"));
    EXPECT_FALSE(amountFromText("-"));
    EXPECT_EQ(wholeFromText("-42"), -42);
    EXPECT_FALSE(wholeFromText("4.2"));
}

TEST(WideText, Utf16BecomesUtf8) {
    std::string utf8;
    toUtf8(u"aΩ€😀", utf8);
    EXPECT_EQ(utf8, "aΩ€😀");
    const char16_t half[] = {u'a', 0xD83D, u'b'};
    toUtf8({half, 3}, utf8);
    EXPECT_EQ(utf8, "a\xEF\xBF\xBD"
                    "b");
}

TEST(ReadOnlyServer, OnlyTemplatesAndSettingsAreWritten) {
    for (const char* allowed : {"SELECT * FROM T", " exec P 'x'", "INSERT INTO frms (lstCode) VALUES (1)",
                                "update dbo.QRN_Main set GenValue='insert'", "delete from [FRMS2] where 1=1",
                                "with a as (select 1 x) select * from a", "SELECT 'drop' AS [update] FROM T"})
        EXPECT_NE(readingOf(u(allowed)), Reading::Refused) << allowed;
    for (const char* refused :
         {"INSERT INTO T VALUES (1)", "UPDATE T SET A=1", "delete T", "DROP TABLE frms",
          "SELECT * INTO X FROM T", "with a as (delete from T returning *) select * from a",
          "TRUNCATE TABLE frms", "create table X (a int)"})
        EXPECT_EQ(readingOf(u(refused)), Reading::Refused) << refused;
}

class OdbcFailureTest : public testing::Test {};

TEST_F(OdbcFailureTest, AnUnknownDriverIsToldInTheManagersWords) {
    const auto cn = std::make_shared<Connection>();
    const QString text = u("Driver={No Such Driver};Server=nowhere");
    EXPECT_EQ(errorNumber([&] { cn->Open(text); }), kErrDatabase);
    EXPECT_TRUE(errorText([&] { cn->Open(text); }).contains(u("No Such Driver")) ||
                errorText([&] { cn->Open(text); }).contains(u("not found")));
    EXPECT_EQ(cn->State(), adStateClosed);
    cn->Open(u("sqlite:"));
    EXPECT_EQ(cn->State(), adStateOpen);
}

} // namespace zkp::ado::test
