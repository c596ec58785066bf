#include "widgets/access/grid_accessible.h"

#include "widgets/access/cell_accessible.h"
#include "widgets/access/spoken_cell.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/grid/surface_selection.h"

#include <limits>
#include <numeric>

namespace zkp {

namespace {

int clamped(qint64 count) {
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (className == QLatin1String(GridView::staticMetaObject.className()))
        return new GridAccessible(*qobject_cast<GridView*>(object));
    if (className == QLatin1String(BandBar::staticMetaObject.className()))
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::ToolBar);
    return nullptr;
}

QList<int> numbers(int first, int count) {
    QList<int> list(count);
    std::iota(list.begin(), list.end(), first);
    return list;
}

} // namespace

void GridAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

GridAccessible::GridAccessible(GridView& view)
    : QAccessibleWidget(&view, QAccessible::Table)
    , view_(view) {}

/// The view may be gone already.
GridAccessible::~GridAccessible() {
    dropCells();
}

const GridSurface* GridAccessible::surface() const {
    return object() ? view_.surface() : nullptr;
}

bool GridAccessible::has(CellPlace place) const {
    return place.row >= 0 && place.row < rowCount() && place.col >= 0 && place.col < columnCount();
}

int GridAccessible::rowCount() const {
    return surface() ? surface()->Rows() : 0;
}

int GridAccessible::columnCount() const {
    return surface() ? surface()->Cols() : 0;
}

int GridAccessible::childCount() const {
    return clamped(qint64(rowCount()) * columnCount());
}

QAccessibleInterface* GridAccessible::child(int index) const {
    const int cols = columnCount();
    return index < 0 || cols == 0 ? nullptr : cellAt(index / cols, index % cols);
}

int GridAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const CellAccessible*>(child);
    if (!cell || cell->view() != &view_ || !has(cell->place()))
        return -1;
    return clamped(qint64(cell->place().row) * columnCount() + cell->place().col);
}

QAccessibleInterface* GridAccessible::cellAt(int row, int column) const {
    if (!has({row, column}))
        return nullptr;
    const std::pair key(row, column);
    if (QAccessibleInterface* made = QAccessible::accessibleInterface(cells_.value(key)))
        return made;
    auto* cell = new CellAccessible(view_, {row, column});
    cells_[key] = QAccessible::registerAccessibleInterface(cell);
    if (cells_.size() == kMostCells + 1)
        dropLater();
    return cell;
}

/// Not at once: whoever asked holds some of them still.
void GridAccessible::dropLater() const {
    QMetaObject::invokeMethod(
        &view_, [view = &view_] { dropCellsOf(*view); }, Qt::QueuedConnection);
}

void GridAccessible::dropCellsOf(GridView& view) {
    if (auto* grid = dynamic_cast<GridAccessible*>(QAccessible::queryAccessibleInterface(&view)))
        grid->dropCells();
}

void GridAccessible::dropCells() {
    const auto dropped = std::exchange(cells_, {});
    for (const QAccessible::Id id : dropped)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* GridAccessible::childAt(int x, int y) const {
    if (!surface())
        return nullptr;
    const QPoint at = view_.viewport()->mapFromGlobal(QPoint(x, y));
    const Span* row = spanAt(view_.page().rows, at.y());
    const Span* col = spanAt(view_.page().cols, at.x());
    return row && col ? cellAt(row->index, col->index) : nullptr;
}

QAccessibleInterface* GridAccessible::focusChild() const {
    return surface() && view_.hasFocus() ? cellAt(surface()->Row(), surface()->Col()) : nullptr;
}

QAccessible::State GridAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    state.extSelectable = true;
    return state;
}

void* GridAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int GridAccessible::selectedCellCount() const {
    if (!surface())
        return 0;
    const CellRange block = selectedBlock(*surface());
    return clamped(qint64(std::max(0, block.bottom - block.top + 1)) *
                   std::max(0, block.right - block.left + 1));
}

QList<QAccessibleInterface*> GridAccessible::selectedCells() const {
    QList<QAccessibleInterface*> list;
    if (!surface())
        return list;
    const CellRange block = selectedBlock(*surface());
    for (int row = block.top; row <= block.bottom; ++row)
        for (int col = block.left; col <= block.right; ++col) {
            if (list.size() == kMostSelected)
                return list;
            list += cellAt(row, col);
        }
    return list;
}

QString GridAccessible::columnDescription(int column) const {
    return has({0, column}) ? columnCaption(*surface(), column) : QString();
}

QString GridAccessible::rowDescription(int row) const {
    return has({row, 0}) ? spokenRow(*surface(), row) : QString();
}

/// The rows that are selected from the first column to the last.
GridAccessible::Lines GridAccessible::wholeRows() const {
    if (!surface())
        return {};
    const CellRange block = selectedBlock(*surface());
    const bool whole = block.left <= surface()->FixedCols() && block.right == columnCount() - 1;
    return whole ? Lines{block.top, std::max(0, block.bottom - block.top + 1)} : Lines{};
}

GridAccessible::Lines GridAccessible::wholeColumns() const {
    if (!surface())
        return {};
    const CellRange block = selectedBlock(*surface());
    const bool whole = block.top <= surface()->FixedRows() && block.bottom == rowCount() - 1;
    return whole ? Lines{block.left, std::max(0, block.right - block.left + 1)} : Lines{};
}

int GridAccessible::selectedRowCount() const {
    return wholeRows().count;
}

int GridAccessible::selectedColumnCount() const {
    return wholeColumns().count;
}

QList<int> GridAccessible::selectedRows() const {
    return numbers(wholeRows().first, wholeRows().count);
}

QList<int> GridAccessible::selectedColumns() const {
    return numbers(wholeColumns().first, wholeColumns().count);
}

bool GridAccessible::isRowSelected(int row) const {
    const Lines rows = wholeRows();
    return row >= rows.first && row < rows.first + rows.count;
}

bool GridAccessible::isColumnSelected(int column) const {
    const Lines columns = wholeColumns();
    return column >= columns.first && column < columns.first + columns.count;
}

bool GridAccessible::selectRow(int row) {
    if (!has({row, 0}) || row < surface()->FixedRows() || surface()->FixedCols() >= columnCount())
        return false;
    view_.selectBlock({row, surface()->FixedCols(), row, columnCount() - 1});
    return true;
}

bool GridAccessible::selectColumn(int column) {
    if (!has({0, column}) || column < surface()->FixedCols() || surface()->FixedRows() >= rowCount())
        return false;
    view_.selectBlock({surface()->FixedRows(), column, rowCount() - 1, column});
    return true;
}

void GridAccessible::modelChange(QAccessibleTableModelChangeEvent*) {
    dropCells();
}

} // namespace zkp
