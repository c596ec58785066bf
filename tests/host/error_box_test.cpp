#include "host/error_box.h"

#include "host/scripted_host.h"
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
