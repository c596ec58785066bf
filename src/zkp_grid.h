#pragma once

#include "ado/recordset.h"
#include "bag/property_bag.h"
#include "base/error.h"
#include "base/listeners.h"
#include "core/child_controls.h"
#include "core/column_list.h"
#include "core/enums.h"
#include "core/events.h"
#include "core/properties.def"
#include "host/host.h"
#include "load/load_outcome.h"

#include <QLocale>
#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>

namespace zkp {

class ReportRows;

/// The reporting grid: one object with the public names that hosts know. Give it a connection and a
/// record source with Fill, call refresh, and the rows stand on `MSFlexGrid1`. ZkpGridWidget shows it;
/// without a widget it works just as well.
///
/// Plain properties are Qt properties: `Filter()` reads, `setFilter(...)` writes. Indexed ones are a
/// method to read and a `set...` method to write; columns and rows count from 0. Setters report their
/// key through `events().PropertyChanged`. All of them are listed in core/properties.def. Worth knowing:
/// `RecordSource` takes a text, RecordsetPtr or CommandPtr, by `SourceType`, and gives the open
/// recordset; `RecordsourceSTR` is its text, by the kind that it had when it was given; `HasTotals` says
/// whether there are two or more group factors; `Width` and `Height` are twips; `Locale` is the report's,
/// at the start the application's default.
///
/// Failures are zkp::Error unless a member says that it shows a box instead. One thread: the host's
/// user-interface thread.
class ZkpGrid : public QObject {
    Q_OBJECT

public:
    /// Boxes and dialogs go to `host`; without one they are recorded and answered by a ScriptedHost.
    explicit ZkpGrid(std::shared_ptr<Host> host = {}, QObject* parent = nullptr);
    /// Ends the control (`UserControl_Terminate`), also from within one of its own events.
    ~ZkpGrid() override;

#define ZKP_READ_WRITE(Type, Name, ...)                                                                      \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const;                                                                                       \
    void set##Name(const Type& value);
#define ZKP_WRITE_ONLY(Type, Name, ...) Q_INVOKABLE void set##Name(const Type& value);
#define ZKP_INDEXED(Type, Name, ...)                                                                         \
    Q_INVOKABLE Type Name(int index) const;                                                                  \
    Q_INVOKABLE void set##Name(int index, const Type& value);

#define ZKP_BY_CELL(Type, Name)                                                                              \
    Q_INVOKABLE Type Name(int row, int col) const;                                                           \
    Q_INVOKABLE void set##Name(int row, int col, const Type& value);

    ZKP_SURFACE_PROPERTIES(ZKP_READ_WRITE)
    ZKP_LOOK_PROPERTIES(ZKP_READ_WRITE)
    ZKP_MEMBER_PROPERTIES(ZKP_READ_WRITE)
    ZKP_KEPT_MEMBERS(ZKP_READ_WRITE)
    ZKP_SILENT_PROPERTIES(ZKP_READ_WRITE)
    ZKP_IDENTITY_PROPERTIES(ZKP_WRITE_ONLY)
    ZKP_SURFACE_INDEXED(ZKP_INDEXED)
    ZKP_SURFACE_CELLS(ZKP_BY_CELL)
    ZKP_COLUMN_PROPERTIES(ZKP_INDEXED)

    ZKP_HAND_WRITTEN(ZKP_READ_WRITE)
    ZKP_HAND_WRITTEN_SILENT(ZKP_READ_WRITE)
    ZKP_HAND_WRITTEN_INDEXED(ZKP_INDEXED)

#define ZKP_READ_ONLY(Type, Name, ...)                                                                       \
    Q_PROPERTY(Type Name READ Name)                                                                          \
    Type Name() const;
    ZKP_READ_ONLY_MEMBERS(ZKP_READ_ONLY)
    ZKP_READ_ONLY_ANSWERS(ZKP_READ_ONLY)
#undef ZKP_READ_ONLY

#undef ZKP_READ_WRITE
#undef ZKP_WRITE_ONLY
#undef ZKP_INDEXED
#undef ZKP_BY_CELL

    ColumnList& Columns();
    Events& events();
    Host& host();

    // Child controls under their own names.
    GridSurface& MSFlexGrid1();
    /// The sums of a load's groups, written at each call: ask again after a load, and write nothing there.
    GridSurface& MSFlexGrid2();
    GridSurface& MSFlexGrid3();
    MenuBar& Picture1();
    /// The report's rows as paper, a file, the clipboard or a search should read them, painted or not.
    const ReportRows& shownRows() const;
    Button& cmdHide();
    Label& lbltemplate();
    Label& lblfilter();

    // Members by their names as text, without regard to case. What the name doesn't stand for is Error
    // kErrNoSuchMember. Numbers become the type that is wanted, to integers half to even, True is -1, and
    // texts where a text is wanted; a text never becomes a number (kErrTypeMismatch, kErrOverflow).
    // kErrArgumentMissing, kErrArgumentCount: no form of the member has that many.
    /// The value of a property; `indexes` of an indexed one. What stands on the control, `Columns` and
    /// `MSFlexGrid1` among it, is a pointer.
    QVariant getMember(const QString& name, const QVariantList& indexes = {});
    void setMember(const QString& name, const QVariant& value, const QVariantList& indexes = {});
    /// What the method gives, if anything. Arguments that it changes come back in the list.
    QVariant callMember(const QString& name, QVariantList& arguments);
    QVariant callMember(const QString& name, const QVariantList& arguments = {});

    /// Receives every failed check of refresh, in order, before the first of them is thrown.
    void setErrorSink(std::function<void(const Error&)> sink);

    /// Stores connection, source kind, source, user identity and remote flag, in this order, and looks
    /// up the user's rights; loads nothing. Call refresh afterwards.
    Q_INVOKABLE void Fill(const ado::ConnectionPtr& P_CN, const QVariant& P_RecordSource, int P_SourceType,
                          const QString& P_ProductID = {}, int P_Remote = 0);
    /// Takes a filter from a person, so that no text shows a row beyond the user's rights or the report's
    /// standing condition. It must be one condition, and goes to `Filter` in brackets, `( A=1 or B=2 )`; a
    /// blank one lets every row pass (" 0=0 "). Gives an empty text, or in Greek why and at which character
    /// (from 1) the filter is refused; then `Filter` stays and nothing is reported. Refused are brackets,
    /// quotes and [names] without their other half, comments, `;`, signs that mean something else in some
    /// databases, keys within constants and [names] of a report composed at run time, and, unless
    /// `AllowSubselects` is True, questions to other tables.
    ///
    /// Each load begins with it again until `Filter` is written, with the standing condition in front where
    /// it has one, whatever the text holds. Call it behind `Fill`: keys are looked up in the dictionary. What
    /// could not be looked up then is when the report loads, and lets no row through where it must be
    /// refused.
    Q_INVOKABLE QString setUserFilter(const QString& text);
    /// Checks what the source needs, then FillGrid. Throws the first failed check (kErrPropertyNotSet,
    /// kErrCommandNotSet) and loads nothing then.
    Q_INVOKABLE void refresh();
    /// The load itself. A failure shows the error box; nothing is thrown.
    Q_INVOKABLE void FillGrid();
    /// True from the start of a load until it has ended, boxes and pending events on the way included.
    Q_INVOKABLE bool isLoading() const;
    /// How the last load ended: loaded, failed or refused, its statement, records, times and failure.
    Q_INVOKABLE zkp::LoadOutcome lastLoad() const;
    /// Tells of every load, whoever starts it, for as long as the result lives; any number may listen.
    [[nodiscard]] Listening listenToLoads(LoadListener listener);
    /// Shows the report's shape without rows. Does nothing without `clmns` or `Cn`.
    Q_INVOKABLE void PrepareEmptyGrid();

    /// Sorts the surface in place by the column of the last sort (the current one at first), all rows but
    /// the last, then numbers the `Colcnt` column anew. `mv` is a code of the surface's sorts; 9, the custom
    /// sort, asks the event `Compare`, from this call on for good. Errors are passed over.
    Q_INVOKABLE void Sort(int mv);
    /// Sorts the surface in place as it is selected; a single selected row stands for all. Errors are
    /// passed over.
    Q_INVOKABLE void SortGrid(int mv);
    /// Makes the current column the report's `OrderBy` and loads again: descending when `previous` is the
    /// column's own expression, else ascending. A failure shows the error box.
    Q_INVOKABLE void SortByColumn(const QString& previous);

    Q_INVOKABLE void Clear();
    /// Drops all rows and leaves `MinRows` blank ones. Errors are passed over.
    Q_INVOKABLE QVariant ClearGrid();
    Q_INVOKABLE void AddItem(const QString& mitem, const QVariant& mindex = {});
    Q_INVOKABLE void RemoveItem(int mindex);
    /// Sets a flag that nothing reads: a load can't be stopped, as wanted. So does StopSearch.
    Q_INVOKABLE void CancelLoad();
    Q_INVOKABLE void StopSearch();

    Q_INVOKABLE short FindGroupNum() const;
    Q_INVOKABLE void CheckGroupBy();
    /// Makes an empty column at a position. A failure shows the error box.
    Q_INVOKABLE void InsertColumn(int whereisit);

    // The statements, and the steps that build them, for hosts that want to see them. Each reads and
    // writes the control's properties as a load does; a step that fails shows its box.
    Q_INVOKABLE QString RunTimeSQL();
    Q_INVOKABLE QString RunTimeSQLCounter();
    Q_INVOKABLE QString NormalSQL();
    Q_INVOKABLE QString GroupedSQL();
    Q_INVOKABLE QString RunTimeStatsSQL();
    Q_INVOKABLE QString RunTimePosSql();
    Q_INVOKABLE QString DetailStatement();
    Q_INVOKABLE void OpenTotalRecordset();
    Q_INVOKABLE QString makefldSql(const QString& FieldName, QString& Tables, bool WithAlias = true);
    Q_INVOKABLE void FindMaster();
    Q_INVOKABLE QString MakeFromAndJoins(QString& Tables);
    Q_INVOKABLE QString FindJoinON(const QString& Table);
    Q_INVOKABLE void TranslateFilter(QString& Tables);
    Q_INVOKABLE void LoadIerarxia();
    Q_INVOKABLE void LoadDictionary();
    /// Opens the report's records; False when there are none to be had.
    Q_INVOKABLE bool MakeRecordset();
    /// Opens the records of a detail report; a failure shows its box and leaves none.
    Q_INVOKABLE zkp::ado::RecordsetPtr OpenDetailRecordset();
    /// Reads the open records into the rows that the surface has.
    Q_INVOKABLE void LoadRows();
    Q_INVOKABLE void MakeFixedForGroup();

    // The steps of group rows and totals, as a load takes them. Rows count from 0; `r` moves down past
    // the rows that a step inserts before it.
    /// Starts the sums with the record in grid row 1 and adds the rows for the totals. Nothing without a
    /// summed column.
    Q_INVOKABLE void InitTotalsGrid();
    Q_INVOKABLE void AccumulateRow(double& r);
    Q_INVOKABLE void EmitSubTotalRows(int level, double& r);
    Q_INVOKABLE void ResetGroupLevels(int level, double r);
    Q_INVOKABLE void FinishTotals();
    Q_INVOKABLE void PaintTotalsRows();
    Q_INVOKABLE void AppendTotalsRow();
    /// Shows the sum of a column in a row of its own at the end, which the next call uses again. Texts
    /// count by the number at their front, with a point as the decimal sign in every locale.
    Q_INVOKABLE void CalcTotalsOnThisColumn(int clmn);
    /// Always 0: it looks for a tag that no row has. Kept for hosts that call it.
    Q_INVOKABLE int FindTotalsRow() const;
    /// The share of the group of row `r` at `level` + 1 in that at `level` (the number of factors - 2 when
    /// left out), as a percentage with two decimals, into `result`.
    Q_INVOKABLE void PercentOfParent(const QString& field, int r, const QVariant& level, QString& result);
    /// The sum of a field over the records of a totals report that have the keys of row `r` in columns 0
    /// to `level`.
    Q_INVOKABLE double GroupValueSum(int level, const QString& name, int r);
    Q_INVOKABLE QString ReplaceStringIntoAString(const QString& StrForReplace, const QString& StrSource,
                                                 const QString& StrDest);

    /// A general setting of the database; "NULL" when there is none, empty when it can't be read.
    Q_INVOKABLE QString GETGeneral(int IntGenKey, int IntGenSubKey, QString& StrGenDescription);
    /// False when it could not be stored.
    Q_INVOKABLE bool SETGeneral(int IntGenKey, int IntGenSubKey, const QString& StrGenDescription);

    /// Paints the rows that show by section: colours and fonts of the kind of each row, "----" into blank
    /// group factor cells of detail rows. Cheap, whatever the report's length. A failure shows the error
    /// box.
    Q_INVOKABLE void DrawInterface();
    /// Repaints the heading row; unless `what` is 0, the group factor cells, subtotals and totals of all
    /// rows too.
    Q_INVOKABLE void RefreshInterface(int what = -1);
    /// Repaints the group factor cells of all rows, or with `fromTop` False those of the last row, and
    /// leaves them selected.
    Q_INVOKABLE void PaintGroupBlock(const QVariant& fromTop = {});
    /// Moves the band to the current row and raises `Selecting`; nothing without `RowSelect`.
    Q_INVOKABLE void Selectrow();
    /// Takes the band off a row: it gets `PreBackColor` and `PreForeColor`.
    Q_INVOKABLE void RedrawRow(int irow);
    /// Marks a row in colours of the host's. Colours are 32-bit numbers, blue in the high byte of the three.
    Q_INVOKABLE void reversecolor(int MarkRow, uint mBack, uint mfore);
    /// Paints a row with `PreBackColor` and `PreForeColor`, group factor cells included.
    Q_INVOKABLE void Releasemark(int MarkRow);
    Q_INVOKABLE void ReverseCell(int rw, int ClFrom, int ClTo, uint back, uint fore);
    /// Alternating row colours, when `RowByRow` is True.
    Q_INVOKABLE void makeRowByrow();
    /// Size and style of one cell's font; what is left out is the surface's own. The typeface stays.
    Q_INVOKABLE void CellFonts(int mrw, int mCl, const QVariant& mFontname = {},
                               const QVariant& mfontsize = {}, const QVariant& mfontbold = {},
                               const QVariant& mfontunderline = {}, const QVariant& mfontitalic = {},
                               const QVariant& mfontstrike = {});
    /// The same for a row, from `FixedCols` on.
    Q_INVOKABLE void FontsRow(int mrw, const QVariant& mFontname = {}, const QVariant& mfontsize = {},
                              const QVariant& mfontbold = {}, const QVariant& mfontunderline = {},
                              const QVariant& mfontitalic = {}, const QVariant& mfontstrike = {});
    /// The font of a block: from `col` (left out: behind the group factors, in row 0 the first) to
    /// `colEnd` (the last), from `row` to `rowEnd` (`row`). Nothing for a row that is not there.
    Q_INVOKABLE void SetCellFonts(int row, const QString& name, double size, bool bold, bool italic,
                                  bool underline, const QVariant& col = {}, const QVariant& rowEnd = {},
                                  const QVariant& colEnd = {});

    // Menus. What a tool does is reached through `Picture1`; these bring its state up to date.
    /// Brings the tools in line with the current column. Nothing without `MenusVisible`.
    Q_INVOKABLE void MenuRefresh();
    /// Fills the list of fields and the caption's text for the current column.
    Q_INVOKABLE void fillBandField();
    /// Both fill the field list anew.
    Q_INVOKABLE void fillcombos();
    Q_INVOKABLE void fillTotalcombos();
    /// Asks for a colour and gives it to a section: 0 headings, 1 group factors, 2 details, 3 subtotals,
    /// 4 totals, 5 title, 6 company block. `what`: 0 its background, 1 its text.
    Q_INVOKABLE void ChooseSectionStyle(int section, int what);
    /// Asks for a font and gives it to a section, 0 to 4. `what` is always 2.
    Q_INVOKABLE void ChooseSectionFont(int section, int what);

    // What the user does to columns. None of them reads data, but for the one that says so.
    /// Removes the entry at a position (from 0), which comes back inside the range, and the surface's
    /// current column, which is another one when the position isn't the current column's, as wanted.
    /// Asks before it loads again, and only for a group factor with a field. A failure shows the error box.
    Q_INVOKABLE void deletecolumn(int& columnclicked);
    Q_INVOKABLE void mnuAddColumn_Click();
    Q_INVOKABLE void mnuInsert_Click();
    Q_INVOKABLE void mnuAddOmadopoihsh_Click();
    Q_INVOKABLE void mnuInsertOmadopoihsh_Click();
    Q_INVOKABLE void mnuDelete_Click();

    // What the place that holds the control tells it.
    Q_INVOKABLE void UserControl_Resize();
    Q_INVOKABLE void UserControl_EnterFocus();
    Q_INVOKABLE void UserControl_ExitFocus();
    /// A handler may change the code; the code that is left comes back.
    Q_INVOKABLE int UserControl_KeyDown(int KeyCode, int Shift);
    Q_INVOKABLE int UserControl_KeyPress(int KeyAscii);
    Q_INVOKABLE void UserControl_Terminate();

    /// Fills the bag with the report's shape; the control stays as it is. A failure shows the error box.
    Q_INVOKABLE void UserControl_WriteProperties(const zkp::PropertyBagPtr& bag);
    /// Applies a bag and draws the interface; reads no data. Some values come back changed, and `Columns`
    /// grows on a control that has been given columns: set `Cols` to itself afterwards. A failure in the
    /// first keys shows the error box and ends it, one in later keys leaves that value as it was.
    Q_INVOKABLE void UserControl_ReadProperties(const zkp::PropertyBagPtr& bag);

    // Templates. What fails in the database, in a file or in a name is thrown.
    /// The older template files: a `clsList` for each and an empty entry at the end, or nothing at all.
    /// Empties `FileName`.
    Q_INVOKABLE QVariantList FillTemplates(const QVariant& mFileNo = {});
    /// Stores the shape under a name, in one transaction. A name whose characters from the fifth on are a
    /// number above 0 is that row of `frms`, which must be there; any other name a row of `frms2`.
    Q_INVOKABLE void SaveTemplate(const QVariant& mPath = {}, const QVariant& mfilename = {},
                                  const QVariant& mFileNo = {});
    /// Applies the template of a name, which an older file may still hold: that moves into the database then.
    /// The connection becomes the control's `Cn`. Loads no data, and see UserControl_ReadProperties.
    Q_INVOKABLE void opentemplate(const zkp::ado::ConnectionPtr& P_CN, const QVariant& mPath = {},
                                  const QVariant& mfilename = {}, const QVariant& mFileNo = {});
    // What the entries of a template menu do: each raises its event, and the host acts.
    Q_INVOKABLE void mnuSave_Click();
    Q_INVOKABLE void mnuSaveAs_Click();
    Q_INVOKABLE void mnuLoad_Click();
    Q_INVOKABLE void mnuTitle_Click();

private:
    // Operations with no caller of their own; reached by name only.
    Q_INVOKABLE bool FindAccountColumns();
    Q_INVOKABLE void RecalcBalanceColumn();
    Q_INVOKABLE void RecalcAverageColumns();
    Q_INVOKABLE void RecalcPercentColumns();
    Q_INVOKABLE int FindColumnByField(const QString& name) const;
    Q_INVOKABLE int FindParentRow(int r) const;
    Q_INVOKABLE void LockMenus();
    Q_INVOKABLE void UnlockMenus();
    Q_INVOKABLE double FindKeyColumn() const;

    struct Parts;

    /// Runs an operation of the parts, which stay alive meanwhile: one of its handlers may destroy the
    /// control, and then it ends quietly.
    template <class Operation>
    auto run(Operation operation) const;

    std::shared_ptr<Parts> parts_;
};

} // namespace zkp
