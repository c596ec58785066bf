#pragma once

#include "base/bag_font.h"
#include "base/decimal.h"
#include "base/listeners.h"
#include "base/report_locale.h"
#include "surface/cell_binding.h"
#include "surface/cell_range.h"
#include "surface/sort_codes.h"
#include "surface/style.h"
#include "surface/surface_listeners.h"
#include "surface/surface_look.h"
#include "surface/surface_names.def"

#include <QString>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

namespace zkp {

/// How a value of that type is given to a member of a surface.
template <class Type>
using SurfaceArgument = std::conditional_t<std::is_scalar_v<Type>, Type, const Type&>;

/// A table of text cells with row and column tags, styles, selection, merge, scroll position and
/// notifications: the plain model behind a visible grid, usable with no view at all. It is the door to
/// the structures that do the work: it checks what it is given, hands it on and tells who listens.
///
/// Three structures make it fast:
///  - cells of a bound row refer to a record's values and become text when somebody looks; a written
///    cell has text of its own, which wins (SurfaceCells);
///  - the order of rows is a sequence apart from the rows (SurfaceRows, RowSequence), so that inserting,
///    removing, sorting and clearing cost what they touch; trailing blank rows are a count;
///  - styles are layers with a running number (SurfaceStyles, StyleLayers): whole surface, column, row,
///    cell; the latest write wins.
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

    // --- The published names, see surface/surface_names.def for what they mean.
#define ZKP_VALUE(Type, Name, ...)                                                                           \
    Type Name() const;                                                                                       \
    void set##Name(SurfaceArgument<Type> value);
#define ZKP_INDEXED(Type, Name, ...)                                                                         \
    Type Name(int index) const;                                                                              \
    void set##Name(int index, SurfaceArgument<Type> value);
#define ZKP_BY_CELL(Type, Name)                                                                              \
    Type Name(int row, int col) const;                                                                       \
    void set##Name(int row, int col, SurfaceArgument<Type> value);
#define ZKP_ANSWER(Type, Name) Type Name() const;
#define ZKP_ROW_ANSWER(Type, Name) Type Name(int row) const;
#define ZKP_METHOD(Name, parameters, ...) void Name parameters;
#define ZKP_MOUSE(Name, ...) void Name(const SurfaceMouse& mouse);

    ZKP_GRIDSURFACE_VALUES(ZKP_VALUE)
    ZKP_GRIDSURFACE_CURSOR(ZKP_VALUE)
    ZKP_GRIDSURFACE_ANSWERS(ZKP_ANSWER)
    ZKP_GRIDSURFACE_CELL_STYLE(ZKP_VALUE)
    ZKP_GRIDSURFACE_PART_STYLE(ZKP_VALUE)
    ZKP_GRIDSURFACE_OF_COLUMN(ZKP_INDEXED)
    ZKP_GRIDSURFACE_OF_ROW(ZKP_INDEXED)
    ZKP_GRIDSURFACE_ROW_ANSWERS(ZKP_ROW_ANSWER)
    ZKP_GRIDSURFACE_BY_CELL(ZKP_BY_CELL)
    ZKP_GRIDSURFACE_BY_INDEX(ZKP_INDEXED)
    ZKP_GRIDSURFACE_METHODS(ZKP_METHOD)
    ZKP_GRIDSURFACE_MOUSE(ZKP_MOUSE)

#undef ZKP_VALUE
#undef ZKP_INDEXED
#undef ZKP_BY_CELL
#undef ZKP_ANSWER
#undef ZKP_ROW_ANSWER
#undef ZKP_METHOD
#undef ZKP_MOUSE

    /// The font of the whole surface, heading row included: its six properties as one, and one write.
    BagFont Font() const;
    void setFont(const BagFont& font);
    using Look = SurfaceLook;
    const Look& look() const;
    /// Tells the views once, when anything differs.
    void setLook(const Look& look);
    using Place = SurfacePlace;
    const Place& place() const;
    void setPlace(const Place& place);

    // --- Cells.
    /// The number that the cell's text is in the locale, exactly; nothing when it is none. Of most bound
    /// cells it is told without making the text.
    std::optional<Decimal> shownNumber(int row, int col) const;
    /// True when no cell of the row shows anything but blanks; makes no text of bound cells.
    bool IsRowBlank(int row) const;
    /// The block of equal, non-blank neighbours of a column that shows as one cell with (row, col),
    /// looked for between the given rows only. Fixed rows never merge with body rows.
    CellRange mergedRange(int row, int col, int fromRow, int toRow) const;
    CellRange selection() const;
    /// The surface's own colours and font are a section's; all other writes are marks unless they say so.
    void applyStyle(const CellRange& range, const StylePatch& patch, StyleOrigin origin = StyleOrigin::Mark);
    CellStyle styleAt(int row, int col) const;
    /// The same with what marks gave of it and no later write has covered.
    MarkedStyle markedStyleAt(int row, int col) const;

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

    // --- For views.
    /// How many body rows fit into the largest of the views; 0 without one.
    int roomInViews() const;
    /// Whether the owner lets the heading go that was just pressed.
    bool mayDragHeading(int col) const;

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
