#include "ado/connection.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "widgets/access/grid_accessible.h"
#include "widgets/access/spoken_cell.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest/QTest>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace zkp {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

/// The report of a small database, grouped by branch:
/// 1 and 2 details of Αθήνα, 3 their subtotal, 4 a detail of Βόλος, 5 its subtotal, 6 the total.
class Accessible : public testing::Test {
protected:
    Accessible() {
        form.resize(600, 400);
        auto* layout = new QVBoxLayout(&form);
        layout->setContentsMargins({});
        widget = new ZkpGridWidget(host, &form);
        layout->addWidget(widget);
        load();
        form.show();
        form.activateWindow();
        settle();
        view().relays.tellReaders = [this](QAccessibleEvent& event) {
            const char* type = QMetaEnum::fromType<QAccessible::Event>().valueToKey(event.type());
            const QString name = event.accessibleInterface()->text(QAccessible::Name);
            events << QString::fromLatin1(type) + u": "_s + name;
        };
        QAccessible::setActive(true);
        grid().MSFlexGrid1().Refresh();
        settle(); // the first look, before which nothing can have changed
        events.clear();
    }
    ~Accessible() override { QAccessible::setActive(false); }

    void load() {
        connection->Open(u"sqlite:"_s);
        connection->Execute(u"create table P (BRANCH text, AGENT text, PREMIUM money)"_s);
        connection->Execute(u"insert into P values ('Αθήνα', 'Ελένη', 1234.5), ('Αθήνα', null, 10),"
                            "('Βόλος', 'Νίκος', 5)"_s);
        grid().setLocale(QLocale(u"el_GR"_s));
        grid().setCols(3);
        const QStringList captions{u"Κατάστημα"_s, u"Συνεργάτης"_s, u"Ασφάλιστρα"_s};
        const QStringList fields{u"BRANCH"_s, u"AGENT"_s, u"PREMIUM"_s};
        for (int c = 0; c < 3; ++c) {
            grid().setColDataField(c, fields[c]);
            grid().setColCaption(c, captions[c]);
        }
        grid().setColForTot(0, true);
        grid().setColTotals(2, true);
        grid().Fill(connection, u"select * from P order by BRANCH, AGENT desc"_s, ZKP_SQLStatement);
        grid().refresh();
        ASSERT_EQ(grid().Rows(), 7);
    }

    ZkpGrid& grid() { return widget->grid(); }
    GridView& view() { return widget->view(); }
    GridAccessible& table() {
        return dynamic_cast<GridAccessible&>(*QAccessible::queryAccessibleInterface(&view()));
    }
    QAccessibleInterface* cell(int row, int col) { return table().cellAt(row, col); }
    QString said(int row, int col) { return cell(row, col)->text(QAccessible::Name); }
    /// "event: what a reader would say" of all that was told since the last time.
    QStringList told() {
        settle();
        return std::exchange(events, {});
    }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    QWidget form;
    QPointer<ZkpGridWidget> widget;
    QStringList events;
};

TEST_F(Accessible, TheSurfaceIsATableWithAName) {
    EXPECT_EQ(table().role(), QAccessible::Table);
    EXPECT_EQ(table().text(QAccessible::Name), u"Αναφορά"_s);
    EXPECT_EQ(table().rowCount(), 7);
    EXPECT_EQ(table().columnCount(), 3);
    EXPECT_EQ(table().childCount(), 21);
    EXPECT_TRUE(table().state().focusable);
    grid().setPrintCaption(u"Παραγωγή 2026"_s);
    view().viewport()->update();
    grid().MSFlexGrid1().Refresh();
    settle();
    EXPECT_EQ(table().text(QAccessible::Name), u"Παραγωγή 2026"_s) << "the report's title, once it has one";
}

TEST_F(Accessible, ACellSaysItsKindItsCaptionAndItsText) {
    EXPECT_EQ(said(0, 2), u"Επικεφαλίδα, Ασφάλιστρα"_s);
    EXPECT_EQ(said(1, 0), u"Ομάδα, Κατάστημα: Αθήνα"_s);
    EXPECT_EQ(said(1, 1), u"Συνεργάτης: Ελένη"_s) << "a plain detail has no kind";
    EXPECT_EQ(said(1, 2), u"Ασφάλιστρα: 1.234,50"_s);
    EXPECT_EQ(said(2, 1), u"Συνεργάτης: κενό"_s);
    EXPECT_EQ(said(3, 2), u"Υποσύνολο, Ασφάλιστρα: 1.244,50"_s);
    EXPECT_EQ(said(4, 0), u"Ομάδα, Κατάστημα: Βόλος"_s);
    EXPECT_EQ(said(6, 2), u"Σύνολο, Ασφάλιστρα: 1.249,50"_s);
    EXPECT_EQ(cell(3, 2)->text(QAccessible::Value), u"1.244,50"_s);
}

TEST(SpokenCell, WithoutACaptionThereIsTheTextAlone) {
    GridSurface surface;
    surface.setRows(3);
    surface.setTextMatrix(1, 0, u"α"_s);
    EXPECT_EQ(spokenCell(surface, 1, 0), u"α"_s);
    EXPECT_EQ(spokenCell(surface, 1, 1), u"κενό"_s);
    EXPECT_EQ(spokenCell(surface, 0, 0), u"Επικεφαλίδα, κενό"_s);
    surface.setFixedRows(0);
    surface.setTextMatrix(0, 0, u"β"_s);
    EXPECT_EQ(spokenCell(surface, 1, 0), u"α"_s) << "the first row is no heading now";
}

TEST(SpokenCell, OnlyAColumnThatMergesHoldsGroups) {
    GridSurface surface;
    surface.setMergeCol(0, true);
    EXPECT_EQ(cellKind(surface, 1, 0), CellKind::Detail) << "while nothing merges";
    surface.setMergeCells(1);
    EXPECT_EQ(cellKind(surface, 1, 0), CellKind::Group);
    EXPECT_EQ(cellKind(surface, 1, 1), CellKind::Detail);
    surface.setRowData(1, 9);
    EXPECT_EQ(cellKind(surface, 1, 0), CellKind::Subtotal) << "a sum is a sum in all its cells";
}

TEST_F(Accessible, RowsAndColumnsAreDescribed) {
    EXPECT_EQ(table().columnDescription(1), u"Συνεργάτης"_s);
    EXPECT_EQ(table().rowDescription(0), u"Επικεφαλίδα"_s);
    EXPECT_EQ(table().rowDescription(1), u"Λεπτομέρεια"_s);
    EXPECT_EQ(table().rowDescription(5), u"Υποσύνολο"_s);
    EXPECT_EQ(table().rowDescription(6), u"Σύνολο"_s);
    EXPECT_EQ(table().rowDescription(7), QString());
}

TEST_F(Accessible, HeadingsHaveTheirRoleAndCellsKnowTheirs) {
    EXPECT_EQ(cell(0, 1)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(cell(1, 1)->role(), QAccessible::Cell);
    EXPECT_THAT(cell(4, 1)->tableCellInterface()->columnHeaderCells(), ElementsAre(cell(0, 1)));
    EXPECT_THAT(cell(0, 1)->tableCellInterface()->columnHeaderCells(), IsEmpty());
    EXPECT_EQ(cell(4, 1)->tableCellInterface()->table(), &table());
    EXPECT_EQ(cell(4, 1)->parent(), &table());
    EXPECT_EQ(cell(4, 1)->tableCellInterface()->rowIndex(), 4);
    EXPECT_EQ(cell(4, 1)->tableCellInterface()->columnIndex(), 1);
}

TEST_F(Accessible, ChildrenAreCountedRowByRow) {
    EXPECT_EQ(table().child(4 * 3 + 2), cell(4, 2));
    EXPECT_EQ(table().indexOfChild(cell(4, 2)), 14);
    EXPECT_EQ(table().child(21), nullptr);
    EXPECT_EQ(table().child(-1), nullptr);
    EXPECT_EQ(table().cellAt(7, 0), nullptr);
    EXPECT_EQ(table().cellAt(0, 3), nullptr);
}

TEST_F(Accessible, ACellStandsWhereItShows) {
    const QRect place = cell(2, 1)->rect();
    EXPECT_EQ(place.size(), view().page().cellRect(2, 1).size());
    EXPECT_EQ(table().childAt(place.center().x(), place.center().y()), cell(2, 1));
    EXPECT_EQ(table().childAt(-5000, -5000), nullptr);
    EXPECT_FALSE(cell(2, 1)->state().offscreen);
    grid().setRows(400);
    settle();
    EXPECT_TRUE(cell(399, 1)->state().offscreen);
    EXPECT_TRUE(cell(399, 1)->rect().isEmpty());
}

TEST_F(Accessible, TheCurrentCellHasTheFocus) {
    widget->setFocus();
    grid().MSFlexGrid1().Select(2, 1);
    settle();
    ASSERT_TRUE(view().hasFocus());
    EXPECT_EQ(table().focusChild(), cell(2, 1));
    EXPECT_TRUE(cell(2, 1)->state().focused);
    EXPECT_TRUE(cell(2, 1)->state().selected);
    EXPECT_FALSE(cell(2, 2)->state().focused);
    EXPECT_FALSE(cell(0, 1)->state().focusable) << "a heading is no place for the current cell";
}

TEST_F(Accessible, TheSelectionIsTheSurfaces) {
    table().selectRow(2);
    EXPECT_EQ(grid().MSFlexGrid1().selection(), (CellRange{2, 0, 2, 2}));
    EXPECT_THAT(table().selectedRows(), ElementsAre(2));
    EXPECT_TRUE(table().isRowSelected(2));
    EXPECT_EQ(table().selectedCellCount(), 3);
    EXPECT_THAT(table().selectedCells(), ElementsAre(cell(2, 0), cell(2, 1), cell(2, 2)));
    EXPECT_TRUE(table().selectColumn(1));
    EXPECT_THAT(table().selectedColumns(), ElementsAre(1));
    EXPECT_EQ(table().selectedColumnCount(), 1);
    EXPECT_THAT(table().selectedRows(), IsEmpty());
    EXPECT_FALSE(table().isColumnSelected(0));
    EXPECT_FALSE(table().selectRow(0)) << "headings are not selected";
    EXPECT_FALSE(table().selectRow(7));
}

TEST_F(Accessible, ARowSelectionCountsAsWholeRows) {
    GridSurface::Look look = grid().MSFlexGrid1().look();
    look.SelectionMode = 1;
    grid().MSFlexGrid1().setLook(look);
    grid().MSFlexGrid1().Select(2, 1, 3, 1);
    EXPECT_THAT(table().selectedRows(), ElementsAre(2, 3));
    EXPECT_TRUE(cell(3, 2)->state().selected);
}

TEST_F(Accessible, ACellCanBeMadeCurrentAndClicked) {
    int clicks = 0;
    QObject::connect(&grid().events(), &Events::Click, widget, [&] { ++clicks; });
    cell(4, 2)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(grid().Row(), 4);
    EXPECT_EQ(grid().Col(), 2);
    EXPECT_EQ(clicks, 0);
    cell(2, 1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_EQ(clicks, 1);
    cell(0, 2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(grid().MSFlexGrid1().MouseRow(), 0);
    EXPECT_EQ(grid().Row(), 2) << "a heading is clicked, not chosen";
}

TEST_F(Accessible, AMoveOfTheCurrentCellIsTold) {
    widget->setFocus();
    grid().MSFlexGrid1().Select(1, 1);
    told();
    QTest::keyClick(&view(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_THAT(told(), ElementsAre(u"Focus: Υποσύνολο, Συνεργάτης: κενό"_s,
                                    u"Selection: Υποσύνολο, Συνεργάτης: κενό"_s))
        << "once for all moves since the last time";
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_THAT(told(), ElementsAre(u"SelectionWithin: Αναφορά"_s));
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(Accessible, TheCurrentCellIsToldWhenTheSurfaceGetsTheFocus) {
    grid().MSFlexGrid1().Select(1, 1);
    settle();
    view().clearFocus();
    told();
    view().setFocus();
    EXPECT_THAT(told(), ElementsAre(u"Focus: Συνεργάτης: Ελένη"_s));
}

TEST_F(Accessible, WithoutTheFocusNoCellIsSaidToHaveIt) {
    view().clearFocus();
    told();
    grid().MSFlexGrid1().Select(4, 1);
    EXPECT_THAT(told(), ElementsAre(u"Selection: Συνεργάτης: Νίκος"_s));
}

TEST_F(Accessible, AnotherReportIsToldAndItsOldCellsAreDropped) {
    cell(1, 1);
    cell(2, 1);
    EXPECT_EQ(table().cellsMade(), 2);
    view().clearFocus();
    told();
    grid().refresh(); // just as many rows
    EXPECT_THAT(told(), testing::Contains(u"TableModelChanged: Αναφορά"_s).Times(1));
    EXPECT_EQ(table().cellsMade(), 0);
    cell(1, 1);
    grid().setRows(5);
    EXPECT_THAT(told(), testing::Contains(u"TableModelChanged: Αναφορά"_s).Times(1));
    EXPECT_EQ(table().cellsMade(), 0);
}

TEST_F(Accessible, ACellThatHasGoneIsInvalid) {
    QAccessibleInterface* last = cell(6, 2);
    const QAccessible::Id id = QAccessible::uniqueId(last);
    grid().setRows(4);
    EXPECT_FALSE(last->isValid());
    EXPECT_TRUE(last->state().invalid);
    EXPECT_EQ(last->text(QAccessible::Name), QString());
    EXPECT_TRUE(last->rect().isEmpty());
    EXPECT_FALSE(last->tableCellInterface()->isSelected());
    EXPECT_THAT(last->actionInterface()->actionNames(), IsEmpty());
    EXPECT_EQ(table().indexOfChild(last), -1);
    settle();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr) << "dropped when the change is told";
}

TEST_F(Accessible, WithoutTheControlTheTableIsEmpty) {
    QAccessible::setActive(false); // nobody is told, so nothing is dropped
    QAccessibleInterface* one = cell(1, 1);
    delete &grid();
    EXPECT_FALSE(one->isValid());
    EXPECT_EQ(one->text(QAccessible::Name), QString());
    EXPECT_THAT(one->tableCellInterface()->columnHeaderCells(), IsEmpty());
    one->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(table().childCount(), 0);
    EXPECT_EQ(table().cellAt(1, 1), nullptr);
    EXPECT_EQ(table().focusChild(), nullptr);
    EXPECT_EQ(table().childAt(10, 60), nullptr);
    EXPECT_EQ(table().selectedCellCount(), 0);
    EXPECT_THAT(table().selectedCells(), IsEmpty());
    EXPECT_FALSE(table().selectRow(1));
    EXPECT_FALSE(table().isRowSelected(0));
    QTest::keyClick(&view(), Qt::Key_F10, Qt::ShiftModifier);
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
}

TEST_F(Accessible, CellsGoWithTheWindow) {
    const QAccessible::Id one = QAccessible::uniqueId(cell(1, 1));
    const QAccessible::Id all = QAccessible::uniqueId(&table());
    delete widget;
    settle();
    EXPECT_EQ(QAccessible::accessibleInterface(one), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(all), nullptr);
}

TEST_F(Accessible, AClickThatDestroysTheWindowEndsQuietly) {
    QObject::connect(&grid().events(), &Events::Click, &form, [this] { delete widget.data(); });
    cell(1, 1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(widget.isNull());
}

TEST_F(Accessible, AMillionRowsCostOnlyTheCellsThatAreAskedFor) {
    grid().setRows(1'000'001);
    settle();
    grid().MSFlexGrid1().takeCosts();
    EXPECT_EQ(table().childCount(), 3'000'003);
    EXPECT_EQ(table().rowCount(), 1'000'001);
    EXPECT_EQ(table().selectedCellCount(), 1);
    const int before = table().cellsMade();
    EXPECT_LE(before, 1) << "the current cell, when it was told";
    QAccessibleInterface* far = table().child(3'000'002);
    EXPECT_EQ(table().indexOfChild(far), 3'000'002);
    EXPECT_EQ(far->text(QAccessible::Name), u"Ασφάλιστρα: κενό"_s);
    EXPECT_EQ(table().cellsMade(), before + 1);
    EXPECT_LE(grid().MSFlexGrid1().takeCosts().textsMade, 2);
}

TEST_F(Accessible, OfAHugeSelectionTheFirstCellsAreHandedOut) {
    grid().setRows(1'000'001);
    grid().MSFlexGrid1().Select(1, 0, 1'000'000, 2);
    settle();
    EXPECT_EQ(table().selectedCellCount(), 3'000'000);
    EXPECT_EQ(table().selectedCells().size(), GridAccessible::kMostSelected);
    EXPECT_EQ(table().selectedRowCount(), 1'000'000);
    EXPECT_EQ(table().cellsMade(), GridAccessible::kMostSelected);
}

TEST_F(Accessible, AReaderThatWalksTheWholeReportDoesNotFillTheMemory) {
    grid().setRows(10'000);
    settle();
    for (int row = 0; row < 10'000; ++row) {
        cell(row, 0);
        if (row % 100 == 0)
            QApplication::processEvents();
    }
    EXPECT_LE(table().cellsMade(), GridAccessible::kMostCells + 100);
}

TEST_F(Accessible, NobodyIsToldAnythingWhileNobodyListens) {
    QAccessible::setActive(false);
    grid().MSFlexGrid1().Select(4, 1);
    grid().setRows(5);
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(Accessible, TheToolsHaveNamesTipsAndStates) {
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(&widget->band());
    EXPECT_EQ(row->role(), QAccessible::ToolBar);
    EXPECT_EQ(row->text(QAccessible::Name), u"Εργαλεία"_s);
    int buttons = 0;
    for (QToolButton* button : widget->band().findChildren<QToolButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_NE(button->focusPolicy() & Qt::TabFocus, 0);
        ++buttons;
    }
    EXPECT_GT(buttons, 0);
    for (QComboBox* list : widget->band().findChildren<QComboBox*>())
        EXPECT_EQ(QAccessible::queryAccessibleInterface(list)->text(QAccessible::Name), u"Πεδίο"_s);
    for (QLineEdit* box : widget->band().findChildren<QLineEdit*>())
        EXPECT_FALSE(box->accessibleName().isEmpty());
}

} // namespace
} // namespace zkp
