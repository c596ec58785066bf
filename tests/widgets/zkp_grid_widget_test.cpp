#include "widgets/zkp_grid_widget.h"

#include "host/scripted_host.h"
#include "print_qt.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace zkp {
namespace {

class ZkpGridWidgetTest : public testing::Test {
protected:
    ZkpGridWidgetTest() {
        auto* layout = new QVBoxLayout(&form);
        layout->setContentsMargins({});
        widget = new ZkpGridWidget(host, &form);
        layout->addWidget(widget);
        form.resize(600, 400);
        form.show();
        settle();
        grid().setRows(20);
        settle();
    }
    static void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    ZkpGrid& grid() { return widget->grid(); }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    QWidget form;
    QPointer<ZkpGridWidget> widget;
};

TEST_F(ZkpGridWidgetTest, TheBandStandsOnTopAndTheSurfaceBelowIt) {
    const int band = widget->band().height();
    EXPECT_EQ(widget->band().geometry(), QRect(0, 0, 600, band));
    EXPECT_DOUBLE_EQ(grid().Picture1().Bands(u"BndTemplate").Height, band * 15);
    // 20 twips lie between them: one pixel.
    EXPECT_EQ(widget->view().geometry(), QRect(0, band + 1, 600, 400 - band - 1));
    EXPECT_DOUBLE_EQ(grid().Width(), 600 * 15);
    EXPECT_DOUBLE_EQ(grid().Height(), 400 * 15);
}

TEST_F(ZkpGridWidgetTest, WithoutTheBandTheSurfaceHasItAll) {
    grid().setChoicesVisible(false);
    grid().UserControl_Resize();
    settle();
    EXPECT_FALSE(widget->band().isVisible());
    EXPECT_EQ(widget->view().geometry(), QRect(0, 0, 600, 400));
}

TEST_F(ZkpGridWidgetTest, TheRecordCountShowsAtTheEndOfTheBand) {
    grid().Picture1().Tools(u"txtRecs").Text = QStringLiteral("1234");
    grid().Picture1().Refresh();
    auto* label = widget->band().findChild<QLabel*>(QStringLiteral("txtRecs"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QStringLiteral("1234"));
    EXPECT_GT(label->geometry().right(), 560);
}

TEST_F(ZkpGridWidgetTest, ClicksAndKeysReachTheControlsEvents) {
    int clicks = 0;
    std::vector<int> keys;
    QObject::connect(&grid().events(), &Events::Click, widget, [&] { ++clicks; });
    QObject::connect(&grid().events(), &Events::KeyDown, widget,
                     [&](KeyArgs& args) { keys.push_back(args.KeyCode); });
    QTest::mouseClick(widget->view().viewport(), Qt::LeftButton, {}, {10, 60});
    QTest::keyClick(&widget->view(), Qt::Key_Down);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(keys, std::vector<int>{40});
}

TEST_F(ZkpGridWidgetTest, CtrlWithEndSaysHitBottomAndThenGoesThere) {
    QTest::keyClick(&widget->view(), Qt::Key_End, Qt::ControlModifier);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].text, QStringLiteral("HitBottom"));
    EXPECT_EQ(grid().MSFlexGrid1().Row(), 19);
}

TEST_F(ZkpGridWidgetTest, AWidenedColumnReachesTheColumnRecord) {
    const Span first = widget->view().page().cols[0];
    QWidget* port = widget->view().viewport();
    QTest::mousePress(port, Qt::LeftButton, {}, {first.end() - 1, 5});
    QMouseEvent moved(QEvent::MouseMove, QPoint(first.end() + 39, 5),
                      port->mapToGlobal(QPoint(first.end() + 39, 5)), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(port, &moved);
    QTest::mouseRelease(port, Qt::LeftButton, {}, {first.end() + 39, 5});
    EXPECT_DOUBLE_EQ(grid().ColWidth(0), (first.size + 40) * 15);
}

TEST_F(ZkpGridWidgetTest, RowsThatAScrollOrABiggerWindowBringsIntoSightArePainted) {
    grid().setSourceType(ZKP_RecordSet);
    grid().setRecordSource(QVariant::fromValue(std::make_shared<ado::Recordset>()));
    GridSurface& surface = grid().MSFlexGrid1();
    grid().setRows(200);
    settle();
    const Color mark = 0x112233;
    for (int row = 1; row < 200; ++row) {
        surface.setRowData(row, ZKPSingleRow);
        grid().ReverseCell(row, 0, grid().Cols() - 1, mark, 0);
    }
    const auto isPainted = [&](int row) { return surface.styleAt(row, 0).backColor != mark; };
    const int shown = surface.BottomRow();
    form.resize(600, 600);
    settle();
    EXPECT_GT(surface.BottomRow(), shown);
    EXPECT_TRUE(isPainted(surface.BottomRow()));
    EXPECT_FALSE(isPainted(surface.BottomRow() + 1));
    QTest::keyClick(&widget->view(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(isPainted(199));
    EXPECT_TRUE(isPainted(surface.TopRow()));
    EXPECT_FALSE(isPainted(surface.TopRow() - 1));
}

TEST_F(ZkpGridWidgetTest, TheWidgetMayBeDestroyedWhenMoreRowsArePainted) {
    grid().setSourceType(ZKP_RecordSet);
    grid().setRecordSource(QVariant::fromValue(std::make_shared<ado::Recordset>()));
    grid().setRows(200);
    settle();
    QObject::connect(&grid().events(), &Events::StartInterface, &form, [this] { delete widget.data(); });
    form.resize(600, 600);
    settle();
    EXPECT_TRUE(widget.isNull());
}

TEST_F(ZkpGridWidgetTest, TheControlMayBeDestroyedWhenARowIsChosen) {
    QObject::connect(&grid().events(), &Events::Selecting, &form, [this] { delete &grid(); });
    QTest::mouseClick(widget->view().viewport(), Qt::LeftButton, {}, {10, 60});
    settle();
    EXPECT_FALSE(form.grab().isNull());
}

TEST_F(ZkpGridWidgetTest, TheFocusGoesToTheSurface) {
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    widget->setFocus();
    EXPECT_EQ(form.focusWidget(), &widget->view());
    widget->band().setFocus();
    grid().UserControl_EnterFocus();
    EXPECT_EQ(form.focusWidget(), &widget->view());
}

TEST_F(ZkpGridWidgetTest, TheWidgetMayBeDestroyedInAnEventOfItsControl) {
    QObject::connect(&grid().events(), &Events::Click, &form, [this] { delete widget.data(); });
    QTest::mouseClick(widget->view().viewport(), Qt::LeftButton, {}, {10, 60});
    EXPECT_TRUE(widget.isNull());
}

TEST_F(ZkpGridWidgetTest, TheControlMayBeDestroyedInAnEventOfItsOwn) {
    QObject::connect(&grid().events(), &Events::KeyDown, &form, [this](KeyArgs&) { delete &grid(); });
    QTest::keyClick(&widget->view(), Qt::Key_Down);
    settle();
    EXPECT_FALSE(form.grab().isNull());
    widget->resize(300, 200);
    QTest::keyClick(&widget->view(), Qt::Key_Down);
}

TEST_F(ZkpGridWidgetTest, AnErrorInAHandlerShowsTheBox) {
    QObject::connect(&grid().events(), &Events::Click, &form,
                     [] { throw Error(kErrInvalidCall, QStringLiteral("λάθος")); });
    QTest::mouseClick(widget->view().viewport(), Qt::LeftButton, {}, {10, 60});
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_TRUE(host->messages[0].text.contains(QStringLiteral("ΛΆΘΟΣ")));
}

TEST(ZkpGridWidgetAlone, MakesItsOwnControl) {
    ZkpGridWidget widget;
    widget.resize(300, 200);
    widget.grid().setTextMatrix(0, 0, QStringLiteral("Στήλη"));
    EXPECT_EQ(widget.grid().TextMatrix(0, 0), QStringLiteral("Στήλη"));
    EXPECT_FALSE(widget.grab().isNull());
}

} // namespace
} // namespace zkp
