#pragma once

#include "widgets/grid/grid_navigation.h"

#include <QAccessible>
#include <QPointer>

namespace zkp {

class GridView;

/// One cell to a screen reader. Knows its place only and asks the surface each time, so that it is
/// invalid as soon as the surface, the row or the column has gone.
class CellAccessible : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
public:
    CellAccessible(GridView& view, CellPlace place);

    CellPlace place() const { return place_; }
    GridView* view() const { return view_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return place_.col; }
    int rowIndex() const override { return place_.row; }
    // Merged or not, each row has a cell of its own: a reader hears the group on every row of it.
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

    /// The focus action makes it the current cell, the press action clicks on it.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool isHeading() const;

    QPointer<GridView> view_;
    CellPlace place_;
};

} // namespace zkp
