#include "surface/style_pieces.h"

#include <gtest/gtest.h>

using namespace zkp;
using Pieces = std::vector<StylePiece>;

namespace {

constexpr SurfaceShape kShape{100, 10, 1, 0};

} // namespace

TEST(StylePieces, AllBodyCellsAreOneWrite) {
    EXPECT_EQ(stylePieces({1, 0, 99, 9}, kShape), (Pieces{{StyleTarget::Body, {1, 0, 99, 9}}}));
}

TEST(StylePieces, AllBodyRowsOfSomeColumnsGoToTheColumns) {
    EXPECT_EQ(stylePieces({1, 2, 99, 4}, kShape), (Pieces{{StyleTarget::Columns, {1, 2, 99, 4}}}));
}

TEST(StylePieces, WholeRowsGoToTheRows) {
    EXPECT_EQ(stylePieces({5, 0, 7, 9}, kShape), (Pieces{{StyleTarget::Rows, {5, 0, 7, 9}}}));
}

TEST(StylePieces, AnyOtherBlockGoesCellByCell) {
    EXPECT_EQ(stylePieces({5, 1, 7, 9}, kShape), (Pieces{{StyleTarget::Cells, {5, 1, 7, 9}}}));
}

TEST(StylePieces, FixedRowsArePiecesOfTheirOwn) {
    EXPECT_EQ(stylePieces({0, 0, 99, 9}, kShape),
              (Pieces{{StyleTarget::Rows, {0, 0, 0, 9}}, {StyleTarget::Body, {1, 0, 99, 9}}}));
    EXPECT_EQ(stylePieces({0, 3, 0, 3}, kShape), (Pieces{{StyleTarget::Cells, {0, 3, 0, 3}}}));
}

TEST(StylePieces, FixedColumnsAreNotOfTheBody) {
    const SurfaceShape shape{100, 10, 1, 2};
    EXPECT_EQ(stylePieces({1, 2, 99, 9}, shape), (Pieces{{StyleTarget::Body, {1, 2, 99, 9}}}));
    EXPECT_EQ(stylePieces({1, 0, 99, 9}, shape),
              (Pieces{{StyleTarget::Body, {1, 2, 99, 9}}, {StyleTarget::Columns, {1, 0, 99, 1}}}));
}

TEST(StylePieces, ASingleBodyRowIsARow) {
    const SurfaceShape shape{2, 10, 1, 0};
    EXPECT_EQ(stylePieces({1, 0, 1, 9}, shape), (Pieces{{StyleTarget::Rows, {1, 0, 1, 9}}}));
    EXPECT_EQ(stylePieces({1, 0, 1, 3}, shape), (Pieces{{StyleTarget::Cells, {1, 0, 1, 3}}}));
}
