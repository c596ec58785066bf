#include "template/template_name.h"

#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

TemplatePlace frms(std::int16_t number, const QString& name) {
    return {number, name};
}
TemplatePlace frms2(const QString& name) {
    return {std::nullopt, name};
}

std::uint32_t failure(TemplatePlace (*place)(const QString&), const QString& name) {
    return errorNumber([&] { place(name); });
}

} // namespace

TEST(LeadingNumber, StopsAtTheFirstCharacterThatCannotContinueIt) {
    EXPECT_EQ(leadingNumber(u"12.Zkp"), 12);
    EXPECT_EQ(leadingNumber(u"  12"), 12);
    EXPECT_EQ(leadingNumber(u"1 2"), 1) << "a blank inside ends it";
    EXPECT_EQ(leadingNumber(u"1.5.5"), 1.5);
    EXPECT_EQ(leadingNumber(u"1,5"), 1);
    EXPECT_EQ(leadingNumber(u"1e3"), 1) << "there is no exponent";
    EXPECT_EQ(leadingNumber(u"-3"), -3);
    EXPECT_EQ(leadingNumber(u"+3"), 3);
    EXPECT_EQ(leadingNumber(u"--3"), 0) << "one sign";
    EXPECT_EQ(leadingNumber(u"- 3"), 0);
    EXPECT_EQ(leadingNumber(u".5"), 0.5);
    EXPECT_EQ(leadingNumber(u"5."), 5);
}

TEST(LeadingNumber, IsNoughtWithoutDigits) {
    for (const char16_t* text : {u"", u" ", u"-", u".", u"abc", u"\t5", u"٣"})
        EXPECT_EQ(leadingNumber(text), 0);
}

TEST(StrictInt16, TakesACleanNumberAndNothingElse) {
    EXPECT_EQ(strictInt16(u" 7 "), 7);
    EXPECT_EQ(strictInt16(u"+7"), 7);
    EXPECT_EQ(strictInt16(u"-7"), -7);
    EXPECT_EQ(strictInt16(u"1.5"), 2);
    EXPECT_EQ(strictInt16(u"2.5"), 2) << "half to even";
    EXPECT_EQ(strictInt16(u"32767.4"), 32767);
    for (const char16_t* text : {u"", u" ", u"7a", u"7 7", u"1,5", u"1e2", u"1.2.3", u"-", u".", u"7\t"})
        EXPECT_EQ(errorNumber([&] { strictInt16(text); }), kErrTypeMismatch);
    for (const char16_t* text : {u"32768", u"32767.5", u"-32769", u"99999999999999999999"})
        EXPECT_EQ(errorNumber([&] { strictInt16(text); }), kErrOverflow);
}

TEST(PlaceToOpen, NumbersFromTheFifthCharacterOnAreRowsOfFrms) {
    EXPECT_EQ(placeToOpen(u"ABCD12"_s), frms(12, u"ABCD12"_s));
    EXPECT_EQ(placeToOpen(u"ABCD12.Zkp"_s), frms(12, u"ABCD12.Zkp"_s));
    EXPECT_EQ(placeToOpen(u"ΑΒΓΔ7"_s), frms(7, u"ΑΒΓΔ7"_s)) << "characters are counted, not bytes";
    EXPECT_EQ(placeToOpen(u"ABCD 7"_s), frms(7, u"ABCD 7"_s));
    EXPECT_EQ(placeToOpen(u"ABCD32767"_s), frms(32767, u"ABCD32767"_s));
}

TEST(PlaceToOpen, EveryOtherNameIsARowOfFrms2) {
    for (const QString& name :
         {u""_s, u"ABCD"_s, u"1234"_s, u"Μηνιαίο"_s, u"ABCD0"_s, u"ABCD-5"_s, u"#NONE#"_s})
        EXPECT_EQ(placeToOpen(name), frms2(name));
}

TEST(PlaceToOpen, FractionsAreRoundedHalfToEvenFirst) {
    EXPECT_EQ(placeToOpen(u"ABCD0.4"_s), frms2(u"ABCD0.4"_s));
    EXPECT_EQ(placeToOpen(u"ABCD0.5"_s), frms2(u"ABCD0.5"_s));
    EXPECT_EQ(placeToOpen(u"ABCD0.6"_s), frms(1, u"ABCD0.6"_s));
    EXPECT_EQ(placeToOpen(u"ABCD1.5"_s), frms(2, u"ABCD1.5"_s));
}

TEST(PlaceToOpen, ANumberBeyondSixteenBitsIsAnError) {
    EXPECT_EQ(failure(placeToOpen, u"ABCD40000"_s), kErrOverflow);
    EXPECT_EQ(failure(placeToOpen, u"ABCD-40000"_s), kErrOverflow);
    EXPECT_EQ(failure(placeToOpen, u"ABCD"_s + QString(400, u'9')), kErrOverflow);
}

TEST(PlaceToSave, ComparesTheUnroundedNumberWithNought) {
    EXPECT_EQ(placeToSave(u"ABCD12"_s), frms(12, u"ABCD12"_s));
    EXPECT_EQ(placeToSave(u"ABCD0.4"_s), frms(0, u"ABCD0.4"_s));
    EXPECT_EQ(placeToSave(u"ABCD0.5"_s), frms(0, u"ABCD0.5"_s));
    EXPECT_EQ(placeToSave(u"ABCD0"_s), frms2(u"ABCD0"_s));
    EXPECT_EQ(placeToSave(u"ABCD-5"_s), frms2(u"ABCD-5"_s));
    EXPECT_EQ(placeToSave(u"ABC"_s), frms2(u"ABC"_s));
}

TEST(PlaceToSave, WantsTheNumberToStandAlone) {
    EXPECT_EQ(failure(placeToSave, u"ABCD12.Zkp"_s), kErrTypeMismatch);
    EXPECT_EQ(failure(placeToSave, u"ABCD12 x"_s), kErrTypeMismatch);
    EXPECT_EQ(failure(placeToSave, u"ABCD40000"_s), kErrOverflow);
    EXPECT_EQ(placeToSave(u"ABCDx12"_s), frms2(u"ABCDx12"_s)) << "no number in front";
}
