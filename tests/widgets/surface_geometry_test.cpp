#include "widgets/grid/surface_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zkp {

void PrintTo(const Span& span, std::ostream* out) {
    *out << span.index << " at " << span.start << "+" << span.size;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Axis axis(int count, int fixed, int first, int extent, int size = 10) {
    return {count, fixed, first, extent, [size](int) { return size; }};
}

TEST(SurfaceGeometry, APixelIsFifteenTwipsAt96DotsPerInch) {
    const TwipScale scale;
    EXPECT_EQ(scale.pixels(1440), 96);
    EXPECT_EQ(scale.pixels(285), 19);
    EXPECT_EQ(scale.pixels(22), 1);
    EXPECT_EQ(scale.pixels(23), 2);
    EXPECT_DOUBLE_EQ(scale.twips(20), 300);
    EXPECT_EQ(TwipScale{144}.pixels(1440), 144);
}

TEST(SurfaceGeometry, FixedOnesStandBeforeTheFirstThatIsScrolledTo) {
    EXPECT_THAT(layOut(axis(100, 1, 50, 35)),
                ElementsAre(Span{0, 0, 10}, Span{50, 10, 10}, Span{51, 20, 10}, Span{52, 30, 10}));
}

TEST(SurfaceGeometry, NothingShowsInAnEmptyView) {
    EXPECT_THAT(layOut(axis(100, 1, 1, 0)), IsEmpty());
    EXPECT_THAT(layOut(axis(0, 0, 0, 100)), IsEmpty());
}

TEST(SurfaceGeometry, AnAxisThatEndsEarlyLeavesRoom) {
    EXPECT_THAT(layOut(axis(3, 1, 1, 100)), ElementsAre(Span{0, 0, 10}, Span{1, 10, 10}, Span{2, 20, 10}));
}

TEST(SurfaceGeometry, HiddenOnesTakeNoPlace) {
    Axis some = axis(5, 1, 1, 100);
    some.sizeOf = [](int index) { return index == 2 ? 0 : 10; };
    EXPECT_THAT(layOut(some), ElementsAre(Span{0, 0, 10}, Span{1, 10, 10}, Span{3, 20, 10}, Span{4, 30, 10}));
}

TEST(SurfaceGeometry, LayingOutAsksOnlyForWhatShows) {
    int asked = 0;
    Axis many = axis(1'000'000, 1, 500'000, 100);
    many.sizeOf = [&](int) { return ++asked, 10; };
    EXPECT_EQ(layOut(many).size(), 10u);
    EXPECT_EQ(asked, 10);
}

TEST(SurfaceGeometry, OnlyWholeScrollableOnesCount) {
    const Axis some = axis(100, 1, 1, 35);
    EXPECT_EQ(wholeCount(some, layOut(some)), 2); // 10 to 20 and 20 to 30; 30 to 40 is cut
}

struct FirstCase {
    int count, fixed, extent, last;
};
class LastFirst : public testing::TestWithParam<FirstCase> {};

TEST_P(LastFirst, IsTheFirstThatShowsTheLastWholly) {
    const FirstCase c = GetParam();
    EXPECT_EQ(lastFirst(axis(c.count, c.fixed, c.fixed, c.extent)), c.last);
}

INSTANTIATE_TEST_SUITE_P(Cases, LastFirst,
                         testing::Values(FirstCase{100, 1, 35, 98}, // two fit: 98 and 99
                                         FirstCase{100, 1, 40, 97}, FirstCase{3, 1, 100, 1},
                                         FirstCase{1, 1, 100, 1},  // no body
                                         FirstCase{100, 1, 5, 99}, // none fits: one at a time
                                         FirstCase{100, 0, 30, 97}));

struct ShowCase {
    int first, index, wanted;
};
class FirstToShow : public testing::TestWithParam<ShowCase> {};

TEST_P(FirstToShow, MovesAsLittleAsItCan) {
    const ShowCase c = GetParam();
    EXPECT_EQ(firstToShow(axis(100, 1, c.first, 41), c.index), c.wanted); // three fit
}

INSTANTIATE_TEST_SUITE_P(Cases, FirstToShow,
                         testing::Values(ShowCase{10, 11, 10}, ShowCase{10, 12, 10}, ShowCase{10, 13, 11},
                                         ShowCase{10, 99, 97}, ShowCase{10, 4, 4}, ShowCase{10, 0, 10}));

TEST(SurfaceGeometry, TheSpanUnderAPixel) {
    const std::vector<Span> spans = layOut(axis(100, 1, 50, 35));
    EXPECT_EQ(spanAt(spans, 9)->index, 0);
    EXPECT_EQ(spanAt(spans, 10)->index, 50);
    EXPECT_EQ(spanAt(spans, -1), nullptr);
    EXPECT_EQ(spanAt(spans, 40), nullptr);
}

TEST(SurfaceGeometry, ABorderIsFoundNearItsPixel) {
    const std::vector<Span> spans{{0, 0, 100}, {1, 100, 2}, {2, 102, 100}};
    EXPECT_EQ(borderAt(spans, 97, 3)->index, 0);
    EXPECT_EQ(borderAt(spans, 101, 3)->index, 1) << "a narrow column can be widened again";
    EXPECT_EQ(borderAt(spans, 60, 3), nullptr);
}

} // namespace
} // namespace zkp
