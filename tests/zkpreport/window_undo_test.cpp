#include "base/texts/columns.h"
#include "base/texts/tools.h"
#include "widgets/tools/reshape_snapshot.h"
#include "window/texts.h"
#include "window_fixture.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

const QString kPremium = QStringLiteral("PREMIUM");

/// Takes a step as a user does, and undoes and redoes it by the keys.
class WindowUndo : public WindowTest {
protected:
    ReshapeSnapshot shape() { return ReshapeSnapshot::of(grid()); }
    QStringList dump() {
        QStringList all;
        const GridSurface& surface = grid().MSFlexGrid1();
        for (int row = 0; row < surface.Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < surface.Cols(); ++col)
                cells += surface.TextMatrix(row, col);
            all += cells.join(u'|');
        }
        return all;
    }
    QAction& action(const char* name) { return part<QAction>(name); }
    void undo() {
        QTest::keyClick(&view(), Qt::Key_Z, Qt::ControlModifier);
        settle();
    }
    void redo() {
        QTest::keyClick(&view(), Qt::Key_Y, Qt::ControlModifier);
        settle();
    }
    void choose(const char16_t* tool) {
        grid().Picture1().click(tool);
        settle();
    }
    void standOn(const QString& field) {
        grid().MSFlexGrid1().userSelect(1, columnOf(field));
        settle();
    }

    void dragHeading(int from, int to) {
        const QPoint start = heading(from);
        const QPoint end = heading(to);
        QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, start);
        for (const QPoint at : {start - QPoint(15, 0), (start + end) / 2, end}) {
            QMouseEvent move(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(view().viewport(), &move);
        }
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, end);
        settle();
    }

    /// One step: it can be undone wholly, redone wholly, and undone again.
    void expectOneStep(const std::function<void()>& step) {
        const ReshapeSnapshot before = shape();
        const QStringList rowsBefore = dump();
        ASSERT_FALSE(action("undo").isEnabled()) << "something was noted already";
        step();
        settle();
        ASSERT_TRUE(QTest::qWaitFor([&] { return action("undo").isEnabled(); }, 1000));
        const ReshapeSnapshot after = shape();
        const QStringList fieldsAfter = captions();
        EXPECT_FALSE(after.isSameShape(before));
        undo();
        EXPECT_TRUE(shape().isSameShape(before));
        EXPECT_EQ(dump(), rowsBefore);
        EXPECT_FALSE(action("undo").isEnabled()) << "it was one step";
        ASSERT_TRUE(action("redo").isEnabled());
        redo();
        EXPECT_TRUE(shape().isSameShape(after));
        EXPECT_EQ(captions(), fieldsAfter);
        undo();
        EXPECT_TRUE(shape().isSameShape(before));
        EXPECT_EQ(dump(), rowsBefore);
        EXPECT_EQ(window->message(), QString());
    }
};

TEST_F(WindowUndo, AFreshReportHasNothingToUndo) {
    ASSERT_TRUE(open());
    EXPECT_FALSE(action("undo").isEnabled());
    EXPECT_FALSE(action("redo").isEnabled());
    const QStringList before = dump();
    undo();
    redo();
    EXPECT_EQ(dump(), before);
}

TEST_F(WindowUndo, AScrollAndASelectionAreNoSteps) {
    ASSERT_TRUE(open());
    QTest::keyClick(&view(), Qt::Key_PageDown);
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ShiftModifier);
    settle();
    EXPECT_FALSE(action("undo").isEnabled());
}

TEST_F(WindowUndo, AnAddedColumn) {
    ASSERT_TRUE(open());
    expectOneStep([&] { choose(u"mnuAddColumn"); });
}

TEST_F(WindowUndo, AnInsertedColumn) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    expectOneStep([&] { choose(u"mnuInsertColumn"); });
}

TEST_F(WindowUndo, ADeletedColumn) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    expectOneStep([&] { choose(u"mnuDelColumn"); });
}

TEST_F(WindowUndo, AnAddedGroupFactor) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY")}}));
    expectOneStep([&] { choose(u"mnuAddGroup"); });
}

TEST_F(WindowUndo, ADeletedGroupFactorThatReadsTheRowsAgain) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY"), QStringLiteral("PRODUCTNAME")}}));
    standOn(QStringLiteral("PRODUCTNAME"));
    host->onMsgBox = [](const ScriptedHost::Message&) { return kAnswerYes; };
    expectOneStep([&] {
        choose(u"mnuDelColumn");
        EXPECT_FALSE(groupList(2).currentData().toString() == QStringLiteral("PRODUCTNAME"))
            << "the list of factors follows";
    });
    EXPECT_EQ(groupList(2).currentData().toString(), QStringLiteral("PRODUCTNAME"));
}

TEST_F(WindowUndo, ADraggedHeading) {
    ASSERT_TRUE(open());
    const int from = columnOf(kPremium);
    expectOneStep([&] {
        dragHeading(from, from - 2);
        EXPECT_EQ(columnOf(kPremium), from - 2);
    });
    EXPECT_EQ(columnOf(kPremium), from);
}

/// The question comes when the columns have moved already, and events go on while it stands.
TEST_F(WindowUndo, ADraggedFactorWithItsQuestionIsOneStep) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY"), QStringLiteral("PRODUCTNAME")}, true}));
    int asked = 0;
    host->onMsgBox = [&](const ScriptedHost::Message&) {
        ++asked;
        QDialog box(window.get());
        QTimer::singleShot(120, &box, &QDialog::accept);
        box.exec();
        QApplication::setActiveWindow(window.get()); // as a window manager does
        return kAnswerYes;
    };
    expectOneStep([&] {
        dragHeading(1, 0);
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(grid().ColDataField(0), QStringLiteral("PRODUCTNAME"));
        // The lists follow when the report is looked at next, soon after the box has gone.
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return groupList(1).currentData().toString() == QStringLiteral("PRODUCTNAME"); }, 1000));
    });
    EXPECT_EQ(grid().ColDataField(0), QStringLiteral("CATEGORY"));
}

/// A load lets events in once, while the columns are the new ones and the rows are not.
TEST_F(WindowUndo, ALoadThatLetsEventsInIsNoStepOfItsOwn) {
    ASSERT_TRUE(open());
    host->onPendingEvents = [] { settle(); };
    const int col = columnOf(kPremium);
    grid().MSFlexGrid1().Select(1, col, 500, col);
    QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier);
    part<QLineEdit>("findText").setText(QStringLiteral("ουδαμού"));
    view().setFocus();
    grid().MSFlexGrid1().userSelect(1, col);
    expectOneStep([&] { choose(u"mnuSortDesc"); });
}

TEST_F(WindowUndo, APaletteIsNoStepAndEndsThoseBefore) {
    ASSERT_TRUE(open());
    choose(u"mnuAddColumn");
    QPalette dark = window->palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    window->setPalette(dark);
    settle();
    EXPECT_FALSE(action("undo").isEnabled());
}

TEST_F(WindowUndo, AResizedColumn) {
    ASSERT_TRUE(open());
    expectOneStep([&] {
        const Span border = *spanOf(view().page().cols, columnOf(kPremium));
        const QPoint edge(border.end() - 1, heading(0).y());
        QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        for (const int by : {10, 25, 40}) {
            const QPoint at = edge + QPoint(by, 0);
            QMouseEvent move(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(view().viewport(), &move);
        }
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, edge + QPoint(40, 0));
    });
}

TEST_F(WindowUndo, ATypedCaption) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    expectOneStep([&] {
        for (const char16_t* typed : {u"Μ", u"Μι", u"Μικτά"}) {
            grid().Picture1().changeText(u"mnuCaption", QString::fromUtf16(typed));
            settle();
        }
        EXPECT_EQ(grid().TextMatrix(0, columnOf(kPremium)), QStringLiteral("Μικτά"));
    });
}

TEST_F(WindowUndo, AnotherField) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    const Tool& fields = grid().Picture1().Bands(u"BndTemplate").Tools(u"mnuField");
    ASSERT_GT(fields.ListCount(), 2);
    const int other = fields.ListIndex == 0 ? 1 : 0;
    expectOneStep([&] {
        grid().Picture1().changeList(u"mnuField", other);
        settle();
        EXPECT_NE(grid().ColDataField(grid().MSFlexGrid1().Col()), kPremium);
    });
}

TEST_F(WindowUndo, AnAlignment) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    expectOneStep([&] { choose(u"mnuAlignCenter"); });
}

TEST_F(WindowUndo, AColour) {
    ASSERT_TRUE(open());
    host->onColorDialog = [](std::uint32_t) { return std::optional<std::uint32_t>(0x80FF80); };
    expectOneStep([&] {
        choose(u"mnuDetailsBackColor");
        EXPECT_EQ(grid().MSFlexGrid1().styleAt(2, 1).backColor, 0x80FF80u);
    });
    EXPECT_NE(grid().MSFlexGrid1().styleAt(2, 1).backColor, 0x80FF80u) << "the rows are painted again";
}

TEST_F(WindowUndo, AFont) {
    ASSERT_TRUE(open());
    host->onFontDialog = [](const FontChoice& start) {
        FontChoice choice = start;
        choice.FontItalic = true;
        choice.FontSize = 12;
        return std::optional(choice);
    };
    expectOneStep([&] { choose(u"mnuFixedFont"); });
    EXPECT_FALSE(grid().MSFlexGrid1().styleAt(0, 1).italic);
}

TEST_F(WindowUndo, ATitle) {
    ASSERT_TRUE(open());
    host->onInputBox = [](const QString&, const QString&, const QString&) {
        return std::optional(QStringLiteral("Συμβόλαια"));
    };
    expectOneStep([&] { choose(u"mnuTitle"); });
}

TEST_F(WindowUndo, ASortByAHeading) {
    ASSERT_TRUE(open());
    expectOneStep([&] {
        clickHeading(columnOf(kPremium));
        EXPECT_EQ(grid().TextMatrix(0, columnOf(kPremium)),
                  texts::sortedHeading(grid().ColCaption(columnOf(kPremium)), false));
    });
    EXPECT_EQ(grid().TextMatrix(0, columnOf(kPremium)), grid().ColCaption(columnOf(kPremium)));
}

TEST_F(WindowUndo, ASortByTheMenu) {
    ASSERT_TRUE(open({{}, {}, QStringLiteral("PREMIUM>100")}));
    standOn(kPremium);
    const int records = recordCount();
    expectOneStep([&] {
        choose(u"mnuSortDesc");
        EXPECT_EQ(grid().TextMatrix(0, columnOf(kPremium)),
                  texts::sortedHeading(grid().ColCaption(columnOf(kPremium)), true));
        EXPECT_EQ(recordCount(), records);
    });
}

TEST_F(WindowUndo, TwentyStepsAndMore) {
    ASSERT_TRUE(open());
    std::vector<QStringList> seen{captions()};
    for (int step = 0; step < 25; ++step) {
        choose(u"mnuAddColumn");
        seen.push_back(captions());
    }
    for (std::size_t step = seen.size() - 1; step > 0; --step) {
        EXPECT_EQ(captions(), seen[step]);
        undo();
    }
    EXPECT_EQ(captions(), seen.front());
    EXPECT_FALSE(action("undo").isEnabled());
}

TEST_F(WindowUndo, StepsOfTwoKindsGoInTheirOrder) {
    ASSERT_TRUE(open());
    standOn(kPremium);
    choose(u"mnuAlignCenter");
    standOn(QStringLiteral("POLICYNO"));
    choose(u"mnuDelColumn");
    undo();
    EXPECT_NO_FATAL_FAILURE(columnOf(QStringLiteral("POLICYNO")));
    EXPECT_EQ(grid().ColAlignment(columnOf(kPremium)), 3);
    undo();
    EXPECT_NE(grid().ColAlignment(columnOf(kPremium)), 3);
}

TEST_F(WindowUndo, TheFilterStaysInForce) {
    ASSERT_TRUE(open({{}, QStringLiteral("P0019"), QStringLiteral("PREMIUM>100")}));
    const QStringList before = rows();
    standOn(kPremium);
    choose(u"mnuDelColumn");
    choose(u"mnuRefresh");
    EXPECT_EQ(rows().size(), before.size()) << "the user's refresh reads the same rows";
    choose(u"mnuRefresh");
    EXPECT_EQ(rows().size(), before.size());
    undo();
    EXPECT_EQ(rows(), before);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowUndo, AnotherFilterReadsAReshapedReport) {
    ASSERT_TRUE(open());
    choose(u"mnuAddColumn"); // from now on changes read nothing
    applyFilter(QStringLiteral("PREMIUM>1000"));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIES WHERE PREMIUM>1000")));
}

TEST_F(WindowUndo, AnotherReportBeginsWithoutSteps) {
    ASSERT_TRUE(open());
    choose(u"mnuAddColumn");
    EXPECT_TRUE(action("undo").isEnabled());
    chooseReport(1);
    settle();
    EXPECT_FALSE(action("undo").isEnabled());
}

TEST_F(WindowUndo, TheMenuNamesTheStep) {
    ASSERT_TRUE(open());
    const auto undoText = [&] { return action("undo").text(); };
    const auto named = [](const QString& step) { return zkp::texts::ofStep(zkp::texts::undoAction(), step); };
    EXPECT_EQ(undoText(), zkp::texts::undoAction());
    grid().setColCaption(0, QStringLiteral("Άλλος τίτλος"));
    settle();
    EXPECT_EQ(undoText(), named(zkp::texts::stepCaption()));
    dragHeading(1, 3);
    EXPECT_EQ(undoText(), named(zkp::texts::stepMove()));
    grid().MSFlexGrid1().userResizeColumn(0, 2400);
    settle();
    EXPECT_EQ(undoText(), named(zkp::texts::stepWidth()));
    choose(u"mnuAddColumn");
    EXPECT_EQ(undoText(), named(zkp::texts::stepAdd()));
    choose(u"mnuDelColumn");
    EXPECT_EQ(undoText(), named(zkp::texts::stepDelete()));
    undo();
    EXPECT_EQ(undoText(), named(zkp::texts::stepAdd()));
    EXPECT_EQ(action("redo").text(), zkp::texts::ofStep(zkp::texts::redoAction(), zkp::texts::stepDelete()));
}

TEST_F(WindowUndo, AnAddedFactorIsColouredAtOnce) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY")}}));
    choose(u"mnuAddGroup");
    const int added = 1;
    ASSERT_EQ(grid().Cols() > added, true);
    const CellStyle before = grid().MSFlexGrid1().styleAt(1, added);
    grid().DrawInterface();
    EXPECT_EQ(grid().MSFlexGrid1().styleAt(1, added), before) << "nothing is left to be drawn later";
}

TEST_F(WindowUndo, ATextFieldKeepsItsOwnUndo) {
    ASSERT_TRUE(open());
    choose(u"mnuAddColumn");
    const int columns = grid().Cols();
    filter().setFocus();
    QTest::keyClicks(&filter(), QStringLiteral("PREMIUM"));
    QTest::keyClick(&filter(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(filter().text(), QString());
    EXPECT_EQ(grid().Cols(), columns);
}

TEST_F(WindowUndo, PrintingSaysThatItIsNotThereYet) {
    ASSERT_TRUE(open());
    choose(u"mnuPrint");
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages.front().text,
              zkp::texts::notThereYet(grid().Picture1().Tools(u"mnuPrint").Caption));
    EXPECT_EQ(window->message(), QString());
}

} // namespace
