#pragma once

#include "surface/row_id.h"

#include <QVariant>

#include <vector>

namespace zkp {

/// What a surface knows of one column besides texts and styles.
struct SurfaceColumn {
    static constexpr int kDefaultWidth = 960; // twips
    static constexpr int kCentred = 4;        // alignment: centre in both directions

    int width = kDefaultWidth; ///< twips
    bool hidden = false;
    bool merge = false;
    int alignment = 0;
    int fixedAlignment = kCentred;
    int dataType = 0;
    QVariant tag;
};

/// The columns by position. Each has an id that stays when it moves, so that moving one touches
/// neither cells nor styles. Ids of columns that are gone are given out again, the lowest first.
class SurfaceColumns {
public:
    int size() const { return static_cast<int>(order_.size()); }
    bool has(int position) const { return static_cast<unsigned>(position) < static_cast<unsigned>(size()); }
    ColumnId id(int position) const { return order_[static_cast<std::size_t>(position)]; }
    const SurfaceColumn& at(int position) const { return columns_[id(position)]; }
    SurfaceColumn& at(int position) { return columns_[id(position)]; }
    const std::vector<ColumnId>& order() const { return order_; }

    void append();
    /// Takes the last column away and says which it was.
    ColumnId removeLast();
    void move(int from, int to);
    /// True when every column stands at one place.
    bool isConsistent() const;

private:
    std::vector<SurfaceColumn> columns_; // by id
    std::vector<ColumnId> order_;        // by position
    std::vector<ColumnId> free_;         // descending
};

} // namespace zkp
