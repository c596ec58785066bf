#pragma once

#include "surface/row_id.h"
#include "surface/row_sequence.h"

#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace zkp {

/// What a surface knows of one row besides texts and styles.
struct RowRecord {
    static constexpr std::uint16_t kDefaultHeight = 0xFFFF;

    std::uint32_t record = 0;              ///< the row in the columns of the layout
    std::int32_t tag = 0;                  ///< RowData
    std::uint16_t layout = 0;              ///< 0: not bound to a record
    std::uint16_t height = kDefaultHeight; ///< twips
    bool operator==(const RowRecord&) const = default;
};

/// The rows by id, in pages that come into being when a row of theirs is written: a million blank
/// rows cost nothing. Ids of rows that are gone are given out again.
class RowTable {
public:
    /// Consecutive ids of blank rows.
    RowRun allocate(int count);
    /// The id of one blank row.
    RowId allocateOne() {
        if (!free_.empty() || next_ % kPageRows == 0)
            return allocate(1).first;
        ++used_;
        return next_++;
    }
    /// The rows are gone; reading their ids again gives blank rows.
    void release(const RowRun& run);
    void clear();
    /// All rows from that id on are gone; those below it are all in use.
    void truncate(RowId limit);

    const RowRecord& at(RowId id) const {
        const Page* page = pages_[id / kPageRows].get();
        return page ? (*page)[id % kPageRows] : kBlank;
    }
    RowRecord& write(RowId id) {
        std::unique_ptr<Page>& page = pages_[id / kPageRows];
        if (!page)
            page = std::make_unique<Page>();
        return (*page)[id % kPageRows];
    }
    /// Record, layout and tag of all rows back to none; heights stay.
    void unbindAll();
    /// Every bound row takes the layout that `f(layout)` gives for its own.
    template <class F>
    void changeLayouts(F f) {
        for (const std::unique_ptr<Page>& page : pages_) {
            if (!page)
                continue;
            for (RowRecord& row : *page)
                if (row.layout != 0)
                    row.layout = f(row.layout);
        }
    }
    /// All heights back to the default.
    void resetHeights();

    /// Ids below this one are or were in use.
    RowId limit() const { return next_; }
    /// How many ids below `limit` are in use.
    int used() const { return used_; }
    const std::vector<RowRun>& freeRuns() const { return free_; }

private:
    static constexpr std::size_t kPageRows = 4096;
    static constexpr RowRecord kBlank{};
    using Page = std::array<RowRecord, kPageRows>;

    void blank(const RowRun& run);

    std::vector<std::unique_ptr<Page>> pages_;
    std::vector<RowRun> free_;
    RowId next_ = 0;
    int used_ = 0;
};

} // namespace zkp
