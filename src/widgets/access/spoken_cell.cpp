#include "widgets/access/spoken_cell.h"

#include "base/text.h"
#include "base/texts/speech.h"
#include "core/enums.h"

namespace zkp {

namespace {

CellKind rowKind(const GridSurface& surface, int row) {
    if (row < surface.FixedRows())
        return CellKind::Heading;
    switch (surface.RowData(row)) {
    case ZKPSubTotals:
        return CellKind::Subtotal;
    case ZKPTotals:
        return CellKind::Total;
    default:
        return CellKind::Detail;
    }
}

} // namespace

CellKind cellKind(const GridSurface& surface, int row, int col) {
    const CellKind kind = rowKind(surface, row);
    const bool merged = surface.MergeCells() != 0 && surface.MergeCol(col);
    return kind == CellKind::Detail && merged ? CellKind::Group : kind;
}

QString spokenKind(CellKind kind) {
    switch (kind) {
    case CellKind::Heading:
        return texts::spokenHeading();
    case CellKind::Group:
        return texts::spokenGroup();
    case CellKind::Subtotal:
        return texts::spokenSubtotal();
    case CellKind::Total:
        return texts::spokenTotal();
    default:
        return texts::spokenDetail();
    }
}

QString columnCaption(const GridSurface& surface, int col) {
    return surface.FixedRows() > 0 ? surface.TextMatrix(0, col) : QString();
}

QString spokenCell(const GridSurface& surface, int row, int col) {
    const CellKind kind = cellKind(surface, row, col);
    const QString text = surface.TextMatrix(row, col);
    QString said = isBlank(text) ? texts::spokenBlank() : text;
    const QString caption = kind == CellKind::Heading ? QString() : columnCaption(surface, col);
    if (!isBlank(caption))
        said = caption + QStringLiteral(": ") + said;
    return kind == CellKind::Detail ? said : spokenKind(kind) + QStringLiteral(", ") + said;
}

QString spokenRow(const GridSurface& surface, int row) {
    return spokenKind(rowKind(surface, row));
}

} // namespace zkp
