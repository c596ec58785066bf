#include "report_session.h"

namespace zkp {
namespace {

TEST_F(ReportSession, ARightPressChoosesTheColumnAndOpensItsMenu) {
    QTest::mousePress(port(), Qt::RightButton, {}, cell(4, 3));
    settle();
    EXPECT_EQ(surface().Col(), 3);
    ASSERT_NE(menu(), nullptr);
    QStringList captions;
    for (const QAction* action : menu()->actions())
        captions += action->text();
    EXPECT_EQ(captions, (QStringList{QStringLiteral("Στήλη"), QStringLiteral("Μορφοποίηση"),
                                     QStringLiteral("Υπόδειγμα"), QStringLiteral("Γράφημα"),
                                     QStringLiteral("Ταξινόμηση")}));
    EXPECT_FALSE(menu()->actions()[3]->isEnabled()) << "no chart of a detail report";
}

TEST_F(ReportSession, TheMenuKeyOpensTheMenuBelowTheCurrentCell) {
    click(4, 3);
    openMenuByKey();
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->pos(), port()->mapToGlobal(widget.view().page().cellRect(4, 3).bottomLeft()));
    key(Qt::Key_Escape);
    EXPECT_EQ(menu(), nullptr);
    QTest::keyClick(&widget.view(), Qt::Key_F10, Qt::ShiftModifier);
    settle();
    EXPECT_NE(menu(), nullptr);
}

TEST_F(ReportSession, AColumnIsDeletedByKeysAlone) {
    click(4, 2);
    openMenuByKey();
    chooseEntry("mnuColumn");
    chooseEntry("mnuDelColumn");
    EXPECT_THAT(fields(), ElementsAre(QStringLiteral("REGION"), QStringLiteral("BRANCH"),
                                      QStringLiteral("PREMIUM"), QStringLiteral("NET")));
    EXPECT_EQ(surface().Cols(), 4);
}

TEST_F(ReportSession, AColourIsChosenByKeysThreeMenusDeep) {
    host->onColorDialog = [](std::uint32_t) { return std::optional<std::uint32_t>(0x00FF00FF); };
    click(4, 2);
    const QImage before = picture();
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuBackColor");
    chooseEntry("mnuFixedBackColor");
    EXPECT_EQ(grid().BackColorFixed(), 0x00FF00FFu);
    const QPoint heading = widget.view().page().cellRect(0, 2).bottomRight() - QPoint(3, 3);
    const QImage after = picture();
    EXPECT_EQ(after.pixelColor(port()->mapTo(&widget, heading)), QColor(255, 0, 255));
    EXPECT_NE(before, after);
}

TEST_F(ReportSession, ACancelledColourChangesNothing) {
    const auto before = grid().BackColorFixed();
    host->onColorDialog = [](std::uint32_t) { return std::optional<std::uint32_t>(); };
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuBackColor");
    chooseEntry("mnuFixedBackColor");
    EXPECT_EQ(grid().BackColorFixed(), before);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(ReportSession, AFontIsChosenForTheHeadings) {
    host->onFontDialog = [](const FontChoice& start) {
        FontChoice chosen = start;
        chosen.FontSize = 16;
        return std::optional<FontChoice>(chosen);
    };
    const QImage before = picture();
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuFonts");
    chooseEntry("mnuFixedFont");
    EXPECT_DOUBLE_EQ(grid().FixedFontSize(), 16);
    EXPECT_NE(picture(), before);
}

TEST_F(ReportSession, WhatIsNotBuiltYetSaysSo) {
    click(4, 2);
    choose("ExportToExcel");
    EXPECT_THAT(boxes(), ElementsAre(QStringLiteral("Δεν υπάρχει ακόμη: Export")));
}

TEST_F(ReportSession, AnEmptyControlTakesEveryToolWithoutHarm) {
    ZkpGridWidget empty(host);
    empty.resize(1400, 300);
    empty.show();
    settle();
    for (auto* button : empty.band().findChildren<QToolButton*>())
        if (button->isVisible() && button->popupMode() != QToolButton::InstantPopup)
            QTest::mouseClick(button, Qt::LeftButton, {}, {6, 8});
    settle();
    EXPECT_FALSE(empty.grab().isNull());
}

} // namespace
} // namespace zkp
