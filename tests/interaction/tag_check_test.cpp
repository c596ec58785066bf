#include "interaction/tag_check.h"

#include "host/scripted_host.h"
#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class TagCheck : public testing::Test {
protected:
    /// Whether the input is accepted; `box` then holds the text.
    bool check(const QString& tag, const QString& text, int maxLength = 0) {
        box = {};
        box.Tag = tag;
        box.Text = text;
        box.MaxLength = maxLength;
        return CheckByTag(box, greek, host);
    }

    ReportLocale greek{QLocale(u"el_GR"_s)};
    ScriptedHost host;
    TextBoxModel box;
};

} // namespace

TEST_F(TagCheck, ATagWithoutAMarkerPasses) {
    for (const QString& tag : {u""_s, u"   "_s, u"customer"_s, u"NUM"_s, u"[ NUM ]"_s}) {
        EXPECT_TRUE(check(tag, u" αβγ "_s));
        EXPECT_EQ(box.Text, u" αβγ "_s);
    }
    EXPECT_EQ(host.beeps, 0);
}

TEST_F(TagCheck, PadlPadsWithBlanksUpToTheMaxLength) {
    EXPECT_TRUE(check(u"[PADL]"_s, u" 12 "_s, 5));
    EXPECT_EQ(box.Text, u"   12"_s);
    EXPECT_TRUE(check(u"[PADL]"_s, u""_s, 3));
    EXPECT_EQ(box.Text, u"   "_s);
    EXPECT_EQ(test::errorNumber([&] { check(u"[PADL]"_s, u"123456"_s, 5); }), 5u);
}

TEST_F(TagCheck, AMarkerMayStandAnywhereAndInAnyCase) {
    EXPECT_TRUE(check(u"code [PadL] of branch"_s, u"7"_s, 2));
    EXPECT_EQ(box.Text, u" 7"_s);
    EXPECT_FALSE(check(u"  x[num]y "_s, u"αβγ"_s));
}

TEST_F(TagCheck, ADateBecomesTheShortDate) {
    EXPECT_TRUE(check(u"[DATE]"_s, u" 5-3-26 "_s));
    EXPECT_EQ(box.Text, u"5/3/2026"_s);
    EXPECT_TRUE(check(u"[DATE]"_s, u"20/11/2026 14:30"_s)); // the time goes
    EXPECT_EQ(box.Text, u"20/11/2026"_s);
    EXPECT_EQ(host.beeps, 0);
}

TEST_F(TagCheck, WhatIsNoDateBeepsAndStays) {
    EXPECT_FALSE(check(u"[DATE]"_s, u" 30/2/2026 "_s));
    EXPECT_EQ(box.Text, u" 30/2/2026 "_s);
    EXPECT_EQ(host.beeps, 1);
    EXPECT_FALSE(check(u"[DATE][NUM]"_s, u"12"_s)); // a number, but the date decides
    EXPECT_EQ(host.beeps, 2);
}

TEST_F(TagCheck, ABlankDateGoesOnToTheNextMarker) {
    EXPECT_TRUE(check(u"[DATE]"_s, u"  "_s));
    EXPECT_EQ(box.Text, u"  "_s);
    EXPECT_TRUE(check(u"[DATE][NUM]"_s, u"  "_s));
    EXPECT_EQ(box.Text, u"0"_s);
}

TEST_F(TagCheck, NumTurnsBlankIntoZero) {
    EXPECT_TRUE(check(u"[NUM]"_s, u" "_s));
    EXPECT_EQ(box.Text, u"0"_s);
    EXPECT_TRUE(check(u"[NUM]"_s, u""_s));
    EXPECT_EQ(box.Text, u"0"_s);
}

TEST_F(TagCheck, NumTakesNumbersAsTheyAreAndRefusesTheRest) {
    EXPECT_TRUE(check(u"[NUM]"_s, u" -1.234,5"_s));
    EXPECT_EQ(box.Text, u" -1.234,5"_s);
    EXPECT_EQ(host.beeps, 0);
    EXPECT_FALSE(check(u"[NUM]"_s, u"12α"_s));
    EXPECT_EQ(box.Text, u"12α"_s);
    EXPECT_EQ(host.beeps, 1);
}

TEST_F(TagCheck, PadlComesFirstAndEndsTheCheck) {
    EXPECT_TRUE(check(u"[NUM][DATE][PADL]"_s, u"αβ"_s, 4));
    EXPECT_EQ(box.Text, u"  αβ"_s);
    EXPECT_EQ(host.beeps, 0);
}
