#pragma once

#include "core/enums.h"
#include "surface/style.h"

namespace zkp {

class GridSurface;
struct SectionSettings;

/// The parts of a report that have colours and a font of their own. Those on the surface have the numbers
/// of ZKPSections; the other two stand on paper alone.
enum class Section {
    Heading = ZKPSectionFixed,
    GroupFactors = ZKPSectionGroup,
    Details = ZKPSectionDetail,
    SubTotals = ZKPSectionSubTotals,
    Totals = ZKPSectionTotals,
    Title = 5,
    CompanyBlock = 6,
};

/// Subtotals and totals, by a row's kind.
inline bool isSumRow(int kind) {
    return kind == ZKPSubTotals || kind == ZKPTotals;
}

/// Colours and font of a section as the control's properties have them now. Details are as the surface's
/// own. What a section has no property for is as in an untouched cell: the strikeout of title and company
/// block, and the latter's back colour.
CellStyle styleOf(Section section, const SectionSettings& sections, const GridSurface& surface);

/// Parts of a style, to be written by themselves: the two colours; name, size, bold, italic and underline,
/// but no strikeout, which painting leaves alone, as wanted; and both.
StylePatch coloursOf(const CellStyle& style);
StylePatch fontOf(const CellStyle& style);
StylePatch coloursAndFontOf(const CellStyle& style);

/// Size, bold, italic, underline and strikeout: all of a font but the typeface.
StylePatch fontMarksOf(const CellStyle& style);

} // namespace zkp
