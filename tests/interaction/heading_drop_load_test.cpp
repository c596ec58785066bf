#include "load/load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A loaded report of two group factors and two plain columns.
class LoadedHeadingDragTest : public LoadTest {
protected:
    LoadedHeadingDragTest() {
        columns({u"REGION"_s, u"AGENT"_s, u"PREMIUM"_s, u"RATE"_s});
        grid->setColForTot(0, true);
        grid->setColForTot(1, true);
        fill(u"select 'Αθήνα' as REGION, 'Ζαφειρίου' as AGENT, 10 as PREMIUM, 0.5 as RATE"_s);
        grid->refresh();
        QObject::connect(&grid->events(), &Events::StartFilling, [this] { log << u"load"_s; });
    }

    QString row(int r) {
        QStringList cells;
        for (int c = 0; c < grid->Cols(); ++c)
            cells << grid->TextMatrix(r, c);
        return cells.join(u'|');
    }

    void drop(int from, int to, int answer = kAnswerNo) {
        host->onMsgBox = [answer](const ScriptedHost::Message&) { return answer; };
        grid->MSFlexGrid1().userDrop(from, to);
    }
};

TEST_F(LoadedHeadingDragTest, AfterALoadWithinTheDropHeadingsAndDataAgree) {
    drop(0, 1, kAnswerYes);
    EXPECT_EQ(log, QStringList{u"load"_s});
    EXPECT_EQ(row(0), u"AGENT|REGION|PREMIUM|RATE"_s);
    EXPECT_EQ(row(1), u"Ζαφειρίου|Αθήνα|10|0,5"_s);
    EXPECT_EQ(grid->Groupby(), u"AGENT,REGION"_s);
    EXPECT_TRUE(grid->MergeCol(0));
    EXPECT_TRUE(grid->MergeCol(1));
    EXPECT_FALSE(grid->MergeCol(2));
    EXPECT_EQ(grid->ColDataField(0), u"AGENT"_s);
    EXPECT_EQ(grid->Cols(), 4) << "no factor was made a second time";
}

TEST_F(LoadedHeadingDragTest, WithoutOneTheOrderOfColumnsAndTheGroupingDifferUntilTheNextLoad) {
    drop(1, 0, kAnswerCancel);
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(row(0), u"AGENT|REGION|PREMIUM|RATE"_s);
    EXPECT_EQ(row(1), u"Ζαφειρίου|Αθήνα|10|0,5"_s);
    EXPECT_EQ(grid->Groupby(), u"REGION,AGENT"_s);
    grid->refresh();
    EXPECT_EQ(grid->Groupby(), u"AGENT,REGION"_s);
    EXPECT_EQ(row(1), u"Ζαφειρίου|Αθήνα|10|0,5"_s);
}

TEST_F(LoadedHeadingDragTest, APlainColumnTakesItsDataAlongAndKeepsThemOverALoad) {
    drop(3, 2);
    EXPECT_EQ(row(0), u"REGION|AGENT|RATE|PREMIUM"_s);
    EXPECT_EQ(row(1), u"Αθήνα|Ζαφειρίου|0,5|10"_s);
    EXPECT_EQ(log, QStringList());
    grid->refresh();
    EXPECT_EQ(row(1), u"Αθήνα|Ζαφειρίου|0,5|10"_s);
}

TEST_F(LoadedHeadingDragTest, ARefusedDropMovesNothing) {
    drop(0, 2);
    drop(3, 1);
    drop(3, 9);
    EXPECT_EQ(row(0), u"REGION|AGENT|PREMIUM|RATE"_s);
    EXPECT_EQ(row(1), u"Αθήνα|Ζαφειρίου|10|0,5"_s);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(LoadedHeadingDragTest, AYesWhoseLoadFailsIsToldOnce) {
    grid->setCn({});
    drop(0, 1, kAnswerYes);
    EXPECT_EQ(host->messages.size(), 2u) << "the question and the failure";
    EXPECT_EQ(row(0), u"AGENT|REGION|PREMIUM|RATE"_s);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(LoadedHeadingDragTest, TheAnswerMayDestroyTheControl) {
    GridSurface& surface = grid->MSFlexGrid1();
    host->onMsgBox = [this](const ScriptedHost::Message&) {
        grid.reset();
        return int(kAnswerYes);
    };
    surface.userDrop(0, 1);
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(log, QStringList());
}

} // namespace
