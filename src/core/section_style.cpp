#include "core/section_style.h"

#include "core/state/section_settings.h"
#include "surface/grid_surface.h"

namespace zkp {

namespace {

CellStyle detailStyle(const GridSurface& surface) {
    return {.backColor = surface.BackColor(),
            .foreColor = surface.ForeColor(),
            .fontName = surface.FontName(),
            .fontSize = surface.FontSize(),
            .bold = surface.FontBold(),
            .italic = surface.FontItalic(),
            .underline = surface.FontUnderline(),
            .strikethru = surface.FontStrikethru()};
}

} // namespace

#define ZKP_SECTION_FONT(Prefix)                                                                             \
    .fontName = sections.Prefix##Name, .fontSize = sections.Prefix##Size, .bold = sections.Prefix##Bold,     \
    .italic = sections.Prefix##Italic, .underline = sections.Prefix##Underline

CellStyle styleOf(Section section, const SectionSettings& sections, const GridSurface& surface) {
    switch (section) {
    case Section::Heading:
        return {.backColor = surface.BackColorFixed(),
                .foreColor = surface.ForeColorFixed(),
                ZKP_SECTION_FONT(FixedFont),
                .strikethru = sections.FixedFontStrikethru};
    case Section::GroupFactors:
        return {.backColor = sections.GroupedBackColor,
                .foreColor = sections.GroupedForecolor,
                ZKP_SECTION_FONT(GroupedFont),
                .strikethru = sections.GroupedFontStrikethru};
    case Section::Details:
        return detailStyle(surface);
    case Section::SubTotals:
        return {.backColor = sections.SubTotalsBackColor,
                .foreColor = sections.SubTotalsForeColor,
                ZKP_SECTION_FONT(SubTotalsFont),
                .strikethru = sections.SubTotalsFontStrikethru};
    case Section::Totals:
        return {.backColor = sections.TotalsBackcolor,
                .foreColor = sections.TotalsForeColor,
                ZKP_SECTION_FONT(TotalsFont),
                .strikethru = sections.TotalsFontStrikethru};
    case Section::Title:
        return {.backColor = sections.TitleBackColor,
                .foreColor = sections.TitleForecolor,
                ZKP_SECTION_FONT(TitleFont)};
    case Section::CompanyBlock:
        return {.foreColor = sections.StoixeiaForecolor, ZKP_SECTION_FONT(StoixeiaFont)};
    }
    return {};
}

#undef ZKP_SECTION_FONT

StylePatch coloursOf(const CellStyle& style) {
    return {.backColor = style.backColor, .foreColor = style.foreColor};
}

StylePatch fontOf(const CellStyle& style) {
    return {.fontName = style.fontName,
            .fontSize = style.fontSize,
            .bold = style.bold,
            .italic = style.italic,
            .underline = style.underline};
}

StylePatch coloursAndFontOf(const CellStyle& style) {
    StylePatch patch = fontOf(style);
    patch.backColor = style.backColor;
    patch.foreColor = style.foreColor;
    return patch;
}

StylePatch fontMarksOf(const CellStyle& style) {
    return {.fontSize = style.fontSize,
            .bold = style.bold,
            .italic = style.italic,
            .underline = style.underline,
            .strikethru = style.strikethru};
}

} // namespace zkp
