#include "report_session.h"

namespace zkp {
namespace {

TEST_F(ReportSession, TheRowFollowsTheCurrentColumn) {
    click(4, 3);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignRight").isChecked());
    EXPECT_EQ(tool<QLineEdit>("mnuCaption").text(), QStringLiteral("premium"));
    EXPECT_EQ(tool<QComboBox>("mnuField").currentText(), QStringLiteral("Μικτά Ασφάλιστρα"));
    EXPECT_TRUE(tool<QToolButton>("mnuSort").isEnabled());
    click(4, 0);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignLeft").isChecked());
    EXPECT_FALSE(tool<QToolButton>("mnuSort").isEnabled()) << "a group factor";
}

TEST_F(ReportSession, AToolAlignsTheCurrentColumn) {
    click(4, 3);
    const QImage before = picture();
    choose("mnuAlignLeft");
    EXPECT_EQ(grid().ColAlignment(3), 0);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignLeft").isChecked());
    EXPECT_FALSE(tool<QToolButton>("mnuAlignRight").isChecked());
    EXPECT_NE(picture(), before);
}

TEST_F(ReportSession, AColumnThatIsAddedComesIntoSightAndNothingElseIsPaintedAnew) {
    widget.resize(500, 500);
    click(4, 2);
    const int before = surface().LeftCol();
    bool shows = false;
    QObject::connect(&grid().events(), &Events::addcolumn, [&] {
        shows = !widget.view().page().cellRect(0, 5).isEmpty();
        surface().takeCosts();
    });
    grid().mnuAddColumn_Click();
    EXPECT_FALSE(shows) << "it was added where nobody sees it";
    settle();
    EXPECT_GT(surface().LeftCol(), before);
    EXPECT_FALSE(widget.view().page().cellRect(0, 5).isEmpty());
    EXPECT_EQ(surface().takeCosts().styleWrites, 0) << "a move to the side";
    EXPECT_EQ(surface().TopRow(), 1);
}

TEST_F(ReportSession, ACaptionIsTypedInGreek) {
    click(4, 2);
    auto& box = tool<QLineEdit>("mnuCaption");
    box.setFocus();
    box.selectAll();
    const QImage before = picture();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("Είδος ασφάλισης"));
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(grid().ColCaption(2), QStringLiteral("Είδος ασφάλισης"));
    EXPECT_EQ(surface().TextMatrix(0, 2), QStringLiteral("Είδος ασφάλισης"));
    EXPECT_NE(picture(), before);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(widget.focusWidget(), &widget.view());
}

TEST_F(ReportSession, AFieldIsPickedInTheList) {
    grid().setRefreshOnChange(true);
    click(4, 2);
    auto& list = tool<QComboBox>("mnuField");
    const int index = list.findText(QStringLiteral("Πελάτης"));
    ASSERT_GE(index, 0);
    list.setFocus();
    while (list.currentIndex() < index)
        QTest::keyClick(&list, Qt::Key_Down);
    while (list.currentIndex() > index)
        QTest::keyClick(&list, Qt::Key_Up);
    settle();
    EXPECT_EQ(grid().ColDataField(2), QStringLiteral("CUSTOMER"));
    EXPECT_EQ(surface().TextMatrix(0, 2), QStringLiteral("Πελάτης"));
    EXPECT_EQ(tool<QLineEdit>("mnuCaption").text(), QStringLiteral("Πελάτης"));
}

TEST_F(ReportSession, AHeadingIsDraggedToAnotherPlace) {
    const QString premium = surface().TextMatrix(4, 3);
    drag(4, 3);
    EXPECT_EQ(port()->cursor().shape(), Qt::DragMoveCursor);
    const QPoint line(widget.view().page().cellRect(0, 3).left(), 60);
    EXPECT_EQ(picture().pixelColor(port()->mapTo(&widget, line)),
              widget.palette().color(QPalette::Highlight));
    drop(3);
    EXPECT_THAT(fields(),
                ElementsAre(QStringLiteral("REGION"), QStringLiteral("BRANCH"), QStringLiteral("CATEGORY"),
                            QStringLiteral("NET"), QStringLiteral("PREMIUM")));
    EXPECT_EQ(surface().TextMatrix(0, 4), QStringLiteral("premium"));
    EXPECT_EQ(surface().TextMatrix(4, 4), premium) << "the data stay under their heading";
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ReportSession, AHeadingIsNotDroppedOnAGroupFactor) {
    const auto before = fields();
    drag(4, 1);
    EXPECT_EQ(port()->cursor().shape(), Qt::ForbiddenCursor);
    const QPoint line(widget.view().page().cellRect(0, 1).left(), 60);
    EXPECT_NE(picture().pixelColor(port()->mapTo(&widget, line)),
              widget.palette().color(QPalette::Highlight));
    drop(1);
    EXPECT_EQ(fields(), before);
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(ReportSession, AGroupFactorOfADetailReportIsNotDragged) {
    drag(1, 0);
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
    drop(0);
    EXPECT_EQ(fields()[0], QStringLiteral("REGION"));
}

TEST_F(ReportSession, TheFactorsOfATotalsReportChangePlaces) {
    load(true);
    host->onMsgBox = [](const ScriptedHost::Message&) { return int(kAnswerYes); };
    drag(1, 0);
    drop(0);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(fields()[0], QStringLiteral("BRANCH"));
    EXPECT_EQ(surface().TextMatrix(0, 0), QStringLiteral("branch"));
}

TEST_F(ReportSession, AColumnMadeNarrowIsRememberedAndItsSortKeepsIt) {
    const Span span = *spanOf(widget.view().page().cols, 2);
    const QPoint border(span.end() - 1, 5);
    QTest::mousePress(port(), Qt::LeftButton, {}, border);
    move(border - QPoint(40, 0));
    QTest::mouseRelease(port(), Qt::LeftButton, {}, border - QPoint(40, 0));
    EXPECT_DOUBLE_EQ(grid().ColWidth(2), (span.size - 40) * 15);
    click(4, 2);
    choose("mnuSort");
    EXPECT_DOUBLE_EQ(grid().ColWidth(2), (span.size - 40) * 15);
}

TEST_F(ReportSession, TheWheelScrollsAndPaintsWhatComes) {
    const QPoint at = cell(4, 2);
    QWheelEvent wheel(at, port()->mapToGlobal(at), {}, {0, -240}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(port(), &wheel);
    settle();
    EXPECT_GT(surface().TopRow(), 1);
}

TEST_F(ReportSession, TheRowOfToolsStaysUsableWhenItIsNarrow) {
    widget.resize(260, 400);
    settle();
    auto& more = tool<QToolButton>("more");
    ASSERT_TRUE(more.isVisible());
    Q_EMIT more.menu()->aboutToShow();
    for (QAction* action : more.menu()->actions())
        if (action->objectName() == QStringLiteral("mnuAlignCenter"))
            action->trigger();
    EXPECT_EQ(grid().ColAlignment(surface().Col()), 3);
}

} // namespace
} // namespace zkp
