#pragma once

#include "base/bag_font.h"
#include "base/decimal.h"
#include "base/listeners.h"
#include "base/report_locale.h"
#include "surface/cell_binding.h"
#include "surface/cell_range.h"
#include "surface/style.h"

#include <QString>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zkp {

/// Codes of `Sort`.
enum SurfaceSort {
    kSortNone = 0,
    kSortGenericUp = 1,
    kSortGenericDown = 2,
    kSortNumericUp = 3,
    kSortNumericDown = 4,
    kSortTextBlindUp = 5,
    kSortTextBlindDown = 6,
    kSortTextUp = 7,
    kSortTextDown = 8,
    kSortCustom = 9,
};

/// One mouse notification: coordinates in twips, row and column those under the pointer (-1 outside).
struct SurfaceMouse {
    int button = 0; ///< 1 left, 2 right, 4 middle
    int shift = 0;  ///< 1 Shift, 2 Ctrl, 4 Alt
    double x = 0;
    double y = 0;
    int row = -1;
    int col = -1;
};

/// Compares two rows of a custom sort: negative, 0 or positive.
using RowCompare = std::function<int(int row1, int row2)>;

/// What a surface tells its owner (the control), and asks of it. Each may be empty. They run on the
/// caller's stack; one of them may destroy the surface's owner, which must then keep the surface alive
/// itself. They are the owner's alone: whoever else wants to hear is one of the `views`.
struct SurfaceNotifications {
    std::function<void(const SurfaceMouse&)> mouseDown;
    std::function<void(const SurfaceMouse&)> mouseMove;
    std::function<void(const SurfaceMouse&)> mouseUp;
    std::function<void()> click;
    std::function<void()> dblClick;
    std::function<void(int& code, int shift)> keyDown;
    std::function<void(int& code, int shift)> keyUp;
    std::function<void(int& ascii)> keyPress;
    std::function<void()> currentCellChanged;   ///< `Row` or `Col` moved
    std::function<void()> selectionChanged;     ///< the selected range moved
    std::function<void()> selectedAgain;        ///< a user chose the cell that was current already
    std::function<void()> scrolled;             ///< `TopRow` or `LeftCol` moved
    std::function<void()> visibleRowsGrew;      ///< more rows show, with `TopRow` where it was
    std::function<void(int col)> columnResized; ///< -1: all of them
    /// May the heading that was just pressed be dragged? Without it: yes.
    std::function<bool(int col)> mayDragHeading;
    /// A heading was dropped; true lets the surface move the column, false leaves it where it is by then.
    std::function<bool(int from, int to)> headingDropped;
    /// A custom sort of these rows begins: gives what compares them until it has ended. With nothing
    /// given the rows stay as they are.
    std::function<RowCompare(int firstRow, int lastRow)> compare;
};

/// What a view wants to hear, or anybody else who follows what the surface shows. Each may be empty.
/// Called at every change unless `Redraw` is off; when it comes back on, one `changed` covers all that
/// happened meanwhile.
struct SurfaceView {
    std::function<void()> changed = {};           ///< anything: sizes, texts, styles, selection
    std::function<void(int row)> rowChanged = {}; ///< only this row (else `changed` is called)
    std::function<void()> scrolled = {};          ///< only `TopRow` or `LeftCol`
    std::function<void()> focusWanted = {};       ///< SetFocus
    std::function<int()> room = {};               ///< asked: how many body rows fit
};

/// A table of text cells with row and column tags, styles, selection, merge, scroll position and
/// notifications: the plain model behind a visible grid, usable with no view at all.
///
/// Three structures make it fast:
///  - cells of a bound row refer to a record's values and become text when somebody looks; a written
///    cell has text of its own, which wins;
///  - the order of rows is a sequence apart from the rows (RowSequence), so that inserting, removing,
///    sorting and clearing cost what they touch; trailing blank rows are a count;
///  - styles are layers with a running number (StyleLayers): whole surface, column, row, cell; the
///    latest write wins.
///
/// Rows and columns are counted from 0, fixed (heading) rows and columns included. Sizes are twips.
/// An index outside is Error kErrInvalidRow or kErrInvalidColumn.
class GridSurface {
public:
    GridSurface();
    ~GridSurface();
    GridSurface(const GridSurface&) = delete;
    GridSurface& operator=(const GridSurface&) = delete;

    SurfaceNotifications notifications;
    Listeners<SurfaceView> views;

    void setLocale(const ReportLocale& locale);
    const ReportLocale& locale() const;

    // --- Size. 2 rows, 2 columns, 1 fixed row, no fixed column at the start.
    int Rows() const;
    /// Rows are added or removed at the end. Below `FixedRows`, or negative: Error kErrInvalidRow.
    void setRows(int rows);
    int Cols() const;
    void setCols(int cols);
    int FixedRows() const;
    void setFixedRows(int rows);
    int FixedCols() const;
    void setFixedCols(int cols);
    /// Empties all cells (own texts and bindings), row tags included; rows, columns, styles stay.
    void Clear();
    /// Adds a row with text (cells parted by tabs) before `index`, or at the end.
    void AddItem(const QString& text, int index = -1);
    void RemoveItem(int index);

    // --- Cells.
    QString TextMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString& text);
    /// The number that the cell's text is in the locale, exactly; nothing when it is none. Of most bound
    /// cells it is told without making the text.
    std::optional<Decimal> shownNumber(int row, int col) const;
    /// True when no cell of the row shows anything but blanks; makes no text of bound cells.
    bool IsRowBlank(int row) const;
    /// By the flat index row × Cols + col.
    QString TextArray(int index) const;
    void setTextArray(int index, const QString& text);
    /// The current cell, or with `FillStyle` 1 every cell of the selected block on writing.
    QString Text() const;
    void setText(const QString& text);
    int RowData(int row) const;
    void setRowData(int row, int tag);
    QVariant ColData(int col) const;
    void setColData(int col, const QVariant& tag);
    /// The type that `Sort` 1 and 2 go by: 6 (currency) sorts as a number, 0 is not known.
    int ColDataType(int col) const;
    void setColDataType(int col, int type);

    // --- Records. Bound cells show values of immutable columns.
    using LayoutId = std::uint16_t;
    /// One binding for each column in its present order (columns added later are blank). Layouts that
    /// no row uses any more are dropped by setRows(FixedRows) and Clear.
    LayoutId addLayout(std::vector<CellBinding> bindings);
    /// Row `row` becomes that record with that tag; texts written there before are gone.
    void bindRow(int row, LayoutId layout, std::uint32_t tableRow, int rowData);
    /// The same for `count` rows from `firstRow` on, for records `tableRow(0)`, `tableRow(1)`...; with
    /// an empty function for consecutive records from 0. All rows must exist. Cost: count.
    void bindRows(int firstRow, int count, LayoutId layout, const std::function<std::uint32_t(int)>& tableRow,
                  int rowData);

    // --- Columns.
    int ColWidth(int col) const;
    void setColWidth(int col, int twips); ///< 0 is stored as a hidden column by setColHidden, not here
    bool ColHidden(int col) const;
    void setColHidden(int col, bool hidden);
    /// 0 to 8 = left, centre, right × top, centre, bottom; 9 general (numbers right, text left).
    int ColAlignment(int col) const;
    void setColAlignment(int col, int alignment);
    int FixedAlignment(int col) const;
    void setFixedAlignment(int col, int alignment);
    /// Moves a column with its cells, width, styles and tags to another place.
    void setColPosition(int col, int newPosition);
    int RowHeight(int row) const;
    /// -1 as the row sets all rows, present and to come; a negative height is the default.
    void setRowHeight(int row, int twips);
    bool RowHidden(int row) const;

    // --- Merging.
    int MergeCells() const; ///< 0 never, 1 free
    void setMergeCells(int mode);
    bool MergeCol(int col) const;
    void setMergeCol(int col, bool merge);
    bool MergeRow(int row) const;
    void setMergeRow(int row, bool merge);
    /// The block of equal, non-blank neighbours of a column that shows as one cell with (row, col),
    /// looked for between the given rows only. Fixed rows never merge with body rows.
    CellRange mergedRange(int row, int col, int fromRow, int toRow) const;

    // --- Current cell and selection. Moving `Row` or `Col` makes the selection that one cell.
    int Row() const;
    void setRow(int row);
    int Col() const;
    void setCol(int col);
    int RowSel() const;
    void setRowSel(int row);
    int ColSel() const;
    void setColSel(int col);
    /// Row, then column, then the notification once (as a view moves it).
    void Select(int row, int col, int rowSel = -1, int colSel = -1);
    CellRange selection() const;
    int TopRow() const; ///< first body row shown
    void setTopRow(int row);
    int LeftCol() const;
    void setLeftCol(int col);
    /// The last row shown, wholly or partly.
    int BottomRow() const;
    bool RowIsVisible(int row) const;
    /// How many body rows fit; a view sets it. 0 (no view) counts all rows as visible. Told when that
    /// brings more rows into sight.
    int VisibleRows() const;
    void setVisibleRows(int rows);
    /// How many body rows fit into the largest of the views; 0 without one.
    int roomInViews() const;

    // --- Styles. The Cell... properties go to the current cell, or with `FillStyle` 1 to the selected block.
    int FillStyle() const;
    void setFillStyle(int style);
    /// The surface's own colours and font are a section's; all other writes are marks unless they say so.
    void applyStyle(const CellRange& range, const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    CellStyle styleAt(int row, int col) const;
    /// The same with what marks gave of it and no later write has covered.
    MarkedStyle markedStyleAt(int row, int col) const;
    Color BackColor() const; ///< the body; setting it is a write on the whole body
    void setBackColor(Color color);
    Color ForeColor() const;
    void setForeColor(Color color);
    Color BackColorFixed() const;
    void setBackColorFixed(Color color);
    Color ForeColorFixed() const;
    void setForeColorFixed(Color color);
    Color CellBackColor() const;
    void setCellBackColor(Color color);
    Color CellForeColor() const;
    void setCellForeColor(Color color);
    QString CellFontName() const;
    void setCellFontName(const QString& name);
    double CellFontSize() const;
    void setCellFontSize(double points);
    bool CellFontBold() const;
    void setCellFontBold(bool on);
    bool CellFontItalic() const;
    void setCellFontItalic(bool on);
    bool CellFontUnderline() const;
    void setCellFontUnderline(bool on);
    bool CellFontStrikeThrough() const;
    void setCellFontStrikeThrough(bool on);
    /// The surface's own font (a write on the whole surface, heading row included).
    QString FontName() const;
    void setFontName(const QString& name);
    double FontSize() const;
    void setFontSize(double points);
    bool FontBold() const;
    void setFontBold(bool on);
    bool FontItalic() const;
    void setFontItalic(bool on);
    bool FontUnderline() const;
    void setFontUnderline(bool on);
    bool FontStrikethru() const;
    void setFontStrikethru(bool on);
    /// The six of them as one, and one write.
    BagFont Font() const;
    void setFont(const BagFont& font);

    // --- Plain settings that a view reads.
    struct Look {
        Color BackColorBkg = systemColor(kSysButtonShadow);
        Color BackColorSel = systemColor(kSysHighlight);
        Color ForeColorSel = systemColor(kSysHighlightText);
        Color GridColor = systemColor(kSysButtonFace);
        Color GridColorFixed = systemColor(kSysButtonShadow);
        int GridLines = 1;     ///< 0 none, 1 flat, 2 inset, 3 raised
        int GridLineWidth = 1; ///< pixels
        int BorderStyle = 0;
        int FocusRect = 1;     ///< 0 none, 1 light, 2 heavy
        int HighLight = 1;     ///< 0 never, 1 always, 2 with focus
        int SelectionMode = 0; ///< 0 free, 1 by row, 2 by column
        int FontWidth = 0;
        int MousePointer = 0;
        bool AllowBigSelection = false;
        bool Enabled = true;
        QString Tag;
        QVariant Panel; ///< kept for the host; no view reads it
        bool operator==(const Look&) const = default;
    };
    const Look& look() const;
    /// Tells the view once, when anything differs.
    void setLook(const Look& look);

    // --- Sorting: the body rows from Row to RowSel (all of them when both are one row), by the columns
    // Col to ColSel, the left one weighing most. Stable. While a custom comparison runs, rows stand where
    // they stood; when it adds or removes rows, or throws, they stay there.
    void setSort(int code);

    // --- Drawing.
    bool Redraw() const;
    void setRedraw(bool on);
    void Refresh(); ///< tells the view to draw again
    void SetFocus();
    /// Where the surface stands on the control, in twips, and whether it shows.
    struct Place {
        double Left = 0, Top = 0, Width = 0, Height = 0;
        bool Visible = true;
        bool operator==(const Place&) const = default;
    };
    const Place& place() const;
    void setPlace(const Place& place);

    // --- What a user does, as a view (or a script) reports it.
    int MouseRow() const;
    int MouseCol() const;
    void userPress(const SurfaceMouse& mouse);
    void userMove(const SurfaceMouse& mouse);
    void userRelease(const SurfaceMouse& mouse);
    void userClick(int row, int col);
    void userDblClick(int row, int col);
    void userKey(int code, int shift);
    void userKeyUp(int code, int shift);
    void userChar(int ascii);
    /// The current cell moves (notified), then the selection (notified); or the cell is selected again.
    void userSelect(int row, int col);
    void userScroll(int topRow, int leftCol);
    /// -1 as the column gives that width to all that are not hidden.
    void userResizeColumn(int col, int twips);
    /// Whether the owner lets the heading go that was just pressed.
    bool mayDragHeading(int col) const;
    /// An accepted drop moves the column; one outside the columns is nothing.
    void userDrop(int from, int to);

    /// What the structures were asked to do since the last call, for the tests of their cost.
    struct Costs {
        std::int64_t rowsTouched = 0;
        std::int64_t styleWrites = 0;
        std::int64_t textsMade = 0;
        std::int64_t rowsCopied = 0;
    };
    Costs takeCosts();
    /// Empty when all structures agree with one another, else what is wrong (for tests).
    QString inconsistency() const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace zkp
