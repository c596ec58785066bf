#pragma once

#include <array>

// The order in which saved scalar keys are read, step by step. Columns stand between the first step and the
// second, the layout of the choices area between the second and the third, and the labels' texts behind
// the styles.

namespace zkp::saved {

/// A failure here ends the whole reading: without them there are no columns to build.
constexpr std::array kReadFirst = {"BackColor",      "ForeColor",
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
constexpr std::array kReadLayout = {"FixedCols", "ChoicesVisible"};

constexpr std::array kReadSections = {
    "SubTotalsBackColor", "SubTotalsForeColor", "Row1BackColor",    "Row1ForeColor",  "TotalsBackColor",
    "TotalsForeColor",    "GroupedBackColor",   "GroupedForeColor", "TitleBackColor", "TitleForeColor",
    "StoixeiaForeColor",  "Print_colors",       "Print_Lines",      "Group_Lines",    "Group_BREAK",
    "Print_Filter",       "Print_Date",         "DisplayTotals"};

constexpr std::array kReadTitle = {
    "FixedRows",         "FrozenRow",           "PrintCaption",     "FileNo",
    "FileName",          "AlignTitle",          "TitleOnEveryPage", "TitleBorder",
    "TitleUnderLine",    "PrintFilter",         "Print_Stoixeia",   "CenterStoixeia",
    "StoixeiaUnderline", "StoixeiaOnEveryPage", "MenusVisible",     "FreezeBackColor"};

constexpr std::array kReadRows = {"Rows", "MinRows", "FocusRect"};

constexpr std::array kReadFontGroups = {"Font",      "FixedFont",     "GroupedFont", "StoixeiaFont",
                                        "TitleFont", "SubTotalsFont", "TotalsFont"};

constexpr std::array kReadStyles = {"WriteTot",      "ForeColorFixed", "ForeColorSel",
                                    "GridColor",     "GridColorFixed", "GridLines",
                                    "GridLineWidth", "HighLight",      "FormatString"};

/// `MenusVisible` a second time, as wanted.
constexpr std::array kReadBehaviour = {
    "Propschanged", "TemplateMenuVisible", "RefreshOnChange", "mEuroVer",     "TotalForm",
    "RowByRow",     "RowSelect",           "KeyName",         "MenusVisible", "GraphVisible"};

constexpr std::array kReadLast = {"AllowBigSelection", "SelectionMode", "Redraw"};

} // namespace zkp::saved
