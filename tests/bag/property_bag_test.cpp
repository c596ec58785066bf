#include "bag/property_bag.h"

#include "error_of.h"
#include "print_qt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zkp {

namespace {

using namespace Qt::StringLiterals;
using test::errorNumber;

const BagFont kArial{u"Arial"_s, 8, true, false, false, false};

std::vector<QString> keysOf(const PropertyBag& bag) {
    std::vector<QString> keys;
    for (const PropertyBag::Entry& entry : bag.entries())
        keys.push_back(entry.key);
    return keys;
}

TEST(PropertyBag, AValueComesBackInTheTypeItWasWrittenIn) {
    const BagValue values[] = {true, std::int16_t{7}, std::int32_t{7}, 7.0f, 7.0, u"7"_s, Color{7}, kArial};
    PropertyBag bag;
    int i = 0;
    for (const BagValue& value : values)
        bag.WriteProperty(u"key%1"_s.arg(i++), value);
    i = 0;
    for (const BagValue& value : values) {
        const BagValue read = bag.ReadProperty(u"key%1"_s.arg(i++), u"other"_s);
        EXPECT_EQ(read.index(), value.index());
        EXPECT_EQ(read, value);
    }
}

TEST(PropertyBag, AMissingKeyGivesTheDefault) {
    const PropertyBag bag;
    EXPECT_EQ(bag.ReadProperty(u"Cols", 2), BagValue(2));
    EXPECT_EQ(bag.read(u"Filter", u"true"_s), u"true"_s);
    EXPECT_EQ(bag.find(u"Cols"), nullptr);
}

TEST(PropertyBag, KeysAreFoundWithoutRegardToCase) {
    PropertyBag bag;
    bag.WriteProperty(u"Coltotals0"_s, true);
    bag.WriteProperty(u"Τίτλος"_s, 5);
    EXPECT_TRUE(bag.read(u"ColTotals0", false));
    EXPECT_EQ(bag.read(u"ΤΊΤΛΟΣ", 0), 5);
    EXPECT_EQ(bag.read(u"τίτλος", 0), 5);
}

TEST(PropertyBag, AKeyThatDiffersByMoreThanCaseIsAnotherOne) {
    PropertyBag bag;
    bag.WriteProperty(u"EuroVer"_s, false);
    EXPECT_TRUE(bag.read(u"mEuroVer", true));
    EXPECT_TRUE(bag.read(u" EuroVer", true));
    EXPECT_TRUE(bag.read(u"EuroVer ", true));
}

TEST(PropertyBag, KeysStandInTheOrderAndSpellingOfTheirFirstWrite) {
    PropertyBag bag;
    bag.WriteProperty(u"orderby"_s, u"a"_s);
    bag.WriteProperty(u"Cols"_s, 2);
    bag.WriteProperty(u"BackColor"_s, Color{1});
    bag.WriteProperty(u"OrderBy"_s, u"b"_s);
    EXPECT_EQ(keysOf(bag), (std::vector<QString>{u"orderby"_s, u"Cols"_s, u"BackColor"_s}));
    EXPECT_EQ(bag.read(u"orderby", QString()), u"b"_s);
}

TEST(PropertyBag, AValueEqualToItsDefaultIsNotStored) {
    PropertyBag bag;
    bag.WriteProperty(u"PrintFilter"_s, u" "_s, u" "_s);
    bag.WriteProperty(u"FileNo"_s, -1, -1);
    bag.WriteProperty(u"Font"_s, kArial, kArial);
    EXPECT_TRUE(bag.entries().empty());
    bag.WriteProperty(u"PrintFilter"_s, u""_s, u" "_s);
    bag.WriteProperty(u"Filter"_s, u"true"_s);
    EXPECT_EQ(keysOf(bag), (std::vector<QString>{u"PrintFilter"_s, u"Filter"_s}));
}

TEST(PropertyBag, AWriteOfTheDefaultTakesAnEarlierValueAway) {
    PropertyBag bag;
    for (const QString& key : {u"A"_s, u"B"_s, u"C"_s})
        bag.WriteProperty(key, key);
    bag.WriteProperty(u"b"_s, 0, 0);
    EXPECT_EQ(keysOf(bag), (std::vector<QString>{u"A"_s, u"C"_s}));
    EXPECT_EQ(bag.read(u"C", QString()), u"C"_s);
    bag.WriteProperty(u"C"_s, u"c"_s);
    bag.WriteProperty(u"B"_s, u"b"_s);
    EXPECT_EQ(keysOf(bag), (std::vector<QString>{u"A"_s, u"C"_s, u"B"_s}));
    EXPECT_EQ(bag.read(u"C", QString()), u"c"_s);
}

TEST(PropertyBag, DefaultsAreComparedByValueWhateverTheTypesOfTwoNumbers) {
    EXPECT_TRUE(sameValue(false, std::int16_t{0}));
    EXPECT_TRUE(sameValue(true, -1));
    EXPECT_FALSE(sameValue(true, 1));
    EXPECT_TRUE(sameValue(8.0f, 8));
    EXPECT_TRUE(sameValue(Color{0x80000005}, static_cast<std::int32_t>(0x80000005)));
    EXPECT_TRUE(sameValue(u"Α"_s, u"Α"_s));
    EXPECT_FALSE(sameValue(u"Α"_s, u"α"_s));
    EXPECT_FALSE(sameValue(u"1"_s, 1));
    EXPECT_FALSE(sameValue(u""_s, false));
    EXPECT_FALSE(sameValue(kArial, u"Arial"_s));
    BagFont struck = kArial;
    struck.strikethru = true;
    EXPECT_FALSE(sameValue(kArial, struck));
    const double nan = std::nan("");
    EXPECT_FALSE(sameValue(nan, nan));
}

TEST(PropertyBag, NumbersBecomeTheTypeThatTheReaderWants) {
    PropertyBag bag;
    bag.WriteProperty(u"True"_s, true);
    bag.WriteProperty(u"Half"_s, 2.5);
    bag.WriteProperty(u"Colour"_s, Color{0x80000005});
    bag.WriteProperty(u"Signed"_s, static_cast<std::int32_t>(0x80000005));
    EXPECT_EQ(bag.read(u"True", 0), -1);
    EXPECT_EQ(bag.read(u"True", 0.0), -1);
    EXPECT_EQ(bag.read(u"Half", std::int16_t{0}), 2);
    EXPECT_TRUE(bag.read(u"Half", false));
    EXPECT_EQ(bag.read(u"Half", 0.0f), 2.5f);
    EXPECT_EQ(bag.read(u"Colour", 0), static_cast<std::int32_t>(0x80000005));
    EXPECT_EQ(bag.read(u"Signed", Color{0}), 0x80000005u);
}

TEST(PropertyBag, ANumberThatIsTooLargeForTheReaderIsAnOverflow) {
    PropertyBag bag;
    bag.WriteProperty(u"Rows"_s, 40000);
    bag.WriteProperty(u"Large"_s, 1e300);
    bag.WriteProperty(u"NaN"_s, std::nan(""));
    EXPECT_EQ(errorNumber([&] { bag.read(u"Rows", std::int16_t{0}); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Large", 0); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Large", 0.0f); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Large", Color{0}); }), kErrOverflow);
    EXPECT_EQ(errorNumber([&] { bag.read(u"NaN", 0); }), kErrOverflow);
}

TEST(PropertyBag, AValueOfAnotherKindIsATypeMismatchThatNamesTheKey) {
    PropertyBag bag;
    bag.WriteProperty(u"Filter"_s, u"1"_s);
    bag.WriteProperty(u"Font"_s, kArial);
    bag.WriteProperty(u"Cols"_s, 3);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Filter", 0); }), kErrTypeMismatch);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Filter", false); }), kErrTypeMismatch);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Font", QString()); }), kErrTypeMismatch);
    EXPECT_EQ(errorNumber([&] { bag.read(u"Cols", kArial); }), kErrTypeMismatch);
    try {
        bag.read(u"Cols", QString());
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), kErrTypeMismatch);
        EXPECT_TRUE(error.description().contains(u"Cols")) << qPrintable(error.description());
    }
}

TEST(PropertyBag, AKeyHasOneTo65535Characters) {
    PropertyBag bag;
    EXPECT_EQ(errorNumber([&] { bag.WriteProperty(QString(), 1); }), kErrInvalidCall);
    EXPECT_EQ(errorNumber([&] { bag.WriteProperty(QString(), 1, 1); }), kErrInvalidCall);
    EXPECT_EQ(errorNumber([&] { bag.WriteProperty(QString(65536, u'k'), 1); }), kErrInvalidCall);
    bag.WriteProperty(QString(65535, u'k'), 1);
    PropertyBag read;
    read.setContents(bag.Contents());
    EXPECT_EQ(keysOf(read), keysOf(bag));
}

TEST(PropertyBag, ContentsHoldEveryValueExactly) {
    PropertyBag bag;
    const double tenth = 0.1;
    bag.WriteProperty(u"double"_s, tenth);
    bag.WriteProperty(u"single"_s, 0.1f);
    bag.WriteProperty(u"denormal"_s, std::numeric_limits<double>::denorm_min());
    bag.WriteProperty(u"infinite"_s, -std::numeric_limits<double>::infinity());
    bag.WriteProperty(u"int32"_s, std::numeric_limits<std::int32_t>::min());
    bag.WriteProperty(u"text"_s, QString(QChar(0xD800)) + QChar(0) + u"Πόλη😀"_s);
    bag.WriteProperty(u"long"_s, QString(100000, u'x'));
    bag.WriteProperty(u"font"_s, BagFont{u""_s, 0.5, false, true, false, true});
    PropertyBag read;
    read.WriteProperty(u"gone"_s, 1);
    read.setContents(bag.Contents());
    ASSERT_EQ(read.entries().size(), bag.entries().size());
    for (const PropertyBag::Entry& entry : bag.entries()) {
        const BagValue* value = read.find(entry.key);
        ASSERT_NE(value, nullptr);
        EXPECT_EQ(*value, entry.value) << qPrintable(entry.key);
    }
}

TEST(PropertyBag, TheSameValuesGiveTheSameBytesInWhateverOrderTheyWereWritten) {
    PropertyBag one;
    one.WriteProperty(u"A"_s, 1);
    one.WriteProperty(u"B"_s, std::nan("1"));
    PropertyBag other;
    other.WriteProperty(u"B"_s, -std::nan("2"));
    other.WriteProperty(u"A"_s, 1);
    EXPECT_EQ(one.Contents(), other.Contents());
}

TEST(PropertyBag, DamagedContentsLeaveTheBagAsItWas) {
    PropertyBag bag;
    bag.WriteProperty(u"A"_s, 1);
    const QByteArray before = bag.Contents();
    EXPECT_EQ(errorNumber([&] { bag.setContents(before.chopped(1)); }), kErrInvalidFormat);
    EXPECT_EQ(bag.Contents(), before);
}

} // namespace

} // namespace zkp
