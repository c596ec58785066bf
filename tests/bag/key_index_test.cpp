#include "bag/key_index.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zkp {

namespace {

using namespace Qt::StringLiterals;

std::vector<QString> columnKeys() {
    std::vector<QString> keys;
    for (const QString& stem : {u"ColWidth"_s, u"ColCaption"_s, u"ColForTot"_s, u"K"_s, u"Στήλη"_s}) {
        for (int i = 0; i < 2000; ++i)
            keys.push_back(stem + QString::number(i));
    }
    return keys;
}

TEST(KeyIndex, FindsEveryKeyInAnyCaseAndNoOther) {
    const std::vector<QString> keys = columnKeys();
    const auto keyAt = [&](std::uint32_t place) { return QStringView(keys[place]); };
    KeyIndex index;
    EXPECT_EQ(index.find(u"ColWidth0", KeyIndex::hashOf(u"ColWidth0"), keyAt), KeyIndex::kNone);
    for (std::uint32_t place = 0; place < keys.size(); ++place)
        index.insert(KeyIndex::hashOf(keys[place]), place);
    for (std::uint32_t place = 0; place < keys.size(); ++place) {
        for (const QString& spelling : {keys[place], keys[place].toLower(), keys[place].toUpper()})
            ASSERT_EQ(index.find(spelling, KeyIndex::hashOf(spelling), keyAt), place) << qPrintable(spelling);
    }
    for (const QString& other : {u"ColWidth2000"_s, u"ColWidth"_s, u"ColWidth0 "_s, u""_s})
        EXPECT_EQ(index.find(other, KeyIndex::hashOf(other), keyAt), KeyIndex::kNone) << qPrintable(other);
    index.clear();
    EXPECT_EQ(index.find(keys[0], KeyIndex::hashOf(keys[0]), keyAt), KeyIndex::kNone);
}

TEST(KeyIndex, TextsThatDifferInMoreThanCaseAreNotTheSame) {
    EXPECT_TRUE(KeyIndex::isSame(u"orderby", u"OrderBy"));
    EXPECT_TRUE(KeyIndex::isSame(u"ς", u"Σ"));
    EXPECT_TRUE(KeyIndex::isSame(u"\u017F", u"s")) << "the long s has an ASCII capital";
    EXPECT_EQ(KeyIndex::hashOf(u"\u017F"), KeyIndex::hashOf(u"s"));
    EXPECT_FALSE(KeyIndex::isSame(u"@", u"`")) << "they differ in the bit of the case";
    EXPECT_FALSE(KeyIndex::isSame(u"K1", u"K\u0011"));
    EXPECT_FALSE(KeyIndex::isSame(u"ά", u"α"));
}

TEST(KeyIndex, KeysThatDifferInTheirDigitsSpread) {
    std::set<std::uint32_t> lowBits;
    for (int i = 0; i < 2000; ++i)
        lowBits.insert(KeyIndex::hashOf(u"ColForTot"_s + QString::number(i)) & 0xFFFF);
    EXPECT_GT(lowBits.size(), 1900u); // 2,000 even throws into 65,536 places meet about 30 times
}

} // namespace

} // namespace zkp
