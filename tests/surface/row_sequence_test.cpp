#include "surface/row_sequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace zkp;

namespace {

std::vector<RowId> ids(const RowSequence& sequence) {
    std::vector<RowId> result;
    for (int i = 0; i < sequence.realSize(); ++i)
        result.push_back(sequence.at(i));
    return result;
}

const RowSequence::RunVisitor ignore = [](const RowRun&) {};

} // namespace

TEST(RowSequence, TrailingBlankRowsAreACount) {
    RowSequence sequence;
    sequence.setBlanks(1'000'000);
    EXPECT_EQ(sequence.size(), 1'000'000);
    EXPECT_EQ(sequence.realSize(), 0);
    EXPECT_EQ(sequence.at(999'999), kNoRow);
}

TEST(RowSequence, AnAppendedRunTakesThePlaceOfBlanks) {
    RowSequence sequence;
    sequence.setBlanks(3);
    sequence.append({0, 2});
    EXPECT_EQ(sequence.size(), 3);
    EXPECT_EQ(sequence.realSize(), 2);
    sequence.append({2, 4});
    EXPECT_EQ(sequence.size(), 6);
    EXPECT_EQ(ids(sequence), (std::vector<RowId>{0, 1, 2, 3, 4, 5}));
}

TEST(RowSequence, AnInsertionPushesTheRowsBehindItDown) {
    RowSequence sequence;
    sequence.append({0, 4});
    sequence.insert(2, {9, 1});
    sequence.insert(0, {7, 1});
    EXPECT_EQ(ids(sequence), (std::vector<RowId>{7, 0, 1, 9, 2, 3}));
}

TEST(RowSequence, AnInsertionBeforeTheFirstBlankKeepsTheBlanks) {
    RowSequence sequence;
    sequence.setBlanks(3);
    sequence.append({0, 1});
    sequence.insert(1, {1, 1});
    EXPECT_EQ(sequence.size(), 4);
    EXPECT_EQ(sequence.realSize(), 2);
}

TEST(RowSequence, ARemovalTellsWhichRowsWent) {
    RowSequence sequence;
    sequence.append({0, 3});
    sequence.append({10, 3});
    std::vector<RowRun> gone;
    sequence.erase(1, 3, [&](const RowRun& run) { gone.push_back(run); });
    EXPECT_EQ(ids(sequence), (std::vector<RowId>{0, 11, 12}));
    EXPECT_EQ(gone, (std::vector<RowRun>{{1, 2}, {10, 1}}));
}

TEST(RowSequence, ReplacingPutsIdsInAnotherOrder) {
    RowSequence sequence;
    sequence.append({0, 6});
    const std::vector<RowId> order{4, 1, 2, 3};
    sequence.replace(1, order);
    EXPECT_EQ(ids(sequence), (std::vector<RowId>{0, 4, 1, 2, 3, 5}));
}

TEST(RowSequence, RunsOfARangeComeInOrderAndCutToIt) {
    RowSequence sequence;
    sequence.append({0, 3});
    sequence.append({10, 3});
    std::vector<RowRun> runs;
    sequence.forEachRun(1, 4, [&](const RowRun& run) { runs.push_back(run); });
    EXPECT_EQ(runs, (std::vector<RowRun>{{1, 2}, {10, 2}}));
}

TEST(RowSequence, TwoHundredThousandInsertionsMoveAFixedNumberOfRunsEach) {
    RowSequence sequence;
    sequence.append({0, 1'000'000});
    sequence.takeMoved();
    constexpr int kInsertions = 200'000;
    for (int i = 0; i < kInsertions; ++i)
        sequence.insert(5 * i + 1, {static_cast<RowId>(2'000'000 + 2 * i), 1});
    EXPECT_LE(sequence.takeMoved(), std::int64_t{kInsertions} * 130);
    EXPECT_EQ(sequence.at(1), 2'000'000u);
    EXPECT_EQ(sequence.at(6), 2'000'002u);
    EXPECT_EQ(sequence.at(2), 1u);
    EXPECT_EQ(sequence.inconsistency(), QString());
}

TEST(RowSequence, RandomStepsGiveWhatAPlainListGives) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::size_t n) { return static_cast<int>(random() % n); };
        RowSequence sequence;
        std::vector<RowId> model;
        RowId next = 0;
        for (int step = 0; step < 3000; ++step) {
            const int at = below(model.size() + 1);
            const auto place = model.begin() + at;
            switch (below(10)) {
            case 0: {
                const int count = std::min<int>(below(300), static_cast<int>(model.end() - place));
                sequence.erase(at, count, ignore);
                model.erase(place, place + count);
                break;
            }
            case 1: {
                const int count = std::min<int>(below(400), static_cast<int>(model.end() - place));
                std::shuffle(place, place + count, random);
                sequence.replace(at, std::vector<RowId>(place, place + count));
                break;
            }
            case 2: {
                const int count = 1 + below(50);
                sequence.append({next, count});
                for (int i = 0; i < count; ++i)
                    model.push_back(next++);
                break;
            }
            default:
                next += static_cast<RowId>(below(2)); // sometimes the ids go on, sometimes they jump
                sequence.insert(at, {next, 1});
                model.insert(place, next++);
                break;
            }
            ASSERT_EQ(sequence.inconsistency(), QString()) << "seed " << seed << " step " << step;
            if (step % 50 == 0) {
                ASSERT_EQ(ids(sequence), model) << "seed " << seed << " step " << step;
            } else if (!model.empty()) {
                const int probe = below(model.size());
                ASSERT_EQ(sequence.at(probe), model[static_cast<std::size_t>(probe)]);
            }
        }
        EXPECT_EQ(ids(sequence), model);
    }
}
