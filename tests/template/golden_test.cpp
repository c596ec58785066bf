#include "template_fixture.h"

#include "template/saved_keys.h"
#include "template/saved_reading.h"

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

using GoldenTest = GridTest;

TEST_F(GoldenTest, AFreshControlWritesItsKeys) {
    EXPECT_EQ(bagLines(*shapeOf(*grid)), goldenLines("written_by_a_fresh_control.txt"));
}

TEST_F(GoldenTest, AChangedControlWritesItsKeysInTheirOrder) {
    applyGolden(*grid, "changed_control.txt");
    EXPECT_EQ(bagLines(*shapeOf(*grid)), goldenLines("written_by_a_changed_control.txt"));
}

TEST_F(GoldenTest, WritingLeavesTheControlAsItIs) {
    applyGolden(*grid, "changed_control.txt");
    EXPECT_EQ(keysOf([&] { shapeOf(*grid); }), QStringList{});
    EXPECT_EQ(linesLike(*grid, "changed_control.txt"), goldenLines("changed_control.txt"));
}

TEST_F(GoldenTest, WhatAChangedControlWroteComesBackWithItsDifferences) {
    applyGolden(*grid, "changed_control.txt");
    ZkpGrid other(host);
    other.UserControl_ReadProperties(shapeOf(*grid));
    EXPECT_EQ(linesLike(other, "read_from_a_changed_control.txt"),
              goldenLines("read_from_a_changed_control.txt"));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(GoldenTest, TheSameComesBackThroughBytes) {
    applyGolden(*grid, "changed_control.txt");
    const PropertyBagPtr bag = newBag();
    bag->setContents(shapeOf(*grid)->Contents());
    ZkpGrid other(host);
    other.UserControl_ReadProperties(bag);
    EXPECT_EQ(linesLike(other, "read_from_a_changed_control.txt"),
              goldenLines("read_from_a_changed_control.txt"));
}

TEST_F(GoldenTest, AnEmptyBagGivesTheDefaults) {
    grid->UserControl_ReadProperties(newBag());
    EXPECT_EQ(linesLike(*grid, "read_from_an_empty_bag.txt"), goldenLines("read_from_an_empty_bag.txt"));
    EXPECT_TRUE(host->messages.empty());
}

// The tables and the order of reading name the same keys, each once; `MenusVisible` is read twice.
TEST(SavedKeys, EveryKeyThatIsReadStandsInTheOrderOfReadingOnce) {
    QStringList ordered;
    const auto add = [&](const auto& keys) {
        for (const char* key : keys)
            ordered << QString::fromLatin1(key);
    };
    add(saved::kReadFirst);
    add(saved::kReadLayout);
    add(saved::kReadSections);
    add(saved::kReadTitle);
    add(saved::kReadRows);
    for (const SavedKey& key : savedFontKeys())
        if (!key.read.isEmpty())
            ordered << key.read;
    add(saved::kReadStyles);
    add(saved::kReadBehaviour);
    add(saved::kReadLast);
    EXPECT_EQ(ordered.count(u"MenusVisible"_s), 2);
    ordered.removeOne(u"MenusVisible"_s);

    QStringList known{u"EditEnable"_s, u"UnionFilter"_s, u"FormatString"_s};
    for (const auto* table : {&savedKeysBeforeColumns(), &savedKeysAfterColumns()})
        for (const SavedKey& key : *table)
            if (!key.read.isEmpty())
                known << key.read;
    ordered.sort();
    known.sort();
    EXPECT_EQ(ordered, known);
    for (const QString& key : known)
        EXPECT_EQ(savedKeyReadAs(key).read, key);
}
