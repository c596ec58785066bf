#include "bag/property_bag_text.h"

#include "bag/property_bag_corpus.h"
#include "error_of.h"
#include "print_qt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace zkp {

namespace {

using namespace Qt::StringLiterals;
using test::errorNumber;
using test::everyType;

/// The lines between the first and the last.
QStringList linesOf(const PropertyBag& bag) {
    QStringList lines = QString::fromUtf8(bagText(bag)).split(u'\n');
    EXPECT_EQ(lines.takeFirst(), u"zkpgrid template 1"_s);
    EXPECT_EQ(lines.takeLast(), QString());
    EXPECT_EQ(lines.takeLast(), u"end"_s);
    return lines;
}

PropertyBag bagOf(const QString& lines) {
    return bagFromText((u"zkpgrid template 1\n"_s + lines + u"end\n"_s).toUtf8());
}

QString failureOf(const QByteArray& text) {
    try {
        bagFromText(text);
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), kErrInvalidFormat);
        return error.description();
    }
    return {};
}

TEST(PropertyBagText, EachTypeHasItsOwnLine) {
    EXPECT_EQ(bagText(everyType()), test::corpusFile("good_every_type.txt"));
    EXPECT_EQ(bagText({}), QByteArray("zkpgrid template 1\nend\n"));
}

TEST(PropertyBagText, LinesAreSortedWithoutCaseAndNumbersByTheirSize) {
    PropertyBag bag;
    for (const char* key :
         {"ColWidth10", "colwidth2", "ColWidth1", "Cols", "ColCaption0", "B01", "b1", "BackColor"})
        bag.WriteProperty(QString::fromLatin1(key), true);
    EXPECT_EQ(linesOf(bag),
              (QStringList{u"B01 boolean True"_s, u"b1 boolean True"_s, u"BackColor boolean True"_s,
                           u"ColCaption0 boolean True"_s, u"Cols boolean True"_s, u"ColWidth1 boolean True"_s,
                           u"colwidth2 boolean True"_s, u"ColWidth10 boolean True"_s}));
}

TEST(PropertyBagText, WhatDoesNotShowIsWrittenAsAnEscape) {
    PropertyBag bag;
    bag.WriteProperty(u"A"_s,
                      u"\"\\\n\r\t"_s + QChar(1) + QChar(0x85) + QChar(0x2028) + QChar(0xFEFF) + u" "_s);
    bag.WriteProperty(u"B"_s, QString(QChar(0xDC00)) + QChar(0xD800) + u"😀"_s);
    bag.WriteProperty(u"δύο λέξεις"_s, u""_s);
    EXPECT_EQ(linesOf(bag), (QStringList{uR"(A text "\"\\\n\r\t\u0001\u0085\u2028\ufeff ")"_s,
                                         uR"(B text "\udc00\ud800😀")"_s, uR"("δύο λέξεις" text "")"_s}));
}

TEST(PropertyBagText, NumbersAreTheShortestThatReadBackTheSame) {
    PropertyBag bag;
    bag.WriteProperty(u"A"_s, 0.1);
    bag.WriteProperty(u"B"_s, 0.1f);
    bag.WriteProperty(u"C"_s, 1e300);
    bag.WriteProperty(u"D"_s, std::numeric_limits<double>::infinity());
    bag.WriteProperty(u"E"_s, -std::numeric_limits<double>::quiet_NaN());
    bag.WriteProperty(u"F"_s, -0.0);
    EXPECT_EQ(linesOf(bag), (QStringList{u"A double 0.1"_s, u"B single 0.1"_s, u"C double 1e+300"_s,
                                         u"D double inf"_s, u"E double nan"_s, u"F double -0"_s}));
}

TEST(PropertyBagText, TheWayThroughTheTextGivesTheSameBytes) {
    int seen = 0;
    for (const test::CorpusFile& file : test::corpus(u"bag"_s)) {
        if (!file.isGood)
            continue;
        ++seen;
        PropertyBag bag;
        bag.setContents(file.bytes);
        EXPECT_EQ(bagFromText(bagText(bag)).Contents(), bag.Contents()) << qPrintable(file.name);
    }
    EXPECT_EQ(seen, 4);
    PropertyBag bag;
    bag.WriteProperty(u"smallest"_s, std::numeric_limits<double>::denorm_min());
    bag.WriteProperty(u"largest"_s, std::numeric_limits<float>::max());
    bag.WriteProperty(u"nan"_s, std::numeric_limits<float>::quiet_NaN());
    bag.WriteProperty(u"zero"_s, -0.0f);
    bag.WriteProperty(u"end"_s, QString(QChar(0)) + QChar(0xFFFF));
    bag.WriteProperty(u"font"_s, BagFont{u"\"x\""_s, 1.0 / 3, true, true, true, true});
    bag.WriteProperty(u"a \"key\"\n"_s, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(bagFromText(bagText(bag)).Contents(), bag.Contents());
}

TEST(PropertyBagText, AnEditedTextMayBeInAnyOrderWithEmptyLinesAndCarriageReturns) {
    const PropertyBag bag = bagFromText(test::corpusFile("good_other_order.txt"));
    EXPECT_EQ(bag.entries().size(), 4u);
    EXPECT_EQ(bag.ReadProperty(u"b", 0), BagValue(-1e300));
    EXPECT_EQ(bag.ReadProperty(u"b1", 0), BagValue(u"α"_s + QChar(0xD800) + u"\"\\\n\r\t"_s));
    EXPECT_EQ(bag.ReadProperty(u"A B", 0), BagValue(false));
    EXPECT_EQ(bag.ReadProperty(u"f", 0), BagValue(BagFont{u""_s, 0, false, true, false, true}));
}

TEST(PropertyBagText, TheCorpusIsReadOrRefusedAsItsNamesSay) {
    const auto files = test::corpus(u"txt"_s);
    EXPECT_GE(files.size(), 25u);
    for (const test::CorpusFile& file : files)
        EXPECT_EQ(failureOf(file.bytes).isEmpty(), file.isGood) << qPrintable(file.name);
}

TEST(PropertyBagText, CutShortAtAnyByteItIsRefused) {
    const QByteArray whole = bagText(everyType());
    for (qsizetype size = 0; size < whole.size() - 1; ++size)
        EXPECT_FALSE(failureOf(whole.first(size)).isEmpty()) << size;
}

TEST(PropertyBagText, AFailureTellsTheLine) {
    EXPECT_EQ(failureOf("zkpgrid template 1\nA boolean True\nB int16 40000\nend\n"),
              u"The template's text can't be read, line 3: a number is out of its type's range"_s);
}

TEST(PropertyBagText, EveryTypeRefusesWhatIsNotItsOwn) {
    EXPECT_EQ(bagOf(u"A int32 -5\n"_s).ReadProperty(u"A", 0), BagValue(-5));
    for (const QString& line : {u"A boolean -1"_s,
                                u"A int16 1.5"_s,
                                u"A int16 -32769"_s,
                                u"A int32 2147483648"_s,
                                u"A int32 +1"_s,
                                u"A int32 ٣"_s,
                                u"A single 1e39"_s,
                                u"A single x"_s,
                                u"A double 1e400"_s,
                                u"A double "_s,
                                u"A text x"_s,
                                u"A text \"x\"y"_s,
                                u"A text \"\\u0x1F\""_s,
                                u"A text \"\\U0041\""_s,
                                u"A colour 5"_s,
                                u"A colour 0x"_s,
                                u"A colour 0x-1"_s,
                                u"A font Arial 8"_s,
                                u"A font \"Arial\""_s,
                                u"A font \"Arial\" x"_s,
                                u"A font \"Arial\" 8  bold"_s,
                                u"A"_s,
                                u" A int16 1"_s,
                                u"A  int16 1"_s,
                                u"Ά int16 1"_s,
                                u"end text"_s})
        EXPECT_EQ(errorNumber([&] { bagOf(line + u"\n"_s); }), kErrInvalidFormat) << qPrintable(line);
}

} // namespace

} // namespace zkp
