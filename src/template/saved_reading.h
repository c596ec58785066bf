#pragma once

#include <array>

// The order in which saved scalar keys are read, step by step. Columns stand between the first step and the
// second, the layout of the choices area between the second and the third, and the labels' texts behind
// the styles.

namespace zkp::saved {

/// A failure here ends the whole reading: without them there are no columns to build.
inline constexpr std::array kReadFirst = {"BackColor",      "ForeColor",
                                          "Enabled",        "Font",
                                          "BackStyle",      "BorderStyle",
                                          "BackColorBkg",   "BackColorFixed",
                                          "BackColorSel",   "Cols",
                                          "EditEnable",     "UnionRecordsource",
                                          "Specialinfo",    "SpecialRecordsource",
                                          "Orderby",        "GroupBy",
                                          "Filter",         "UnionFilter",
                                          "PreFilter",      "Clmns",
                                          "visiblemetafora"};

/// Before the layout of the choices area.
inline constexpr std::array kReadLayout = {"FixedCols", "ChoicesVisible"};

inline constexpr std::array kReadSections = {
    "SubTotalsBackColor", "SubTotalsForeColor", "Row1BackColor",    "Row1ForeColor",  "TotalsBackColor",
    "TotalsForeColor",    "GroupedBackColor",   "GroupedForeColor", "TitleBackColor", "TitleForeColor",
    "StoixeiaForeColor",  "Print_colors",       "Print_Lines",      "Group_Lines",    "Group_BREAK",
    "Print_Filter",       "Print_Date",         "DisplayTotals"};

inline constexpr std::array kReadTitle = {
    "FixedRows",         "FrozenRow",           "PrintCaption",     "FileNo",
    "FileName",          "AlignTitle",          "TitleOnEveryPage", "TitleBorder",
    "TitleUnderLine",    "PrintFilter",         "Print_Stoixeia",   "CenterStoixeia",
    "StoixeiaUnderline", "StoixeiaOnEveryPage", "MenusVisible",     "FreezeBackColor"};

inline constexpr std::array kReadRows = {"Rows", "MinRows", "FocusRect"};

inline constexpr std::array kReadFontGroups = {"Font",      "FixedFont",     "GroupedFont", "StoixeiaFont",
                                               "TitleFont", "SubTotalsFont", "TotalsFont"};

inline constexpr std::array kReadStyles = {"WriteTot",      "ForeColorFixed", "ForeColorSel",
                                           "GridColor",     "GridColorFixed", "GridLines",
                                           "GridLineWidth", "HighLight",      "FormatString"};

/// `MenusVisible` a second time, as wanted.
inline constexpr std::array kReadBehaviour = {
    "Propschanged", "TemplateMenuVisible", "RefreshOnChange", "mEuroVer",     "TotalForm",
    "RowByRow",     "RowSelect",           "KeyName",         "MenusVisible", "GraphVisible"};

inline constexpr std::array kReadLast = {"AllowBigSelection", "SelectionMode", "Redraw"};

} // namespace zkp::saved
