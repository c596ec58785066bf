#include "surface/cell_text.h"

#include "base/number.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using namespace zkp::test;

namespace {

const ReportLocale& greek() {
    static const ReportLocale locale{QLocale(QLocale::Greek, QLocale::Greece)};
    return locale;
}

QString shown(SampleValue value, CellFormat format) {
    return boundText({sampleColumn({std::move(value)}), format}, 0, greek());
}

std::int64_t whole(std::int64_t value) {
    return value;
}

} // namespace

TEST(CellText, TheOwnTextOfEachKind) {
    EXPECT_EQ(shown({}, CellFormat::OwnText), QString());
    EXPECT_EQ(shown(true, CellFormat::OwnText), u("True"));
    EXPECT_EQ(shown(false, CellFormat::OwnText), u("False"));
    EXPECT_EQ(shown(whole(-1234567), CellFormat::OwnText), u("-1234567"));
    EXPECT_EQ(shown(Currency{12'345'000}, CellFormat::OwnText), u("1234,5"));
    EXPECT_EQ(shown(0.25, CellFormat::OwnText), u("0,25"));
    EXPECT_EQ(shown(std::string("Αθήνα"), CellFormat::OwnText), u("Αθήνα"));
    EXPECT_EQ(shown(Bytes{"abc"}, CellFormat::OwnText), u("abc"));
}

TEST(CellText, ADateIsShortWithAFourDigitYearAndItsTimeWhenNotMidnight) {
    constexpr std::int64_t kDay = 86'400'000;
    // 20 November 2026 is day 20777 after 1 January 1970.
    EXPECT_EQ(shown(Moment{20'777 * kDay}, CellFormat::OwnText), u("20/11/2026"));
    EXPECT_EQ(shown(Moment{20'777 * kDay + 9 * 3'600'000 + 5'000}, CellFormat::OwnText),
              u("20/11/2026 9:00:05"));
}

TEST(CellText, AmountsInTheGroupedFormats) {
    EXPECT_EQ(shown(Currency{12'345'678'950}, CellFormat::Grouped2), u("1.234.567,90"));
    EXPECT_EQ(shown(Currency{12'345'678'950}, CellFormat::Grouped0), u("1.234.568"));
    EXPECT_EQ(shown(Currency{-50}, CellFormat::Grouped2), u("-0,01"));
    EXPECT_EQ(shown(Currency{-49}, CellFormat::Grouped2), u("0,00"));
}

TEST(CellText, NumbersInTheGroupedFormats) {
    EXPECT_EQ(shown(whole(1234567), CellFormat::Grouped2), u("1.234.567,00"));
    EXPECT_EQ(shown(1.005, CellFormat::Grouped2), u("1,01"));
    EXPECT_EQ(shown(2.5, CellFormat::Grouped0), u("3"));
}

TEST(CellText, ANullCountsAsZeroInTheGroupedFormats) {
    EXPECT_EQ(shown({}, CellFormat::Grouped2), u("0,00"));
    EXPECT_EQ(shown({}, CellFormat::Grouped0), u("0"));
}

TEST(CellText, ATrueValueCountsAsMinusOne) {
    EXPECT_EQ(shown(true, CellFormat::Grouped0), u("-1"));
    EXPECT_EQ(shown(false, CellFormat::Grouped2), u("0,00"));
}

TEST(CellText, ATextInAGroupedFormatIsANumberOrItself) {
    EXPECT_EQ(shown(std::string("1234,5"), CellFormat::Grouped2), u("1.234,50"));
    EXPECT_EQ(shown(std::string("όχι"), CellFormat::Grouped2), u("όχι"));
}

TEST(CellText, ADateInAGroupedFormatCountsItsDays) {
    // 1 January 1900 is day 2: 25567 days before 1970.
    EXPECT_EQ(shown(Moment{-25'567 * std::int64_t{86'400'000}}, CellFormat::Grouped2), u("2,00"));
}

TEST(CellText, BytesThatAreNotUtf8ShowReplacementCharacters) {
    EXPECT_EQ(shown(std::string("a\xFFz"), CellFormat::OwnText), u("a\uFFFDz"));
    EXPECT_EQ(shown(std::string("\xCE\xFF"), CellFormat::Grouped2), u("\uFFFD\uFFFD"));
}

TEST(CellText, BlankMissingAndOutsideShowNothing) {
    EXPECT_EQ(shown(whole(5), CellFormat::Blank), QString());
    EXPECT_EQ(boundText({}, 0, greek()), QString());
    EXPECT_EQ(boundText({sampleColumn({whole(1)}), CellFormat::OwnText}, 1, greek()), QString());
}

TEST(CellText, ANumberToldWithoutItsTextIsTheNumberOfTheText) {
    const std::vector<std::int64_t> amounts{
        0, 1, 49, 50, -49, -50, 5'000, 4'999, -5'000, 15'000, 12'345'678'950, -99'999'999};
    for (const CellFormat format : {CellFormat::OwnText, CellFormat::Grouped2, CellFormat::Grouped0})
        for (const std::int64_t scaled : amounts)
            for (const SampleValue& value : {SampleValue(Currency{scaled}), SampleValue(scaled)}) {
                const CellBinding binding{sampleColumn({value}), format};
                EXPECT_EQ(boundNumber(binding, 0), toNumber(boundText(binding, 0, greek()), greek()))
                    << scaled;
            }
    EXPECT_FALSE(boundNumber({sampleColumn({std::string("5")}), CellFormat::OwnText}, 0));
    EXPECT_FALSE(boundNumber({sampleColumn({whole(5)}), CellFormat::Blank}, 0));
    EXPECT_FALSE(boundNumber({sampleColumn({whole(5)}), CellFormat::OwnText}, 1));
}
