#pragma once

#include "core/report_rows.h"
#include "widgets/tools/folded_text.h"

#include <vector>

namespace zkp {

/// A cell by row and column of the surface.
struct FoundCell {
    int row = -1;
    int col = -1;
    bool operator==(const FoundCell&) const = default;
};

/// Looks for a text through the body of a report, as it shows or would show, row by row, a few cells at a
/// time, so that whoever drives it can let events in between. It goes round the end to the cell where it
/// began. Cells that show as one count once, by the first of them; hidden columns don't count.
class FindSearch {
public:
    enum class State { Idle, Running, Found, Nothing };

    explicit FindSearch(const ReportRows& rows)
        : report_(rows)
        , surface_(rows.surface()) {}

    /// From a cell on, or back; `withFirst`: that cell itself comes first, else last.
    void start(const FoldedNeedle& needle, FoundCell from, bool forward, bool withFirst);
    /// Looks at so many cells at most. Begins again when rows or columns came or went since.
    State walk(int cells);
    void stop() { state_ = State::Idle; }

    State state() const { return state_; }
    FoundCell found() const { return found_; }
    /// Whether it has gone on from the other end.
    bool hasWrapped() const { return hasWrapped_; }
    /// How much it has looked at, in hundredths of the report.
    int percent() const;

private:
    void begin();
    bool isHit(FoundCell cell) const;
    FoundCell cellAt(std::int64_t place) const;

    ReportRows report_;
    const GridSurface& surface_;
    FoldedNeedle needle_;
    FoundCell from_;
    bool forward_ = true;
    bool withFirst_ = true;

    State state_ = State::Idle;
    int rows_ = 0; // of the surface when the walk began
    std::vector<int> cols_;
    std::int64_t total_ = 0;
    std::int64_t left_ = 0;
    std::int64_t place_ = 0; // the next cell to look at, counted row by row
    bool hasWrapped_ = false;
    FoundCell found_;
};

} // namespace zkp
