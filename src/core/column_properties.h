#pragma once

#include "core/column_list.h"
#include "core/events.h"
#include "core/properties.def"
#include "surface/grid_surface.h"

#include <QVariant>

namespace zkp {

/// The accessors of one column by its grid position (from 0): each reads or writes a member of the
/// `Columns` entry and reports its key. The family does not check the index: one outside is the
/// collection's own Error kErrSubscript.
class ColumnProperties {
public:
    ColumnProperties(ColumnList& columns, GridSurface& surface, Events& events)
        : columns_(columns)
        , surface_(surface)
        , events_(events) {}

#define ZKP_DECLARE(Type, Name, Member, ...)                                                                 \
    Type Name(int index) const {                                                                             \
        return columns_.ofGridColumn(index).Member;                                                          \
    }                                                                                                        \
    void set##Name(int index, Type value);
    ZKP_COLUMN_PROPERTIES(ZKP_DECLARE)
#undef ZKP_DECLARE

    /// The surface's alignment, not the stored one; 0 for index -1.
    int ColAlignment(int index) const;
    /// Stores the value as it is and passes 7 as 6, 4 as 3, 1 as 0 to the surface; -1 leaves the surface
    /// alone.
    void setColAlignment(int index, int alignment);

    QString ColCaption(int index) const {
        return columns_.ofGridColumn(index).Caption;
    }
    /// Also writes the text into row 0 of the surface.
    void setColCaption(int index, const QString& text);

    /// Always False, whatever was stored; the asymmetry is wanted. Code that needs the value reads `Columns`.
    bool ColCredit(int index) const;
    void setColCredit(int index, bool credit);

    /// The surface's width in twips, not the stored one.
    double ColWidth(int index) const;
    /// 0 hides the column on the surface and keeps the stored width; anything else shows and stores it.
    void setColWidth(int index, double twips);

    /// Brings the collection to a number of entries, from the end. A new one copies the surface's
    /// alignment of the column before it.
    void resize(int count);
    /// The columns that a control shows before anybody gave it some. Any resize makes them the host's.
    void placeInitial(int count);
    /// Drops columns that nobody gave; a saved shape that is read brings its own.
    void dropInitial();

private:
    ColumnList& columns_;
    GridSurface& surface_;
    Events& events_;
    bool initial_ = false;
};

} // namespace zkp
