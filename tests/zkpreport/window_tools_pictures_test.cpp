// Pictures for the eye of what stands around a report: the find line with its marks, the sums in the status
// line, the progress of a load. Under the build folder: pictures/*.png.

#include "base/texts/tools.h"
#include "window_picture_fixture.h"

#include <QInputMethodEvent>

namespace {

class ToolsPictures : public WindowPictureTest {
protected:
    void find(const QString& text) {
        QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier);
        settle();
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&part<QLineEdit>("findText"), &event);
        settle();
    }
};

TEST_F(ToolsPictures, TheFindLineAndTheMarks) {
    ASSERT_TRUE(open());
    find(QStringLiteral("πατρα"));
    paint("window_find");
    paint("window_find_200", 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3, Qt::ShiftModifier);
    paint("window_find_end");
}

TEST_F(ToolsPictures, MarksOverGroups) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("REGION"), QStringLiteral("BRANCH")}}));
    find(QStringLiteral("αθήνα"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    paint("window_find_groups");
    QPalette dark = window->palette();
    dark.setColor(QPalette::Window, QColor(45, 45, 48));
    dark.setColor(QPalette::WindowText, QColor(220, 220, 220));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(220, 220, 220));
    dark.setColor(QPalette::Button, QColor(53, 53, 56));
    dark.setColor(QPalette::ButtonText, QColor(220, 220, 220));
    window->setPalette(dark);
    paint("window_find_dark");
}

TEST_F(ToolsPictures, TheSumsOfASelection) {
    ASSERT_TRUE(open());
    const int col = columnOf(QStringLiteral("PREMIUM"));
    grid().MSFlexGrid1().userSelect(3, col - 1);
    grid().MSFlexGrid1().Select(3, col - 1, 12, col);
    paint("window_sums");
    paint("window_sums_200", 2);
}

TEST_F(ToolsPictures, TheProgressOfALoad) {
    ASSERT_TRUE(open());
    settle();
    part<QLabel>("loadProgress")
        .setText(zkp::texts::rowsReadAtRate(QStringLiteral("640.000"), QStringLiteral("812.500")));
    paint("window_progress");
}

} // namespace
