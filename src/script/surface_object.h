#pragma once

#include "script/bridge.h"
#include "script/child_objects.h"
#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// `grid.MSFlexGrid1` and its two companions: the surface's published names, and what a user does on it.
class SurfaceObject : public ScriptObject {
    Q_OBJECT

#define ZKP_SCRIPT_VALUE(Type, Name)                                                                         \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().Name();                                                                             \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        surface().set##Name(value);                                                                          \
    }
#define ZKP_SCRIPT_READ(Type, Name)                                                                          \
    Q_PROPERTY(Type Name READ Name)                                                                          \
    Type Name() const {                                                                                      \
        return surface().Name();                                                                             \
    }
#define ZKP_SCRIPT_INDEXED(Type, Name)                                                                       \
    Q_INVOKABLE Type Name(int index) const {                                                                 \
        return surface().Name(index);                                                                        \
    }                                                                                                        \
    Q_INVOKABLE void set##Name(int index, const Type& value) {                                               \
        surface().set##Name(index, value);                                                                   \
    }
#define ZKP_SCRIPT_LOOK(Type, Name)                                                                          \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().look().Name;                                                                        \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        GridSurface::Look look = surface().look();                                                           \
        look.Name = value;                                                                                   \
        surface().setLook(look);                                                                             \
    }
#define ZKP_SCRIPT_PLACE(Type, Name)                                                                         \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().place().Name;                                                                       \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        GridSurface::Place place = surface().place();                                                        \
        place.Name = value;                                                                                  \
        surface().setPlace(place);                                                                           \
    }

public:
    SurfaceObject(ScriptControlPtr control, GridSurface& (ZkpGrid::*which)())
        : control_(std::move(control))
        , which_(which) {}

    QString className() const override {
        return QStringLiteral("GridSurface");
    }

    ZKP_SCRIPT_VALUE(int, Rows)
    ZKP_SCRIPT_VALUE(int, Cols)
    ZKP_SCRIPT_VALUE(int, FixedRows)
    ZKP_SCRIPT_VALUE(int, FixedCols)
    ZKP_SCRIPT_VALUE(QString, Text)
    ZKP_SCRIPT_VALUE(int, MergeCells)
    ZKP_SCRIPT_VALUE(int, Row)
    ZKP_SCRIPT_VALUE(int, Col)
    ZKP_SCRIPT_VALUE(int, RowSel)
    ZKP_SCRIPT_VALUE(int, ColSel)
    ZKP_SCRIPT_VALUE(int, TopRow)
    ZKP_SCRIPT_VALUE(int, LeftCol)
    ZKP_SCRIPT_VALUE(int, FillStyle)
    ZKP_SCRIPT_VALUE(bool, Redraw)
    ZKP_SCRIPT_READ(int, BottomRow)
    ZKP_SCRIPT_READ(int, MouseRow)
    ZKP_SCRIPT_READ(int, MouseCol)
    /// How many body rows a view would show; 0 counts all of them as visible.
    Q_PROPERTY(int VisibleRows READ VisibleRows WRITE setVisibleRows)
    int VisibleRows() const {
        return surface().VisibleRows();
    }
    void setVisibleRows(int rows) {
        surface().setVisibleRows(rows);
    }

    ZKP_SCRIPT_VALUE(uint, BackColor)
    ZKP_SCRIPT_VALUE(uint, ForeColor)
    ZKP_SCRIPT_VALUE(uint, BackColorFixed)
    ZKP_SCRIPT_VALUE(uint, ForeColorFixed)
    ZKP_SCRIPT_VALUE(uint, CellBackColor)
    ZKP_SCRIPT_VALUE(uint, CellForeColor)
    ZKP_SCRIPT_VALUE(QString, CellFontName)
    ZKP_SCRIPT_VALUE(double, CellFontSize)
    ZKP_SCRIPT_VALUE(bool, CellFontBold)
    ZKP_SCRIPT_VALUE(bool, CellFontItalic)
    ZKP_SCRIPT_VALUE(bool, CellFontUnderline)
    ZKP_SCRIPT_VALUE(bool, CellFontStrikeThrough)
    ZKP_SCRIPT_VALUE(QString, FontName)
    ZKP_SCRIPT_VALUE(double, FontSize)
    ZKP_SCRIPT_VALUE(bool, FontBold)
    ZKP_SCRIPT_VALUE(bool, FontItalic)
    ZKP_SCRIPT_VALUE(bool, FontUnderline)
    ZKP_SCRIPT_VALUE(bool, FontStrikethru)
    Q_PROPERTY(QVariant Font READ Font WRITE setFont)
    QVariant Font() const {
        const ScriptObjectPtr font =
            control_->bridge().shared<FontObject>(&surface(), control_.get(), control_, which_);
        return QVariant::fromValue(font);
    }
    void setFont(const QVariant& font) {
        surface().setFont(FontObject::fontIn(font));
    }

    ZKP_SCRIPT_LOOK(uint, BackColorBkg)
    ZKP_SCRIPT_LOOK(uint, BackColorSel)
    ZKP_SCRIPT_LOOK(uint, ForeColorSel)
    ZKP_SCRIPT_LOOK(uint, GridColor)
    ZKP_SCRIPT_LOOK(uint, GridColorFixed)
    ZKP_SCRIPT_LOOK(int, GridLines)
    ZKP_SCRIPT_LOOK(int, GridLineWidth)
    ZKP_SCRIPT_LOOK(int, BorderStyle)
    ZKP_SCRIPT_LOOK(int, FocusRect)
    ZKP_SCRIPT_LOOK(int, HighLight)
    ZKP_SCRIPT_LOOK(int, SelectionMode)
    ZKP_SCRIPT_LOOK(int, FontWidth)
    ZKP_SCRIPT_LOOK(int, MousePointer)
    ZKP_SCRIPT_LOOK(bool, AllowBigSelection)
    ZKP_SCRIPT_LOOK(bool, Enabled)
    ZKP_SCRIPT_LOOK(QString, Tag)
    ZKP_SCRIPT_LOOK(QVariant, Panel)

    ZKP_SCRIPT_PLACE(double, Left)
    ZKP_SCRIPT_PLACE(double, Top)
    ZKP_SCRIPT_PLACE(double, Width)
    ZKP_SCRIPT_PLACE(double, Height)
    ZKP_SCRIPT_PLACE(bool, Visible)

    ZKP_SCRIPT_INDEXED(QString, TextArray)
    ZKP_SCRIPT_INDEXED(int, RowData)
    ZKP_SCRIPT_INDEXED(QVariant, ColData)
    ZKP_SCRIPT_INDEXED(int, ColDataType)
    ZKP_SCRIPT_INDEXED(int, ColWidth)
    ZKP_SCRIPT_INDEXED(bool, ColHidden)
    ZKP_SCRIPT_INDEXED(int, ColAlignment)
    ZKP_SCRIPT_INDEXED(int, FixedAlignment)
    ZKP_SCRIPT_INDEXED(int, RowHeight)
    ZKP_SCRIPT_INDEXED(bool, MergeCol)
    ZKP_SCRIPT_INDEXED(bool, MergeRow)

#undef ZKP_SCRIPT_VALUE
#undef ZKP_SCRIPT_READ
#undef ZKP_SCRIPT_INDEXED
#undef ZKP_SCRIPT_LOOK
#undef ZKP_SCRIPT_PLACE

    Q_INVOKABLE QString TextMatrix(int row, int col) const {
        return surface().TextMatrix(row, col);
    }
    Q_INVOKABLE void setTextMatrix(int row, int col, const QString& text) {
        surface().setTextMatrix(row, col, text);
    }
    Q_INVOKABLE void setColPosition(int col, int newPosition) {
        surface().setColPosition(col, newPosition);
    }
    Q_INVOKABLE bool RowHidden(int row) const {
        return surface().RowHidden(row);
    }
    Q_INVOKABLE bool RowIsVisible(int row) const {
        return surface().RowIsVisible(row);
    }
    /// Sorts at once; there is nothing to read.
    Q_INVOKABLE void setSort(int code) {
        surface().setSort(code);
    }

    Q_INVOKABLE void Clear() {
        surface().Clear();
    }
    Q_INVOKABLE void AddItem(const QString& text, int index) {
        surface().AddItem(text, index);
    }
    Q_INVOKABLE void AddItem(const QString& text) {
        surface().AddItem(text);
    }
    Q_INVOKABLE void RemoveItem(int index) {
        surface().RemoveItem(index);
    }
    Q_INVOKABLE void Select(int row, int col, int rowSel, int colSel) {
        surface().Select(row, col, rowSel, colSel);
    }
    Q_INVOKABLE void Select(int row, int col) {
        surface().Select(row, col);
    }
    Q_INVOKABLE void Refresh() {
        surface().Refresh();
    }
    Q_INVOKABLE void SetFocus() {
        surface().SetFocus();
    }

    // What a user does; coordinates in twips, row and column those under the pointer.
    Q_INVOKABLE void userPress(int button, int shift, double x, double y, int row, int col) {
        surface().userPress({button, shift, x, y, row, col});
    }
    Q_INVOKABLE void userMove(int button, int shift, double x, double y, int row, int col) {
        surface().userMove({button, shift, x, y, row, col});
    }
    Q_INVOKABLE void userRelease(int button, int shift, double x, double y, int row, int col) {
        surface().userRelease({button, shift, x, y, row, col});
    }
    Q_INVOKABLE void userClick(int row, int col) {
        surface().userClick(row, col);
    }
    Q_INVOKABLE void userDblClick(int row, int col) {
        surface().userDblClick(row, col);
    }
    Q_INVOKABLE void userKey(int code, int shift) {
        surface().userKey(code, shift);
    }
    Q_INVOKABLE void userKeyUp(int code, int shift) {
        surface().userKeyUp(code, shift);
    }
    Q_INVOKABLE void userChar(int ascii) {
        surface().userChar(ascii);
    }
    Q_INVOKABLE void userSelect(int row, int col) {
        surface().userSelect(row, col);
    }
    Q_INVOKABLE void userScroll(int topRow, int leftCol) {
        surface().userScroll(topRow, leftCol);
    }
    Q_INVOKABLE void userResizeColumn(int col, int twips) {
        surface().userResizeColumn(col, twips);
    }
    Q_INVOKABLE void userDrop(int from, int to) {
        surface().userDrop(from, to);
    }

private:
    GridSurface& surface() const {
        return (control_->grid().*which_)();
    }

    ScriptControlPtr control_;
    GridSurface& (ZkpGrid::*which_)();
};

} // namespace zkp::script
