#include "surface/grid_surface.h"

#include "error_of.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

using namespace zkp;
using namespace zkp::test;

namespace {

struct Sorted {
    GridSurface surface;

    explicit Sorted(std::initializer_list<const char*> texts) {
        surface.setLocale(ReportLocale(QLocale(QLocale::Greek, QLocale::Greece)));
        surface.setRows(1);
        surface.setTextMatrix(0, 0, u("head"));
        for (const char* text : texts)
            surface.AddItem(u(text));
        surface.Select(1, 0, surface.Rows() - 1, 0);
    }

    QString rows() const {
        QStringList texts;
        for (int row = 1; row < surface.Rows(); ++row)
            texts += surface.TextMatrix(row, 0);
        return texts.join(u'|');
    }

    void compareBy(const RowCompare& compare) {
        surface.notifications.compare = [compare](int, int) { return compare; };
    }

    QString by(int code) {
        surface.setSort(code);
        EXPECT_EQ(surface.inconsistency(), QString());
        EXPECT_EQ(surface.TextMatrix(0, 0), u("head"));
        return rows();
    }
};

} // namespace

TEST(SurfaceSort, EachCode) {
    const auto sorted = [](int code) { return Sorted({"b", "10", "A", "9", "a", "B"}).by(code); };
    EXPECT_EQ(sorted(kSortNone), u("b|10|A|9|a|B"));
    EXPECT_EQ(sorted(kSortGenericUp), u("10|9|A|a|b|B"));
    EXPECT_EQ(sorted(kSortGenericDown), u("b|B|A|a|9|10"));
    EXPECT_EQ(sorted(kSortNumericUp), u("b|A|a|B|9|10"));
    EXPECT_EQ(sorted(kSortNumericDown), u("10|9|b|A|a|B"));
    EXPECT_EQ(sorted(kSortTextBlindUp), u("10|9|A|a|b|B"));
    EXPECT_EQ(sorted(kSortTextBlindDown), u("b|B|A|a|9|10"));
    EXPECT_EQ(sorted(kSortTextUp), u("10|9|a|A|b|B"));
    EXPECT_EQ(sorted(kSortTextDown), u("B|b|A|a|9|10"));
}

TEST(SurfaceSort, ACodeThatIsNoneIsRefused) {
    Sorted s({"b", "a"});
    EXPECT_EQ(errorNumber([&] { s.surface.setSort(10); }), kErrInvalidCall);
    EXPECT_EQ(errorNumber([&] { s.surface.setSort(-1); }), kErrInvalidCall);
    EXPECT_EQ(s.rows(), u("b|a"));
}

TEST(SurfaceSort, GenericSortsAmountsAsNumbers) {
    EXPECT_EQ(Sorted({"1.000,00", "20,00", "3,00"}).by(kSortGenericUp), u("3,00|20,00|1.000,00"));
    Sorted currency({"1.000,00", "x", "3,00"});
    currency.surface.setColDataType(0, 6);
    EXPECT_EQ(currency.by(kSortGenericDown), u("1.000,00|3,00|x"));
}

TEST(SurfaceSort, OnlyTheRowsFromRowToRowSelAreSorted) {
    Sorted s({"d", "c", "b", "a"});
    s.surface.setRow(1);
    s.surface.setRowSel(3);
    EXPECT_EQ(s.by(kSortTextUp), u("b|c|d|a")) << "the last row stays out";
    s.surface.Select(4, 0, 3, 0);
    EXPECT_EQ(s.by(kSortTextUp), u("b|c|a|d")) << "RowSel above Row";
}

TEST(SurfaceSort, ASingleSelectedRowSortsTheWholeBody) {
    Sorted s({"d", "c", "b", "a"});
    s.surface.Select(2, 0);
    EXPECT_EQ(s.by(kSortTextUp), u("a|b|c|d"));
}

TEST(SurfaceSort, FixedRowsStayWhereTheyAre) {
    Sorted s({"d", "c", "b"});
    s.surface.Select(0, 0, 3, 0);
    EXPECT_EQ(s.by(kSortTextUp), u("b|c|d"));
}

TEST(SurfaceSort, SeveralColumnsWeighFromTheLeft) {
    GridSurface surface;
    surface.setRows(1);
    for (const char* row : {"b\t1", "a\t2", "b\t0", "a\t1"})
        surface.AddItem(u(row));
    surface.Select(1, 0, 4, 1);
    surface.setSort(kSortGenericUp);
    QStringList rows;
    for (int row = 1; row < 5; ++row)
        rows += surface.TextMatrix(row, 0) + surface.TextMatrix(row, 1);
    EXPECT_EQ(rows.join(u'|'), u("a1|a2|b0|b1"));
}

TEST(SurfaceSort, ARowTakesTagAndStyleAlong) {
    Sorted s({"b", "a"});
    s.surface.setRowData(1, 9);
    s.surface.Select(1, 0);
    s.surface.setCellBackColor(7);
    s.by(kSortTextUp);
    EXPECT_EQ(s.surface.RowData(2), 9);
    EXPECT_EQ(s.surface.styleAt(2, 0).backColor, 7u);
    EXPECT_EQ(s.surface.RowData(1), 0);
}

TEST(SurfaceSort, TrailingBlankRowsTakePart) {
    Sorted s({"b", "a"});
    s.surface.setRows(5);
    s.surface.Select(1, 0, 4, 0);
    EXPECT_EQ(s.by(kSortTextUp), u("||a|b"));
}

TEST(SurfaceSort, TheCustomComparisonDecides) {
    Sorted s({"bb", "a", "dddd", "ccc"});
    s.compareBy([&](int row1, int row2) {
        return static_cast<int>(s.surface.TextMatrix(row2, 0).size() - s.surface.TextMatrix(row1, 0).size());
    });
    EXPECT_EQ(s.by(kSortCustom), u("dddd|ccc|bb|a"));
}

TEST(SurfaceSort, WithNoComparisonTheCustomSortLeavesAllAsItIs) {
    EXPECT_EQ(Sorted({"b", "a"}).by(kSortCustom), u("b|a"));
}

TEST(SurfaceSort, TheComparisonIsMadeOnceForTheRowsOfASort) {
    Sorted s({"d", "c", "b", "a"});
    s.surface.Select(1, 0, 3, 0);
    QStringList asked;
    s.surface.notifications.compare = [&](int first, int last) -> RowCompare {
        asked << QStringLiteral("%1-%2").arg(first).arg(last);
        return [&](int row1, int row2) {
            return s.surface.TextMatrix(row1, 0).compare(s.surface.TextMatrix(row2, 0));
        };
    };
    EXPECT_EQ(s.by(kSortCustom), u("b|c|d|a"));
    EXPECT_EQ(asked.join(u'|'), u("1-3"));
}

TEST(SurfaceSort, AComparisonThatIsNoneLeavesAllAsItIs) {
    Sorted s({"b", "a"});
    s.compareBy({});
    EXPECT_EQ(s.by(kSortCustom), u("b|a"));
}

TEST(SurfaceSort, AComparisonThatThrowsLeavesTheRowsAsTheyWere) {
    Sorted s({"b", "a", "c"});
    s.compareBy([](int, int) -> int { throw std::runtime_error("no"); });
    EXPECT_THROW(s.surface.setSort(kSortCustom), std::runtime_error);
    EXPECT_EQ(s.rows(), u("b|a|c"));
    EXPECT_EQ(s.by(kSortTextUp), u("a|b|c")) << "and the next sort works";
}

TEST(SurfaceSort, AComparisonThatContradictsItselfLosesNoRow) {
    Sorted s({"a", "b", "c", "d", "e", "f", "g"});
    std::mt19937 random(5);
    s.compareBy([&](int, int) { return static_cast<int>(random() % 3) - 1; });
    for (int i = 0; i < 50; ++i) {
        QStringList rows = s.by(kSortCustom).split(u'|');
        rows.sort();
        ASSERT_EQ(rows.join(u'|'), u("a|b|c|d|e|f|g"));
    }
}

TEST(SurfaceSort, AComparisonThatRemovesRowsEndsWithoutAnOrder) {
    Sorted s({"d", "c", "b", "a"});
    s.compareBy([&](int, int) {
        if (s.surface.Rows() > 2)
            s.surface.RemoveItem(1);
        return 1;
    });
    s.surface.setSort(kSortCustom);
    EXPECT_EQ(s.surface.inconsistency(), QString());
    EXPECT_EQ(s.rows(), u("a"));
}

TEST(SurfaceSort, AComparisonThatSortsIsNotFollowed) {
    Sorted s({"b", "a", "c"});
    s.compareBy([&](int row1, int row2) {
        s.surface.setSort(kSortCustom);
        return s.surface.TextMatrix(row1, 0).compare(s.surface.TextMatrix(row2, 0));
    });
    EXPECT_EQ(s.by(kSortCustom), u("a|b|c"));
}
