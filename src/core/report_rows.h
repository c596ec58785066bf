#pragma once

#include "core/section_style.h"
#include "surface/grid_surface.h"

#include <QString>

namespace zkp {

class RowMarking;
struct GroupingState;
struct SourceState;

/// The rows of a report as whoever writes them elsewhere should read them (paper, a spreadsheet, the
/// clipboard, a search): whether a row was ever in sight makes no difference. Only rows in sight are
/// painted on the surface; here any row has what painting would give it, the mark of a blank group factor
/// included, and over it what was written on that row for itself: texts, and the styles of marks that no
/// painting has covered since. The band on the current row is no part of the report: what it covers is
/// given in its place.
///
/// Live and cheap to copy; writes nothing. Each answer costs that cell, and a text is made anew each time
/// (ShownRowReader reads whole rows with each text made once).
class ReportRows {
public:
    ReportRows(const GridSurface& surface, const SourceState& source, const GroupingState& grouping,
               const SectionSettings& sections, const RowMarking& marking)
        : surface_(&surface)
        , source_(&source)
        , grouping_(&grouping)
        , sections_(&sections)
        , marking_(&marking) {}
    /// The rows of a surface that no report is painted on, as they stand there.
    ReportRows(const GridSurface& surface) // NOLINT(google-explicit-constructor): it is one
        : surface_(&surface) {}

    /// Sizes, alignments, widths and numbers: what reads the same for all rows.
    const GridSurface& surface() const { return *surface_; }

    /// The row's `RowData`, which is a ZKPRowKind or a number of the host's.
    int kind(int row) const { return surface_->RowData(row); }
    /// The section that the cell is of; details are all that nothing else is.
    Section section(int row, int col) const;
    QString text(int row, int col) const;
    CellStyle style(int row, int col) const;

    /// True when a cell of that text stands for a value of a row above: a group factor's mark "----".
    bool isRepeatMark(int row, int col, const QString& text) const;
    /// Whether a cell of that text shows as one cell with the one above it. Makes the text of the one above.
    bool joinsAbove(int row, int col, const QString& text) const;
    /// The same when the text above is known.
    bool joins(int row, int col, const QString& text, const QString& above) const;
    /// True when no cell of the row shows anything but blanks. Makes no text of bound cells.
    bool isBlank(int row) const;

private:
    bool isPaintedBody(int row) const;
    bool marksBlankFactors(int row) const;
    int factors() const;
    bool hasRowWalk() const { return surface_->Cols() > factors(); }
    bool canJoin(int row, int col) const;
    CellStyle look(Section section) const { return styleOf(section, *sections_, *surface_); }
    StylePatch paintedOn(int row, int col) const;

    const GridSurface* surface_;
    const SourceState* source_ = nullptr; // null with the others: no report
    const GroupingState* grouping_ = nullptr;
    const SectionSettings* sections_ = nullptr;
    const RowMarking* marking_ = nullptr;
};

} // namespace zkp
