#include "base/date_text.h"

#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const ReportLocale& greek() {
    static const ReportLocale locale(QLocale(u"el_GR"_s));
    return locale;
}

/// yyyy-MM-dd, or "no" for what is no date.
QString iso(const QString& text, const ReportLocale& locale = greek()) {
    const auto date = toDate(text, locale);
    return date ? date->toString(Qt::ISODate) : u"no"_s;
}

QString thisYear(const char* rest) {
    return QString::number(QDate::currentDate().year()) + QString::fromLatin1(rest);
}

} // namespace

TEST(ToDate, StandsInTheLocalesOrder) {
    EXPECT_EQ(iso(u"5/3/2026"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"5/3/2026"_s, ReportLocale(QLocale(u"en_US"_s))), u"2026-05-03"_s);
    EXPECT_EQ(iso(u"05-03-2026"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"5.3.2026"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u" 5 3 2026 "_s), u"2026-03-05"_s);
}

TEST(ToDate, AFourDigitYearMayStandFirst) {
    EXPECT_EQ(iso(u"2026-03-05"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"2026/3/5"_s, ReportLocale(QLocale(u"en_US"_s))), u"2026-03-05"_s);
}

TEST(ToDate, DayAndMonthChangePlacesWhereOnlyThatIsADate) {
    EXPECT_EQ(iso(u"3/25/2026"_s), u"2026-03-25"_s);
    EXPECT_EQ(iso(u"25/3/2026"_s, ReportLocale(QLocale(u"en_US"_s))), u"2026-03-25"_s);
    EXPECT_EQ(iso(u"30/2/2026"_s), u"no"_s);
    EXPECT_EQ(iso(u"13/13/2026"_s), u"no"_s);
}

TEST(ToDate, TwoDigitYearsAre1930To2029) {
    EXPECT_EQ(iso(u"1/1/29"_s), u"2029-01-01"_s);
    EXPECT_EQ(iso(u"1/1/30"_s), u"1930-01-01"_s);
    EXPECT_EQ(iso(u"1/1/0"_s), u"2000-01-01"_s);
    EXPECT_EQ(iso(u"29/2/24"_s), u"2024-02-29"_s);
    EXPECT_EQ(iso(u"29/2/23"_s), u"no"_s);
}

TEST(ToDate, TheYearOrTheDayMayBeLeftOut) {
    EXPECT_EQ(iso(u"5/3"_s), thisYear("-03-05"));
    EXPECT_EQ(iso(u"3/25"_s), thisYear("-03-25"));
    EXPECT_EQ(iso(u"3/2026"_s), u"2026-03-01"_s);
    EXPECT_EQ(iso(u"2026/3"_s), u"2026-03-01"_s);
    EXPECT_EQ(iso(u"13/2026"_s), u"no"_s);
}

TEST(ToDate, TheMonthMayBeAName) {
    EXPECT_EQ(iso(u"5 Μαρτίου 2026"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"5 μαρτίου 26"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"March 5 2026"_s, ReportLocale(QLocale(u"en_US"_s))), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"5-Mar-2026"_s, ReportLocale(QLocale(u"en_US"_s))), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"Μαρτίου 2026"_s), u"2026-03-01"_s);
    EXPECT_EQ(iso(u"5 Μαρτίου"_s), thisYear("-03-05"));
    EXPECT_EQ(iso(u"Μαρτίου"_s), u"no"_s);
    EXPECT_EQ(iso(u"5 Μαρτίου Μαρτίου"_s), u"no"_s);
    EXPECT_EQ(iso(u"31 Απριλίου 2026"_s), u"no"_s);
}

TEST(ToDate, ATimeMayFollowOrStandAlone) {
    EXPECT_EQ(iso(u"5/3/2026 9:05"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"5/3/2026 23:59:59"_s), u"2026-03-05"_s);
    EXPECT_EQ(iso(u"12:30"_s), u"1899-12-30"_s);
    EXPECT_EQ(iso(u"5/3/2026 24:01"_s), u"no"_s);
    EXPECT_EQ(iso(u"5/3/2026 9:05 9:06"_s), u"no"_s);
}

TEST(ToDate, OtherTextsAreNoDates) {
    for (const QString& text :
         {u""_s, u" "_s, u"5"_s, u"2026"_s, u"αβγ"_s, u"5/3/"_s, u"5//3/2026"_s, u"5/3/2026/1"_s,
          u"0/3/2026"_s, u"5/3/20265"_s, u"-5/3/2026"_s, u"5/3/2026x"_s, u"1/2026/2027"_s})
        EXPECT_EQ(iso(text), u"no"_s) << text.toStdString();
}

TEST(ShortDate, HasAFourDigitYearAndNoTime) {
    EXPECT_EQ(shortDate(QDate(2026, 11, 20), greek()), u"20/11/2026"_s);
    EXPECT_EQ(shortDate(QDate(1930, 1, 5), greek()), u"5/1/1930"_s);
    EXPECT_EQ(shortDate(QDate(2026, 11, 20), ReportLocale(QLocale(u"en_US"_s))), u"11/20/2026"_s);
}
