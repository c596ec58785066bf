#include "base/value.h"
#include "load/empty_recordset.h"
#include "platform/error_box.h"

#include "base/currency.h"
#include "platform/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(ShowError, ShowsTheDescriptionTrimmedAndInCapitals) {
    ScriptedHost host;
    host.setPointer(kPointerHourglass);
    ShowError(host, Error(kErrDatabase, u"  η βάση είναι κλειδωμένη "_s));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, u"Παρουσιάστικε Εξαίρεση : \r\rΗ ΒΆΣΗ ΕΊΝΑΙ ΚΛΕΙΔΩΜΈΝΗ\r\r"_s);
    EXPECT_EQ(host.messages[0].style, 16);
    EXPECT_EQ(host.messages[0].title, u"QRN Insurance"_s);
    EXPECT_EQ(host.pointer(), 0);
}

TEST(ShowError, ABadStatementHasAFixedTextAndTheExclamation) {
    ScriptedHost host;
    ShowError(host, Error(0x80040E14, u"near \"from\": syntax error"_s));
    ASSERT_EQ(host.messages.size(), 1u);
    // Its first letter is a Latin H; the text is not put in capitals.
    EXPECT_EQ(
        host.messages[0].text,
        u"Παρουσιάστικε Εξαίρεση : \r\rH στήλη που επιλέξατε υπάρχει ήδη στη λίστα ή δεν είναι εγκυρη.\r\r"_s);
    EXPECT_EQ(host.messages[0].text.at(27), QChar(u'H'));
    EXPECT_EQ(host.messages[0].style, 48);
    EXPECT_EQ(host.messages[0].title, u"QRN Insurance"_s);
}

TEST(NullTo, ReplacesNullOnly) {
    EXPECT_EQ(NullTo(QVariant(), 5), QVariant(5));
    EXPECT_EQ(NullTo(u""_s, u"x"_s), QVariant(u""_s));
    EXPECT_EQ(NullTo(0, 5), QVariant(0));
}

TEST(ToDouble, GivesTheNumberOrTheSixteenBitZero) {
    const ReportLocale greek(QLocale(u"el_GR"_s));
    EXPECT_EQ(ToDouble(u"1.234,5"_s, greek), QVariant(1234.5));
    EXPECT_EQ(ToDouble(7LL, greek), QVariant(7.0));
    EXPECT_EQ(ToDouble(QVariant::fromValue(Currency{25'000}), greek), QVariant(2.5));
    for (const QVariant& value : {QVariant(u"αβγ"_s), QVariant(), QVariant(u""_s)}) {
        EXPECT_EQ(ToDouble(value, greek).typeId(), QMetaType::Short);
        EXPECT_EQ(ToDouble(value, greek).toInt(), 0);
    }
}

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
