#include "window_templates_fixture.h"

#include <QAction>

// What was reshaped and not saved is not lost without a word.

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

class WindowLeaving : public WindowTemplates {
protected:
    void rename(const QString& caption) {
        grid().setColCaption(0, caption);
        settle();
    }
    void click(int report) {
        QTest::mouseClick(reports().viewport(), Qt::LeftButton, Qt::NoModifier,
                          reports().visualRect(reports().model()->index(report, 0)).center());
        settle();
    }
    void expectStill(const QString& caption) {
        EXPECT_EQ(grid().ColCaption(0), caption);
        EXPECT_EQ(reports().currentIndex().row(), 0);
        EXPECT_TRUE(reports().selectionModel()->isRowSelected(0));
        EXPECT_FALSE(reports().selectionModel()->isRowSelected(1));
    }
};

TEST_F(WindowLeaving, AReportThatWasNotReshapedIsLeftWithoutAQuestion) {
    ASSERT_TRUE(openCopy());
    click(1);
    chooseUser(QStringLiteral("P0010"));
    EXPECT_TRUE(window->close());
    EXPECT_EQ(questions, 0);
}

TEST_F(WindowLeaving, AnotherReportAsksAndCancelStays) {
    ASSERT_TRUE(openCopy());
    rename(kOther);
    keepAnswer = kAnswerCancel;
    click(1);
    EXPECT_EQ(questions, 1);
    expectStill(kOther);
    EXPECT_TRUE(part<QAction>("undo").isEnabled());
    keepAnswer = kAnswerNo;
    click(1);
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(reports().currentIndex().row(), 1);
    EXPECT_TRUE(reports().selectionModel()->isRowSelected(1));
    EXPECT_NE(grid().ColCaption(0), kOther);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(WindowLeaving, YesSavesUnderANameAndGoesOn) {
    ASSERT_TRUE(openCopy());
    rename(kOther);
    keepAnswer = kAnswerYes;
    answer = QString(); // no name is given
    click(1);
    expectStill(kOther);
    answer = kMonthly;
    click(1);
    EXPECT_EQ(names(), QStringList{kMonthly});
    EXPECT_EQ(reports().currentIndex().row(), 1);
    EXPECT_EQ(questions, 2);
    openTemplate(kMonthly);
    EXPECT_EQ(grid().ColCaption(0), kOther);
    rename(QStringLiteral("Πάλι"));
    offered.clear();
    EXPECT_TRUE(window->close());
    EXPECT_EQ(questions, 3);
    EXPECT_EQ(offered, QString()) << "an open template has its name";
    EXPECT_EQ(bagOf(kMonthly).read<QString>(u"ColCaption0", QString()), QStringLiteral("Πάλι"));
}

TEST_F(WindowLeaving, ATemplateAnotherUserAndTheEndAskToo) {
    ASSERT_TRUE(openCopy());
    saveAs(kMonthly);
    rename(kOther);
    keepAnswer = kAnswerCancel;
    openTemplate(kMonthly);
    expectStill(kOther);
    chooseUser(QStringLiteral("P0010"));
    expectStill(kOther);
    EXPECT_EQ(users().currentIndex(), 0);
    EXPECT_EQ(recordCount(), 600);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(questions, 3);
    keepAnswer = kAnswerNo;
    openTemplate(kMonthly);
    EXPECT_NE(grid().ColCaption(0), kOther);
}

TEST_F(WindowLeaving, WhatWasSavedOrTakenBackIsNoChange) {
    ASSERT_TRUE(openCopy());
    rename(kOther);
    saveAs(kMonthly);
    EXPECT_TRUE(part<QAction>("undo").isEnabled());
    click(1);
    EXPECT_EQ(questions, 0);
    rename(kOther);
    QTest::keyClick(&view(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    click(0);
    EXPECT_EQ(questions, 0);
}

TEST_F(WindowLeaving, ChangesGoWithTheShapeToOtherGroups) {
    ASSERT_TRUE(openCopy());
    rename(kOther);
    chooseGroup(1, kCategory);
    EXPECT_EQ(questions, 0) << "nothing is lost";
    ASSERT_TRUE(captions().contains(kOther));
    chooseUser(QStringLiteral("P0010"));
    EXPECT_EQ(questions, 1);
    EXPECT_TRUE(captions().contains(kOther)) << "the shape stays with another user";
    click(1);
    EXPECT_EQ(questions, 1) << "the answer was given";
}

TEST_F(WindowLeaving, WithoutRoomForTemplatesThereIsNothingToAsk) {
    execute(QStringLiteral("DROP TABLE frms"));
    execute(QStringLiteral("DROP TABLE frms2"));
    ASSERT_TRUE(openCopy());
    rename(kOther);
    click(1);
    EXPECT_EQ(reports().currentIndex().row(), 1);
    EXPECT_EQ(questions, 0);
}

} // namespace
