#include "script_fixture.h"

namespace {

class Children : public ScriptTest {
protected:
    QString valueOf(const char* expression) {
        return linesOf(QStringLiteral("print(%1)").arg(QString::fromUtf8(expression))).value(0);
    }
};

TEST_F(Children, TheSurfaceShowsTheReport) {
    linesOf(QStringLiteral("grid.refresh();"));
    EXPECT_EQ(valueOf("grid.MSFlexGrid1.TextMatrix(1, 1)"), QStringLiteral("1.234,50"));
    EXPECT_EQ(valueOf("grid.MSFlexGrid1.TextArray(3)"), QStringLiteral("1.234,50"));
    EXPECT_EQ(valueOf("grid.MSFlexGrid1.RowData(1) == ZKPSingleRow"), QStringLiteral("true"));
    EXPECT_EQ(valueOf("grid.MSFlexGrid1.ColDataType(1)"), QStringLiteral("6"));
    EXPECT_EQ(valueOf("grid.MSFlexGrid1.ColHidden(1)"), QStringLiteral("false"));
}

TEST_F(Children, EveryPlainNameOfTheSurfaceIsReadAndTakesItsOwnValueBack) {
    linesOf(QStringLiteral("grid.refresh(); var surface = grid.MSFlexGrid1;"));
    for (const char* name : {"Rows",
                             "Cols",
                             "FixedRows",
                             "FixedCols",
                             "Text",
                             "MergeCells",
                             "Row",
                             "Col",
                             "RowSel",
                             "ColSel",
                             "TopRow",
                             "LeftCol",
                             "FillStyle",
                             "Redraw",
                             "VisibleRows",
                             "BackColor",
                             "ForeColor",
                             "BackColorFixed",
                             "ForeColorFixed",
                             "CellBackColor",
                             "CellForeColor",
                             "CellFontName",
                             "CellFontSize",
                             "CellFontBold",
                             "CellFontItalic",
                             "CellFontUnderline",
                             "CellFontStrikeThrough",
                             "FontName",
                             "FontSize",
                             "FontBold",
                             "FontItalic",
                             "FontUnderline",
                             "FontStrikethru",
                             "BackColorBkg",
                             "BackColorSel",
                             "ForeColorSel",
                             "GridColor",
                             "GridColorFixed",
                             "GridLines",
                             "GridLineWidth",
                             "BorderStyle",
                             "FocusRect",
                             "HighLight",
                             "SelectionMode",
                             "FontWidth",
                             "MousePointer",
                             "AllowBigSelection",
                             "Enabled",
                             "Tag",
                             "Left",
                             "Top",
                             "Width",
                             "Height",
                             "Visible"}) {
        EXPECT_EQ(
            valueOf(qPrintable(QStringLiteral("(was = surface.%1, surface.%1 = was, surface.%1 === was)")
                                   .arg(QLatin1String(name)))),
            QStringLiteral("true"))
            << name;
    }
    for (const char* name : {"BottomRow", "MouseRow", "MouseCol"}) {
        EXPECT_EQ(valueOf(qPrintable(QStringLiteral("typeof surface.%1").arg(QLatin1String(name)))),
                  QStringLiteral("number"))
            << name;
    }
}

TEST_F(Children, EveryIndexedNameOfTheSurfaceIsReadAndWritten) {
    linesOf(QStringLiteral("grid.refresh(); var surface = grid.MSFlexGrid1;"));
    for (const char* name : {"TextArray", "RowData", "ColData", "ColDataType", "ColWidth", "ColHidden",
                             "ColAlignment", "FixedAlignment", "RowHeight", "MergeCol", "MergeRow"}) {
        EXPECT_EQ(errorOf(QStringLiteral("surface.set%1(1, surface.%1(1))").arg(QLatin1String(name))),
                  QStringLiteral("none"))
            << name;
    }
    EXPECT_EQ(valueOf("surface.RowHidden(1)"), QStringLiteral("false"));
    EXPECT_EQ(valueOf("surface.RowIsVisible(1)"), QStringLiteral("true"));
}

TEST_F(Children, TheSurfaceSortsMovesColumnsAndRows) {
    linesOf(QStringLiteral("grid.refresh(); var surface = grid.MSFlexGrid1;"));
    // The third record has an unknown amount, which shows as 0,00: -3,00 | 0,00 | 1.234,50.
    EXPECT_EQ(linesOf(QStringLiteral(
                  "surface.Select(1, 1, 3, 1); surface.Sort = 3;"
                  "print(surface.TextMatrix(1, 1), surface.TextMatrix(2, 1), surface.TextMatrix(3, 1));"
                  "surface.setColPosition(1, 0); print(surface.TextMatrix(3, 1));"
                  "surface.AddItem('x\\ty', 1); print(surface.Rows, surface.TextMatrix(1, 1));"
                  "surface.RemoveItem(1); print(surface.Rows); surface.AddItem('z'); "
                  "print(surface.TextMatrix(4, 0));")),
              (QStringList{QStringLiteral("-3,00 0,00 1.234,50"), QStringLiteral("Άννα"),
                           QStringLiteral("5 y"), QStringLiteral("4"), QStringLiteral("z")}));
    EXPECT_EQ(errorNumber(QStringLiteral("surface.Sort")), 438);
}

TEST_F(Children, WhatAUserDoesIsCalledOnTheSurface) {
    linesOf(QStringLiteral("grid.refresh(); var surface = grid.MSFlexGrid1;"));
    EXPECT_EQ(linesOf(QStringLiteral("grid.events.Click.connect(function () { print('click'); });"
                                     "grid.events.DblClick.connect(function () { print('double'); });"
                                     "surface.userClick(2, 1); surface.userDblClick(2, 1);")),
              (QStringList{QStringLiteral("click"), QStringLiteral("double")}));
    EXPECT_EQ(linesOf(QStringLiteral(
                  "surface.userPress(2, 1, 30, 45, 2, 1); print(surface.MouseRow, surface.MouseCol);"
                  "surface.userMove(0, 0, 1, 2, 3, 0); print(surface.MouseRow, surface.MouseCol);"
                  "surface.userRelease(2, 1, 30, 45, 2, 1);")),
              (QStringList{QStringLiteral("2 1"), QStringLiteral("3 0")}));
    EXPECT_EQ(
        linesOf(QStringLiteral("surface.userKey(35, 2); print(host.messages[0].text, host.messages.length);"
                               "surface.userKeyUp(35, 2); surface.userChar(65);")),
        QStringList{QStringLiteral("HitBottom 1")});
    EXPECT_EQ(linesOf(QStringLiteral(
                  "surface.userSelect(3, 1); print(surface.Row, surface.Col);"
                  "surface.userScroll(2, 0); print(surface.TopRow);"
                  "surface.userResizeColumn(1, 2222); print(grid.ColWidth(1), grid.Columns.Item(2).Width);")),
              (QStringList{QStringLiteral("3 1"), QStringLiteral("2"), QStringLiteral("2222 2222")}));
}

TEST_F(Children, TheUsersActsTakeAllTheirArguments) {
    EXPECT_EQ(errorNumber(QStringLiteral("grid.MSFlexGrid1.userPress(1, 0, 1, 1, 1)")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.MSFlexGrid1.userClick(1)")), 449);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.MSFlexGrid1.userClick('1', 0)")), 13);
}

TEST_F(Children, TheBandTellsTheRecordCount) {
    linesOf(QStringLiteral("grid.refresh();"));
    const QString tool = QStringLiteral("grid.Picture1.Bands('BndTemplate').Tools('txtRecs')");
    EXPECT_EQ(valueOf(qPrintable(QStringLiteral("%1.Text + '|' + %1.Caption").arg(tool)))
                  .contains(QStringLiteral("3# ")),
              true);
    EXPECT_EQ(valueOf(qPrintable(tool + QStringLiteral(" === grid.Picture1.Tools('txtRecs')"))),
              QStringLiteral("true"));
}

TEST_F(Children, AToolHasItsMembers) {
    linesOf(QStringLiteral("var tool = grid.Picture1.Tools('txtRecs');"));
    EXPECT_EQ(valueOf("tool.Name"), QStringLiteral("txtRecs"));
    for (const char* name : {"Caption", "Text", "Enabled", "Visible", "Checked", "ListIndex"}) {
        EXPECT_EQ(
            valueOf(qPrintable(
                QStringLiteral("(was = tool.%1, tool.%1 = was, tool.%1 === was)").arg(QLatin1String(name)))),
            QStringLiteral("true"))
            << name;
    }
    EXPECT_EQ(valueOf("tool.ListCount"), QStringLiteral("0"));
    EXPECT_EQ(errorNumber(QStringLiteral("tool.List(0)")), 9);
    EXPECT_EQ(errorNumber(QStringLiteral("tool.ListIndex = 4")), 9);
}

TEST_F(Children, TheBarTakesTheUsersActs) {
    EXPECT_EQ(errorOf(QStringLiteral("grid.Picture1.click('txtRecs')")), QStringLiteral("none"));
    EXPECT_EQ(errorOf(QStringLiteral("grid.Picture1.changeText('txtRecs', 'x')")), QStringLiteral("none"));
    EXPECT_EQ(errorOf(QStringLiteral("grid.Picture1.changeList('txtRecs', -1)")), QStringLiteral("none"));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Picture1.click('nix')")), 3265);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Picture1.Bands('nix')")), 3265);
    EXPECT_EQ(valueOf("grid.Picture1.lastPopup"), QString());
}

TEST_F(Children, TheBandsHeightCanBeSetAndTheSurfaceStandsBelowIt) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "grid.Width = 6000; grid.Height = 4000; grid.ChoicesVisible = true;"
                  "grid.Picture1.Bands('BndTemplate').Height = 300; grid.UserControl_Resize();"
                  "var s = grid.MSFlexGrid1; print(s.Top, s.Width, s.Height, grid.Picture1.Visible);"
                  "grid.ChoicesVisible = false; grid.UserControl_Resize();"
                  "print(s.Left, s.Top, s.Width, s.Height, grid.Picture1.Visible);"
                  "print(grid.MSFlexGrid2.Visible, grid.MSFlexGrid3.Visible);")),
              (QStringList{QStringLiteral("320 6000 3680 true"), QStringLiteral("0 0 6000 4000 false"),
                           QStringLiteral("false false")}));
}

TEST_F(Children, AFontIsAnObjectOfItsSurfaceAndACopyWhenItIsGivenAway) {
    EXPECT_EQ(linesOf(QStringLiteral(
                  "var font = grid.Font; font.Name = 'Serif'; font.Size = 9.5; font.Bold = true;"
                  "font.Italic = true; font.Underline = true; font.Strikethrough = true;"
                  "print(grid.FontName, grid.FontSize, grid.FontBold, grid.FontItalic, grid.FontUnderline,"
                  "grid.FontStrikethru, grid.MSFlexGrid1.FontName, grid.Font === font);"
                  "var other = new ZkpGrid(); other.Font = grid.Font; font.Size = 20;"
                  "print(other.FontName, other.Font.Size, other.Font.Strikethrough);"
                  "other.MSFlexGrid1.Font = grid.MSFlexGrid1.Font; print(other.FontSize);")),
              (QStringList{QStringLiteral("Serif 9.5 true true true true Serif true"),
                           QStringLiteral("Serif 9.5 true"), QStringLiteral("20")}));
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Font = 'Arial'")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("grid.Font.Weight")), 438);
}

TEST_F(Children, ThePanelPassesThroughToTheSurface) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.Panel = 'α'; print(grid.MSFlexGrid1.Panel);"
                                     "grid.MSFlexGrid1.Panel = 3; print(grid.Panel);")),
              (QStringList{QStringLiteral("α"), QStringLiteral("3")}));
}

TEST_F(Children, TheBandsHaveTheirTools) {
    EXPECT_EQ(linesOf(QStringLiteral("grid.TemplateMenuVisible = true; grid.RefreshOnChange = false;"
                                     "var save = grid.Picture1.Bands('mnuTemplate').Tools('mnuSaveTemplate');"
                                     "print(save.Visible, save.Caption, save.Category);"
                                     "print(grid.Picture1.Bands('BndTemplate').Tools('mnuPrint').Enabled,"
                                     "grid.Picture1.Bands('mnuTemplate').Tools('mnuPrint').Enabled);"
                                     "save.Visible = false; print(grid.TemplateMenuVisible);")),
              (QStringList{QStringLiteral("true Καταχώρηση Υποδείγματος CatTemplate"),
                           QStringLiteral("false false"), QStringLiteral("false")}));
}

TEST_F(Children, ButtonAndLabelsAreThere) {
    EXPECT_EQ(
        linesOf(QStringLiteral(
            "grid.lbltemplate.Caption = 'α'; grid.lblfilter.Visible = false;"
            "grid.cmdHide.Caption = 'β'; grid.cmdHide.Visible = true; grid.cmdHide.Enabled = false;"
            "print(grid.lbltemplate.Caption, grid.lblfilter.Visible, grid.lblfilter.Caption === '',"
            "grid.cmdHide.Caption, grid.cmdHide.Visible, grid.cmdHide.Enabled); grid.cmdHide.press();")),
        QStringList{QStringLiteral("α false true β true false")});
}

} // namespace
