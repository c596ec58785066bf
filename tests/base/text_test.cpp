#include "base/text.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(Trimmed, TakesBlanksOnly) {
    EXPECT_EQ(trimmed(u"  a b  ").toString(), u"a b"_s);
    EXPECT_EQ(trimmed(u"\t a\n").toString(), u"\t a\n"_s);
    EXPECT_EQ(trimmed(u"   ").toString(), u""_s);
    EXPECT_EQ(trimmed(u"").toString(), u""_s);
}

TEST(Upper, MapsEachCharacterToOne) {
    EXPECT_EQ(upper(u"Βόλος"), u"ΒΌΛΟΣ"_s);
    EXPECT_EQ(upper(u"ασφάλιση ζωής"), u"ΑΣΦΆΛΙΣΗ ΖΩΉΣ"_s);
    // A capital of ΐ would take three units; it stays.
    EXPECT_EQ(upper(u"Καΐρης"), u"ΚΑΐΡΗΣ"_s);
    EXPECT_EQ(upper(u"straße"), u"STRAßE"_s);
    EXPECT_EQ(upper(u"premium_1"), u"PREMIUM_1"_s);
}

TEST(SameName, TrimsAndIgnoresCaseButNotAccents) {
    EXPECT_TRUE(sameName(u" Premium ", u"PREMIUM"));
    EXPECT_TRUE(sameName(u"οδός", u"ΟΔΌΣ"));
    EXPECT_FALSE(sameName(u"οδος", u"ΟΔΌΣ"));
    EXPECT_FALSE(sameName(u"Premium\t", u"PREMIUM"));
}

TEST(Mid, CountsFromOne) {
    EXPECT_EQ(mid(u"POS_PREMIUM", 5), u"PREMIUM"_s);
    EXPECT_EQ(mid(u"POS_", 5), u""_s);
    EXPECT_EQ(mid(u"AB", 5), u""_s);
}
