#include "core/properties.def"
#include "script_fixture.h"

// The public names of the control, written by hand: each must be there for a script, under exactly
// this spelling.

namespace {

constexpr const char* kPlainMembers[] = {
    "RCrw",           "ParamName",       "ParamType",      "ParamValue", "rsEmpty",      "RecCount",
    "LossRatio",      "StartingLine",    "LineCounter",    "Fund",       "SqlOnRunTime", "OrderByPhysical",
    "OrderByAlias",   "SQLRun",          "FilterTables",   "sortOut",    "Idle",         "PreRow",
    "PreBackColor",   "PreForeColor",    "indkey",         "EditCancel", "mGroupCount",  "PrintLeftMargin",
    "PrintTopMargin", "RecordSourceSQL", "AllowSubselects"};

constexpr const char* kSurfaceProperties[] = {"AllowBigSelection",
                                              "BackColorBkg",
                                              "BackColorFixed",
                                              "BackColor",
                                              "BackColorSel",
                                              "BorderStyle",
                                              "CellBackColor",
                                              "CellFontBold",
                                              "CellFontItalic",
                                              "CellFontUnderline",
                                              "CellForeColor",
                                              "Col",
                                              "ColSel",
                                              "Enabled",
                                              "FixedCols",
                                              "FixedRows",
                                              "FocusRect",
                                              "FontBold",
                                              "FontItalic",
                                              "FontName",
                                              "FontSize",
                                              "FontStrikethru",
                                              "FontUnderline",
                                              "FontWidth",
                                              "ForeColorFixed",
                                              "ForeColor",
                                              "ForeColorSel",
                                              "GridColorFixed",
                                              "GridColor",
                                              "GridLines",
                                              "GridLineWidth",
                                              "HighLight",
                                              "Redraw",
                                              "Row",
                                              "RowSel",
                                              "Rows",
                                              "SelectionMode",
                                              "Text",
                                              "TopRow"};

constexpr const char* kStoredProperties[] = {"FrameBackColor",
                                             "FrameForeColor",
                                             "AlignTitle",
                                             "BackStyle",
                                             "CancelPrint",
                                             "CenterStoixeia",
                                             "ChoicesVisible",
                                             "clmns",
                                             "DisplayTotals",
                                             "editenable",
                                             "EuroVer",
                                             "FileName",
                                             "fileno",
                                             "Filter",
                                             "FixedFontBold",
                                             "FixedFontItalic",
                                             "FixedFontName",
                                             "FixedFontSize",
                                             "FixedFontStrikethru",
                                             "FixedFontUnderline",
                                             "FontTransparent",
                                             "FormatString",
                                             "FrozenRow",
                                             "GraphVisible",
                                             "Group_break",
                                             "Group_Lines",
                                             "GroupBy1",
                                             "GroupBy2",
                                             "GroupBy3",
                                             "GroupBy4",
                                             "Groupby",
                                             "GroupedBackColor",
                                             "GroupedFontBold",
                                             "GroupedFontItalic",
                                             "GroupedFontName",
                                             "GroupedFontSize",
                                             "GroupedFontStrikethru",
                                             "GroupedFontUnderline",
                                             "GroupedForecolor",
                                             "KeyName",
                                             "MenusVisible",
                                             "OrderBy",
                                             "PreFilter",
                                             "Print_Colors",
                                             "Print_Date",
                                             "Print_Filter",
                                             "Print_Lines",
                                             "Print_Stoixeia",
                                             "PrintCaption",
                                             "PrintCenter",
                                             "PrintFilter",
                                             "PropsChanged",
                                             "Row1BackColor",
                                             "Row1ForeColor",
                                             "RowSelect",
                                             "SizeColBackcolor",
                                             "specialinfo",
                                             "specialrecordsource",
                                             "StoixeiaFontBold",
                                             "StoixeiaFontItalic",
                                             "StoixeiaFontName",
                                             "StoixeiaFontSize",
                                             "StoixeiaFontUnderline",
                                             "StoixeiaForecolor",
                                             "StoixeiaOnEveryPage",
                                             "StoixeiaUnderLine",
                                             "SubTotalsBackColor",
                                             "SubTotalsFontBold",
                                             "SubTotalsFontItalic",
                                             "SubTotalsFontName",
                                             "SubTotalsFontSize",
                                             "SubTotalsFontStrikethru",
                                             "SubTotalsFontUnderline",
                                             "SubTotalsForeColor",
                                             "TitleBackColor",
                                             "TitleBorder",
                                             "TitleFontBold",
                                             "TitleFontItalic",
                                             "TitleFontName",
                                             "TitleFontSize",
                                             "TitleFontUnderline",
                                             "TitleForecolor",
                                             "TitleOnEveryPage",
                                             "TitleUnderLine",
                                             "TotalsBackcolor",
                                             "TotalsFontBold",
                                             "TotalsFontItalic",
                                             "TotalsFontName",
                                             "TotalsFontSize",
                                             "TotalsFontStrikethru",
                                             "TotalsFontUnderline",
                                             "TotalsForeColor",
                                             "TotColBackColor",
                                             "TransBackColor",
                                             "TransForeColor",
                                             "UnionFilter",
                                             "UnionRecordSource",
                                             "VisibleMetafora",
                                             "WriteTot"};

constexpr const char* kOtherProperties[] = {"Cols",
                                            "MinRows",
                                            "RefreshOnChange",
                                            "FreezeBackColor",
                                            "Cn",
                                            "CommandTimeout",
                                            "DesignMode",
                                            "RowByRow",
                                            "TotalForm",
                                            "SourceType",
                                            "Width",
                                            "Height",
                                            "MousePointer",
                                            "Font",
                                            "Panel",
                                            "Locale",
                                            "TemplateMenuVisible"};

constexpr const char* kReadOnly[] = {"HasTotals",   "RecordsourceSTR", "Columns",     "events",
                                     "MSFlexGrid1", "MSFlexGrid2",     "MSFlexGrid3", "Picture1",
                                     "cmdHide",     "lbltemplate",     "lblfilter"};

constexpr const char* kWriteOnly[] = {"Ierarxia", "IerID", "ProductID", "Remote", "UserID"};

constexpr const char* kColumnProperties[] = {
    "ColAlignment",  "ColAvrg",      "ColBalance",     "ColCalcEuro", "ColCaption",  "Colcnt",
    "ColCredit",     "ColDataField", "ColData",        "ColDebit",    "ColEditable", "ColEditField1",
    "ColEditField2", "ColEditKind",  "ColEditLength",  "ColEditRs",   "ColEditTag",  "ColForSize",
    "ColForTot",     "ColIndexKey",  "ColLR",          "ColPercnt",   "ColPerSize",  "ColStatic",
    "ColTotals",     "ColWidth",     "FixedAlignment", "MergeCol",    "RowData",     "RowHeight",
    "TextArray"};

/// With arguments that they can work with.
constexpr const char* kMethods[] = {"Clear()",
                                    "ClearGrid()",
                                    "AddItem('x')",
                                    "AddItem('x', 1)",
                                    "RemoveItem(1)",
                                    "CancelLoad()",
                                    "StopSearch()",
                                    "Fill(cn, 'SELECT 1 AS A', ZKP_SQLStatement)",
                                    "refresh()",
                                    "FillGrid()",
                                    "PrepareEmptyGrid()",
                                    "FindGroupNum()",
                                    "CheckGroupBy()",
                                    "FindAccountColumns()",
                                    "RecalcBalanceColumn()",
                                    "UserControl_Resize()",
                                    "UserControl_EnterFocus()",
                                    "UserControl_ExitFocus()",
                                    "UserControl_KeyDown(65, 0)",
                                    "UserControl_KeyPress(65)",
                                    "TextMatrix(1, 0)",
                                    "setTextMatrix(1, 0, 'x')",
                                    "setUserFilter('A=1')",
                                    "UserControl_Terminate()"};

class PublicNames : public ScriptTest {
protected:
    /// A report with two records, so that there is a current cell.
    PublicNames() { run(QStringLiteral("grid.refresh(); grid.Row = 1; grid.Col = 0;")); }

    /// A property is read, takes its own value back and still has it.
    void expectReadableAndWritable(const char* name) {
        const QString text =
            QStringLiteral("was = grid.%1; if (was === undefined) throw new Error('undefined');"
                           "grid.%1 = was; if (grid.%1 !== was) throw new Error('another value')");
        EXPECT_EQ(run(text.arg(QLatin1String(name))), 0) << name << ": " << qPrintable(errors.value(0));
    }

    void expectRuns(const QString& statement) {
        EXPECT_EQ(run(statement), 0) << qPrintable(statement) << ": " << qPrintable(errors.value(0));
    }
};

TEST_F(PublicNames, PlainMembersAreReadAndWritten) {
    for (const char* name : kPlainMembers)
        expectReadableAndWritable(name);
}

TEST_F(PublicNames, PropertiesOfTheSurfaceAreReadAndWritten) {
    for (const char* name : kSurfaceProperties)
        expectReadableAndWritable(name);
}

TEST_F(PublicNames, StoredPropertiesAreReadAndWritten) {
    for (const char* name : kStoredProperties)
        expectReadableAndWritable(name);
}

TEST_F(PublicNames, PropertiesThatDoMoreAreReadAndWritten) {
    for (const char* name : kOtherProperties)
        expectReadableAndWritable(name);
    expectRuns(QStringLiteral("grid.RecordSource; grid.RecordSource = 'SELECT 1'"));
}

TEST_F(PublicNames, NothingOfThePropertyListIsMissing) {
#define READ_AND_WRITE(Type, Name, ...) expectReadableAndWritable(#Name);
    ZKP_SURFACE_PROPERTIES(READ_AND_WRITE)
    ZKP_LOOK_PROPERTIES(READ_AND_WRITE)
    ZKP_MEMBER_PROPERTIES(READ_AND_WRITE)
    ZKP_KEPT_MEMBERS(READ_AND_WRITE)
    ZKP_HAND_WRITTEN(READ_AND_WRITE)
    ZKP_SILENT_PROPERTIES(READ_AND_WRITE)
#define BOTH_METHODS(Type, Name, ...) expectRuns(QStringLiteral("grid.set" #Name "(1, grid." #Name "(1))"));
    ZKP_SURFACE_INDEXED(BOTH_METHODS)
    ZKP_COLUMN_PROPERTIES(BOTH_METHODS)
    ZKP_HAND_WRITTEN_INDEXED(BOTH_METHODS)
#define READ_ALONE(Type, Name, ...) expectRuns(QStringLiteral("grid." #Name));
    ZKP_READ_ONLY_MEMBERS(READ_ALONE)
    ZKP_READ_ONLY_ANSWERS(READ_ALONE)
}

TEST_F(PublicNames, ReadOnlyOnesAreReadAndRefuseAValue) {
    for (const char* name : kReadOnly) {
        expectRuns(QStringLiteral("if (grid.%1 === undefined) throw new Error('undefined')")
                       .arg(QLatin1String(name)));
        EXPECT_EQ(errorNumber(QStringLiteral("grid.%1 = 1").arg(QLatin1String(name))), 438) << name;
    }
}

TEST_F(PublicNames, WriteOnlyOnesAreWrittenAndNotRead) {
    for (const char* name : kWriteOnly) {
        expectRuns(QStringLiteral("grid.%1 = 0").arg(QLatin1String(name)));
        EXPECT_EQ(errorNumber(QStringLiteral("grid.%1").arg(QLatin1String(name))), 438) << name;
    }
}

TEST_F(PublicNames, IndexedOnesAreReadAndWrittenByTheirMethods) {
    for (const char* name : kColumnProperties)
        expectRuns(QStringLiteral("grid.set%1(1, grid.%1(1))").arg(QLatin1String(name)));
}

TEST_F(PublicNames, MethodsAreCalled) {
    for (const char* call : kMethods)
        expectRuns(QStringLiteral("grid.") + QLatin1String(call));
}

} // namespace
