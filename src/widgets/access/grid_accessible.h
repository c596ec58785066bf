#pragma once

#include "widgets/grid/grid_navigation.h"

#include <QAccessibleWidget>
#include <QHash>

#include <utility>

namespace zkp {

class GridView;

/// The report to a screen reader: a table with the rows and columns of the surface, headings included.
/// Counts are arithmetic, and a cell has an interface only once somebody asks for it; those made are
/// dropped when the report becomes another one, or when they are more than `kMostCells`.
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    static constexpr int kMostCells = 4096;
    static constexpr int kMostSelected = 1024; ///< cells that are handed out as selected, at most

    explicit GridAccessible(GridView& view);
    ~GridAccessible() override;

    /// Makes views and rows of tools known to screen readers, once for the program.
    static void install();

    /// The report of a view has become another one.
    static void dropCellsOf(GridView& view);
    int cellsMade() const { return static_cast<int>(cells_.size()); }

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    // The selection is one block, which another one replaces.
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    struct Lines {
        int first = 0;
        int count = 0;
    };
    const GridSurface* surface() const;
    bool has(CellPlace place) const;
    Lines wholeRows() const;
    Lines wholeColumns() const;
    void dropCells();
    void dropLater() const;

    GridView& view_;
    mutable QHash<std::pair<int, int>, QAccessible::Id> cells_; // by row and column
};

} // namespace zkp
