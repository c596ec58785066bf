#pragma once

#include "base/bag_font.h"
#include "surface/style_layers.h"
#include "surface/style_pieces.h"
#include "surface/surface_columns.h"
#include "surface/surface_rows.h"

#include <optional>

namespace zkp {

/// A part of a surface that has colours or a font of its own.
enum class SurfacePart { Whole, Body, Fixed };

/// What the cells of a surface look like: the layers that were written, and what was set for whole parts.
class SurfaceStyles {
public:
    SurfaceStyles(SurfaceRows& rows, const SurfaceColumns& columns)
        : rows_(rows)
        , columns_(columns) {}

    CellStyle at(int row, int col, const SurfaceShape& shape) const {
        return markedAt(row, col, shape).style;
    }
    /// The same with what marks gave of it. Stands until the next question or write.
    const MarkedStyle& markedAt(int row, int col, const SurfaceShape& shape) const {
        return layers_.resolveMarked(rows_.id(row), columns_.id(col), row < shape.fixedRows,
                                     col < shape.fixedCols);
    }
    /// A block inside the surface, its corners in order.
    void write(const CellRange& block, const StylePatch& patch, const SurfaceShape& shape, StyleOrigin origin);

    /// As set for the part last, whatever its cells were given since.
    const CellStyle& ofPart(SurfacePart part) const { return part == SurfacePart::Fixed ? fixed_ : own_; }
    template <class Attribute>
    void setOfPart(SurfacePart part, Attribute CellStyle::*kept,
                   std::optional<Attribute> StylePatch::*written, const Attribute& value) {
        (part == SurfacePart::Fixed ? fixed_ : own_).*kept = value;
        StylePatch patch;
        patch.*written = value;
        writePart(part, patch);
    }
    /// The font of the whole surface, and one write.
    BagFont font() const;
    void setFont(const BagFont& font);

    void forgetRows(const RowRun& run) { layers_.clearRows(run); }
    void forgetColumn(ColumnId column) { layers_.dropColumn(column); }

    std::int64_t takeWrites() { return layers_.takeWrites(); }
    QString inconsistency() const { return layers_.inconsistency(rows_.limit()); }

private:
    void writePart(SurfacePart part, const StylePatch& patch);
    void writePiece(const StylePiece& piece, const StylePatch& patch, StyleOrigin origin);

    SurfaceRows& rows_;
    const SurfaceColumns& columns_;
    StyleLayers layers_;
    CellStyle own_; // font of the whole and colours of the body
    CellStyle fixed_{.backColor = systemColor(kSysButtonFace), .foreColor = systemColor(kSysButtonText)};
};

} // namespace zkp
