#include "surface/own_texts.h"

#include "base/error.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace zkp;
using zkp::test::u;

TEST(OwnTexts, ACellHasNoTextUntilItIsWritten) {
    OwnTexts texts;
    EXPECT_FALSE(texts.text(3, 1));
    texts.write(3, 1, u("Αθήνα"));
    EXPECT_EQ(texts.text(3, 1), u("Αθήνα"));
    EXPECT_FALSE(texts.text(3, 0));
    EXPECT_FALSE(texts.text(4, 1));
}

TEST(OwnTexts, AnEmptyTextIsATextAndAnErasedOneIsNot) {
    OwnTexts texts;
    texts.write(0, 0, u(""));
    ASSERT_TRUE(texts.text(0, 0));
    EXPECT_EQ(*texts.text(0, 0), QString());
    texts.erase(0, 0);
    EXPECT_FALSE(texts.text(0, 0));
}

TEST(OwnTexts, TextsOfSevenAndEightBytesComeBack) {
    OwnTexts texts;
    texts.write(0, 0, u("1234567"));
    texts.write(0, 1, u("12345678"));
    EXPECT_EQ(texts.text(0, 0), u("1234567"));
    EXPECT_EQ(texts.text(0, 1), u("12345678"));
}

TEST(OwnTexts, AClearedRowHasNoTextInAnyColumn) {
    OwnTexts texts;
    texts.write(63, 0, u("a"));
    texts.write(64, 0, u("long enough to be stored apart"));
    texts.write(64, 5, u("b"));
    texts.write(65, 0, u("c"));
    texts.clearRow(64);
    EXPECT_FALSE(texts.text(64, 0));
    EXPECT_FALSE(texts.text(64, 5));
    EXPECT_EQ(texts.text(63, 0), u("a"));
    EXPECT_EQ(texts.text(65, 0), u("c"));
}

TEST(OwnTexts, ARangeOfRowsIsClearedToItsEnds) {
    OwnTexts texts;
    for (RowId row = 0; row < 300; ++row)
        texts.write(row, 0, QString::number(row));
    texts.clearRows({10, 250});
    EXPECT_EQ(texts.text(9, 0), u("9"));
    EXPECT_FALSE(texts.text(10, 0));
    EXPECT_FALSE(texts.text(128, 0));
    EXPECT_FALSE(texts.text(259, 0));
    EXPECT_EQ(texts.text(260, 0), u("260"));
    EXPECT_TRUE(texts.anyRowFrom(299));
    EXPECT_FALSE(texts.anyRowFrom(300));
}

TEST(OwnTexts, ADroppedColumnLeavesTheOthers) {
    OwnTexts texts;
    texts.write(1, 0, u("a"));
    texts.write(1, 1, u("b"));
    texts.dropColumn(0);
    EXPECT_FALSE(texts.text(1, 0));
    EXPECT_EQ(texts.text(1, 1), u("b"));
}

TEST(OwnTexts, TextsThatComeAndGoAndGrowKeepTheirValues) {
    OwnTexts texts;
    std::map<std::pair<RowId, ColumnId>, QString> model;
    std::mt19937 random(11);
    for (int step = 0; step < 60'000; ++step) {
        const RowId row = random() % 200;
        const ColumnId column = random() % 4;
        if (random() % 20 == 0) {
            texts.clearRow(row);
            for (ColumnId c = 0; c < 4; ++c)
                model.erase({row, c});
            continue;
        }
        const int length = static_cast<int>(random() % (random() % 50 == 0 ? 30'000 : 40));
        const QString text(length, QChar(static_cast<char16_t>(u'α' + random() % 24)));
        texts.write(row, column, text);
        model[{row, column}] = text;
    }
    for (RowId row = 0; row < 200; ++row)
        for (ColumnId column = 0; column < 4; ++column) {
            const auto expected = model.find({row, column});
            EXPECT_EQ(texts.has(row, column), expected != model.end());
            if (expected != model.end()) {
                EXPECT_EQ(texts.text(row, column), expected->second);
            }
        }
}

TEST(TextArena, TextsThatGrowDoNotPileUp) {
    TextArena arena;
    TextRef ref;
    for (int length = 100; length < 2'000; ++length)
        ref = arena.rewrite(ref, std::string(static_cast<std::size_t>(length), 'x'));
    EXPECT_LE(arena.liveBytes(), 2'010u);
    EXPECT_GT(arena.deadBytes(), 0u);
    EXPECT_EQ(arena.text(ref), QString(1'999, u'x'));
}

TEST(TextArena, AVeryLongTextIsGivenBackAtOnce) {
    TextArena arena;
    TextRef ref;
    for (int i = 1; i <= 50; ++i)
        ref = arena.rewrite(ref, std::string(1'000'000u + static_cast<unsigned>(i) * 8, 'y'));
    EXPECT_LE(arena.liveBytes(), 1'000'500u);
    EXPECT_EQ(arena.deadBytes(), 0u);
}

TEST(TextArena, BytesThatAreNotUtf8ComeBackAsReplacementCharacters) {
    TextArena arena;
    EXPECT_EQ(arena.text(arena.store("a\xFF\xFE z and more")), u("a\uFFFD\uFFFD z and more"));
    EXPECT_EQ(arena.text(arena.store("\xCE")), u("\uFFFD"));
}
