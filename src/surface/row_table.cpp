#include "surface/row_table.h"

#include <algorithm>

namespace zkp {

RowRun RowTable::allocate(int count) {
    used_ += count;
    if (!free_.empty() && free_.back().count >= count) {
        RowRun& last = free_.back();
        const RowRun taken{last.first, count};
        last.first += static_cast<RowId>(count);
        last.count -= count;
        if (last.count == 0)
            free_.pop_back();
        return taken;
    }
    const RowRun taken{next_, count};
    next_ += static_cast<RowId>(count);
    const std::size_t pages = (next_ + kPageRows - 1) / kPageRows;
    if (pages > pages_.size())
        pages_.resize(pages);
    return taken;
}

void RowTable::release(const RowRun& run) {
    blank(run);
    used_ -= run.count;
    const RowId end = run.first + static_cast<RowId>(run.count);
    if (used_ == 0) {
        clear();
    } else if (end == next_) {
        next_ = run.first;
    } else if (!free_.empty() && end == free_.back().first) {
        free_.back().first = run.first;
        free_.back().count += run.count;
    } else if (!free_.empty() && free_.back().first + static_cast<RowId>(free_.back().count) == run.first) {
        free_.back().count += run.count;
    } else {
        free_.push_back(run);
    }
}

/// Whole pages are given back; only the ends of the run are written row by row.
void RowTable::blank(const RowRun& run) {
    const RowId end = run.first + static_cast<RowId>(run.count);
    for (RowId id = run.first; id < end;) {
        const RowId pageEnd = static_cast<RowId>((id / kPageRows + 1) * kPageRows);
        const RowId stop = std::min(end, pageEnd);
        std::unique_ptr<Page>& page = pages_[id / kPageRows];
        if (page && id % kPageRows == 0 && stop == pageEnd)
            page.reset();
        else if (page)
            std::fill(page->begin() + id % kPageRows, page->begin() + (stop - 1) % kPageRows + 1,
                      RowRecord{});
        id = stop;
    }
}

void RowTable::clear() {
    pages_.clear();
    free_.clear();
    next_ = 0;
    used_ = 0;
}

void RowTable::truncate(RowId limit) {
    blank({limit, static_cast<int>(next_ - limit)});
    free_.clear();
    next_ = limit;
    used_ = static_cast<int>(limit);
}

void RowTable::unbindAll() {
    for (const std::unique_ptr<Page>& page : pages_) {
        if (!page)
            continue;
        for (RowRecord& row : *page)
            row = RowRecord{0, 0, 0, row.height};
    }
}

void RowTable::resetHeights() {
    for (const std::unique_ptr<Page>& page : pages_) {
        if (!page)
            continue;
        for (RowRecord& row : *page)
            row.height = RowRecord::kDefaultHeight;
    }
}

} // namespace zkp
