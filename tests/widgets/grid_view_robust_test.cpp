#include "view_fixture.h"

#include <QScrollBar>

namespace zkp {
namespace {

class GridViewRobust : public ViewTest {};

TEST_F(GridViewRobust, TheViewMayGoAwayInAnyNotification) {
    struct Case {
        const char* what;
        std::function<void(SurfaceNotifications&, std::function<void()>)> listen;
    };
    const Case cases[] = {
        {"mouseDown", [](auto& on, auto gone) { on.mouseDown = [=](const SurfaceMouse&) { gone(); }; }},
        {"mouseMove", [](auto& on, auto gone) { on.mouseMove = [=](const SurfaceMouse&) { gone(); }; }},
        {"mouseUp", [](auto& on, auto gone) { on.mouseUp = [=](const SurfaceMouse&) { gone(); }; }},
        {"click", [](auto& on, auto gone) { on.click = gone; }},
        {"currentCellChanged", [](auto& on, auto gone) { on.currentCellChanged = gone; }},
        {"selectionChanged", [](auto& on, auto gone) { on.selectionChanged = gone; }},
        {"keyDown", [](auto& on, auto gone) { on.keyDown = [=](int&, int) { gone(); }; }},
        {"keyPress", [](auto& on, auto gone) { on.keyPress = [=](int&) { gone(); }; }},
        {"keyUp", [](auto& on, auto gone) { on.keyUp = [=](int&, int) { gone(); }; }},
        {"scrolled", [](auto& on, auto gone) { on.scrolled = gone; }},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        surface->notifications = {};
        auto* doomed = new GridView(*surface);
        doomed->resize(500, 210);
        doomed->show();
        settle();
        const QPointer<GridView> guard(doomed);
        surface->Select(1, 0);
        one.listen(surface->notifications, [guard] { delete guard.data(); });
        const QPointer<QWidget> port(doomed->viewport());
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button) {
            if (!port)
                return;
            QMouseEvent event(type, at, port->mapToGlobal(at), button, button, Qt::NoModifier);
            QApplication::sendEvent(port, &event);
        };
        send(QEvent::MouseButtonPress, cell(3, 2), Qt::LeftButton);
        send(QEvent::MouseMove, cell(3, 2), Qt::LeftButton);
        send(QEvent::MouseButtonRelease, cell(3, 2), Qt::LeftButton);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_End, Qt::ControlModifier, QStringLiteral("x"));
            if (guard)
                QApplication::sendEvent(guard, &event);
        }
        if (guard)
            guard->verticalScrollBar()->setValue(20);
        EXPECT_TRUE(guard.isNull());
        surface->notifications = {};
        surface->setTopRow(1);
    }
}

TEST_F(GridViewRobust, TheSurfaceMayGoAwayBeforeTheView) {
    surface->notifications.mouseDown = [this](const SurfaceMouse&) { view->detach(); };
    click(cell(3, 2));
    surface.reset();
    key(Qt::Key_Down);
    click(cell(3, 2));
    view->resize(300, 100);
    EXPECT_FALSE(picture().isNull());
}

TEST_F(GridViewRobust, TwoViewsShowOneSurface) {
    GridView small(*surface);
    small.resize(500, 110); // the heading, four whole rows and half a one
    small.show();
    settle();
    EXPECT_EQ(surface->VisibleRows(), 10) << "the larger view's";
    surface->setTextMatrix(2, 1, QStringLiteral("κείμενο"));
    EXPECT_TRUE(hasInk(picture(), 2, 1));
    EXPECT_TRUE(hasInk(small.viewport()->grab().toImage(), 2, 1));
    small.verticalScrollBar()->setValue(30);
    settle();
    EXPECT_EQ(view->verticalScrollBar()->value(), 30);
    view.reset();
    settle();
    small.resize(500, 210 + 2 * kRow);
    settle();
    EXPECT_EQ(surface->VisibleRows(), 12) << "its own, once it is alone";
}

TEST_F(GridViewRobust, TwoViewsOfOneSurfaceComeToRest) {
    GridView small(*surface);
    small.resize(500, 110);
    small.show();
    int grown = 0;
    surface->notifications.visibleRowsGrew = [&] {
        ++grown;
        surface->Refresh(); // as the control paints the rows that come into sight
    };
    view->resize(500, 410);
    settle();
    EXPECT_EQ(grown, 1);
    EXPECT_EQ(surface->VisibleRows(), 20);
    int told = 0;
    QObject::connect(view.get(), &GridView::surfaceChanged, view.get(), [&] { ++told; });
    QObject::connect(&small, &GridView::surfaceChanged, &small, [&] { ++told; });
    settle();
    EXPECT_EQ(told, 0);
}

TEST_F(GridViewRobust, ASurfaceEmptiedDuringADragIsLeftAlone) {
    press(cell(0, 3));
    move(cell(0, 1));
    surface->setCols(2);
    release(cell(0, 1));
    EXPECT_EQ(surface->Cols(), 2);
    press(cell(8, 1));
    surface->setRows(1);
    move(cell(9, 1));
    move({150, 400});
    release({150, 400});
    EXPECT_EQ(surface->Rows(), 1);
    EXPECT_EQ(surface->inconsistency(), QString());
}

TEST_F(GridViewRobust, RowsAndColumnsMayGoUnderTheSelection) {
    surface->Select(50, 3, 99, 2);
    surface->setTopRow(90);
    settle();
    surface->setRows(5);
    surface->setCols(1);
    EXPECT_FALSE(picture().isNull());
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Up);
    surface->setRows(1);
    key(Qt::Key_PageDown);
    surface->setFixedRows(0);
    surface->setRows(0);
    key(Qt::Key_Down);
    click(cell(0, 0));
    EXPECT_FALSE(picture().isNull());
    EXPECT_EQ(surface->inconsistency(), QString());
}

TEST_F(GridViewRobust, AWindowWithoutSizeIsNoFailure) {
    view->resize(0, 0);
    settle();
    key(Qt::Key_Down);
    key(Qt::Key_PageDown);
    EXPECT_GE(surface->VisibleRows(), 1);
    view->resize(500, 210);
    EXPECT_FALSE(picture().isNull());
}

TEST_F(GridViewRobust, AHugeTextShowsItsBeginning) {
    surface->setTextMatrix(3, 1, QString(50'000'000, QChar(u'Ω')));
    EXPECT_TRUE(hasInk(picture(), 3, 1));
    EXPECT_FALSE(hasInk(picture(), 3, 2));
}

TEST_F(GridViewRobust, TextsThatAreNoProperUnicodeShowSomething) {
    surface->setTextMatrix(3, 1, QString::fromUtf8("\xFF\xFE abc \xC3"));
    surface->setTextMatrix(4, 1, QString(QChar(0xD83D)));
    surface->setTextMatrix(5, 1, QStringLiteral("\u0301\u0301\u200F"));
    EXPECT_TRUE(hasInk(picture(), 3, 1));
}

TEST_F(GridViewRobust, AnErrorOfAListenerGoesToTheRelay) {
    QStringList failures;
    view->relays.failed = [&](const Error& error) { failures += error.description(); };
    surface->notifications.click = [] { throw Error(kErrInvalidCall, QStringLiteral("λάθος")); };
    click(cell(3, 2));
    EXPECT_EQ(failures, QStringList{QStringLiteral("λάθος")});
    key(Qt::Key_Down);
    EXPECT_EQ(surface->Row(), 4) << "the view goes on working";
}

TEST_F(GridViewRobust, ALongLoadPostsOneEventForAllItsCells) {
    int told = 0;
    QObject::connect(view.get(), &GridView::surfaceChanged, view.get(), [&] { ++told; });
    for (int i = 0; i < 10'000; ++i)
        surface->AddItem(QStringLiteral("α\tβ"));
    settle();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(view->verticalScrollBar()->maximum(), 10'091);
}

} // namespace
} // namespace zkp
