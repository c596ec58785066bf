#include "zkp_grid.h"

#include "base/error.h"
#include "base/number.h"
#include "grid/parts.h"
#include "host/application_folder.h"
#include "host/scripted_host.h"
#include "interaction/menu_bands.h"

namespace zkp {

namespace {

/// Twips that a text takes in the report's usual font, for parts that must work without a screen.
double roughTextWidth(const QString& text) {
    return 90.0 * static_cast<double>(text.size());
}

} // namespace

ZkpGrid::Parts::Parts(std::shared_ptr<Host> givenHost)
    : host(givenHost ? std::move(givenHost) : std::make_shared<ScriptedHost>())
    , boxes(host->boxes())
    , pointer(host->screenPointer())
    , reporting(state, {boxes, pointer}, &notes)
    , surface(children.MSFlexGrid1)
    , columnProperties(columns, surface, events)
    , groupFactors(state, columns, events)
    , accountColumns(state, columns, surface, roughTextWidth)
    , groupColumns(state, columns, columnProperties, groupFactors, surface, pointer, reporting,
                   [this](int count) { setCols(count); })
    , keyColumn(state, columns, surface)
    , fonts(state, surface, events)
    , marking(state, keyColumn, surface, events)
    , source(state)
    , dictionary(state)
    , settings(state.Cn)
    , inputs(state, columns, surface, events, notes)
    , hierarchy(inputs)
    , fields(inputs, boxes)
    , masterTable(inputs, boxes)
    , joins(inputs, boxes)
    , translation(inputs, boxes)
    , userFilter(inputs)
    , runTime(inputs, fields, joins, translation, hierarchy, boxes)
    , normal(inputs, hierarchy, boxes)
    , grouped(inputs, dictionary, hierarchy)
    , statistics(inputs, dictionary, fields, joins, translation, hierarchy, boxes)
    , percentageStatement(inputs, masterTable, fields, joins, hierarchy, boxes)
    , dispatch(inputs, groupColumns, settings, normal, runTime, grouped, statistics)
    , percentages(state, columns, surface, boxes, notes)
    , groupRows(state, columns, surface, percentages)
    , totalsRows(state, columns, surface, groupRows.sums(), hooks)
    , summaryColumns(state, columns, surface)
    , reader(state, columnProperties, columns, surface, events, boxes, pointer, reporting, groupRows,
             totalsRows, percentages)
    , driver(state, surface, children.Picture1, dictionary, fields, reader, notes, boxes, pointer,
             host->pendingEvents(), reporting, hooks)
    , emptyReport(state, columnProperties, surface, children.Picture1, dictionary, pointer, hooks)
    , sorting(inputs, fields, columnProperties, surface, events, pointer, reporting, hooks,
              {[this](int row) { setRow(row); }, [this] { driver.FillGrid(); }})
    , drawing(state, surface, events, fonts, marking, children.Picture1, pointer, reporting)
    , lifecycle(state, children, events, [this] { drawing.DrawInterface(); })
    , savedProperties(state, columns, columnProperties, children, reporting,
                      {[this] { lifecycle.resize(); }, [this] { drawing.DrawInterface(); }})
    , templates(state, savedProperties, boxes, applicationFolder)
    , columnCommands(state, columns, columnProperties, groupFactors, groupColumns, surface, fonts, events,
                     boxes, pointer, reporting,
                     {[this](int count) { setCols(count); }, [this](bool on) { setRefreshOnChange(on); },
                      [this] { driver.FillGrid(); }})
    , headingDrag(state, columns, columnProperties, groupFactors, surface, boxes, pointer, reporting,
                  {[this] { driver.refresh(errorSink); }, [this] { menuState.MenuRefresh(); }})
    , fieldTools(state, columns, columnProperties, groupColumns, surface, children.Picture1,
                 [this] { driver.FillGrid(); })
    , menuState(state, columns, columnProperties, surface, children.Picture1, dictionary)
    , sectionStyles(state, drawing, host->styleDialogs())
    , menuCommands(state, columns, columnProperties, surface, events, sorting, columnCommands, sectionStyles,
                   menuState, boxes,
                   {[this] { driver.refresh(errorSink); }, [this](bool on) { setRefreshOnChange(on); },
                    [this](const QString& title) { setPrintCaption(title); }})
    , selectionEvents(state, keyColumn, surface, events, marking, drawing, menuState, pointer, {})
    , surfaceEvents(state, columnProperties, surface, children.Picture1, events, dictionary, emptyReport,
                    menuState, headingDrag, selectionEvents, boxes, reporting, {}) {
    buildMenuBands(children.Picture1);
    columnProperties.placeInitial(surface.Cols());
    connectHooks();
    lifecycle.initProperties();
}

/// What a load asks of the other parts.
void ZkpGrid::Parts::connectHooks() {
    hooks.FieldListChanged = [this] {
        if (state.TotalForm)
            menuState.fillTotalcombos();
        else
            menuState.fillcombos();
    };
    hooks.MenuRefresh = [this] { menuState.MenuRefresh(); };
    hooks.FindMaster = [this] { masterTable.FindMaster(); };
    hooks.DetailStatement = [this] { return dispatch.DetailStatement(); };
    hooks.OpenTotalRecordset = [this] { dispatch.OpenTotalRecordset(); };
    hooks.RunTimeSQLCounter = [this] { runTime.RunTimeSQLCounter(); };
    hooks.CommandFilter = [this] { return hierarchy.recordsetFilter(); };
    hooks.MakeFixedForGroup = [this] { groupColumns.MakeFixedForGroup(); };
    hooks.DrawInterface = [this] { drawing.DrawInterface(); };
    hooks.Selectrow = [this] { marking.Selectrow(); };
    hooks.RedrawRow = [this](double row) { marking.RedrawRow(row); };
}

/// A count that is not above 0 is ignored.
void ZkpGrid::Parts::setCols(int count) {
    if (count <= 0)
        return;
    surface.setCols(count);
    columnProperties.resize(count);
    events.notify(QStringLiteral("Cols"));
}

/// A row beyond the last first makes that many rows; the row one past them is then dropped without a
/// word, and the row count has still grown, as wanted.
void ZkpGrid::Parts::setRow(int row) {
    try {
        if (row > surface.Rows() - 1)
            surface.setRows(row);
    } catch (const Error&) {
    }
    try {
        surface.setRow(row);
    } catch (const Error&) {
    }
    events.notify(QStringLiteral("Row"));
}

/// A report whose data has not been read is not printed.
void ZkpGrid::Parts::setRefreshOnChange(bool on) {
    MenuBar& bar = children.Picture1;
    state.RefreshOnChange = on;
    bar.Tools(u"mnuPrint").Enabled = on; // in all its bands
    bar.Refresh();
    events.notify(QStringLiteral("Refreshonchange"));
}

void ZkpGrid::Parts::setPrintCaption(const QString& title) {
    state.PrintCaption = title;
    children.lbltemplate.Caption = title;
    events.notify(QStringLiteral("PrintCaption"));
}

ZkpGrid::ZkpGrid(std::shared_ptr<Host> host, QObject* parent)
    : QObject(parent)
    , parts_(std::make_shared<Parts>(std::move(host))) {
    parts_->surfaceEvents.connect(parts_);
    parts_->fieldTools.connect(parts_);
    parts_->sorting.connect(parts_);
    parts_->menuCommands.connect(parts_->children.Picture1, parts_);
    parts_->sectionStyles.connect(
        {[this](const QString& name) { return getMember(name); },
         [this](const QString& name, const QVariant& value) { setMember(name, value); }});
}

ZkpGrid::~ZkpGrid() {
    UserControl_Terminate();
    parts_->state.destroyed = true;
    parts_->events.blockSignals(true);
}

ColumnList& ZkpGrid::Columns() {
    return parts_->columns;
}
Events& ZkpGrid::events() {
    return parts_->events;
}
Host& ZkpGrid::host() {
    return *parts_->host;
}
GridSurface& ZkpGrid::MSFlexGrid1() {
    return parts_->children.MSFlexGrid1;
}
/// Written when somebody looks, since a load keeps its sums as numbers.
GridSurface& ZkpGrid::MSFlexGrid2() {
    parts_->groupRows.showAccumulator(parts_->children.MSFlexGrid2);
    return parts_->children.MSFlexGrid2;
}
GridSurface& ZkpGrid::MSFlexGrid3() {
    return parts_->children.MSFlexGrid3;
}
MenuBar& ZkpGrid::Picture1() {
    return parts_->children.Picture1;
}
Button& ZkpGrid::cmdHide() {
    return parts_->children.cmdHide;
}
Label& ZkpGrid::lbltemplate() {
    return parts_->children.lbltemplate;
}
Label& ZkpGrid::lblfilter() {
    return parts_->children.lblfilter;
}

void ZkpGrid::setErrorSink(std::function<void(const Error&)> sink) {
    parts_->errorSink = std::move(sink);
}

void ZkpGrid::Fill(const ado::ConnectionPtr& P_CN, const QVariant& P_RecordSource, int P_SourceType,
                   const QString& P_ProductID, int P_Remote) {
    setCn(P_CN);
    setSourceType(P_SourceType);
    setRecordSource(P_RecordSource);
    setProductID(P_ProductID);
    setRemote(toInt16(P_Remote));
    if (P_ProductID != QStringLiteral("-1") && !P_ProductID.isEmpty())
        LoadIerarxia();
}

void ZkpGrid::refresh() {
    run([](Parts& p) { p.driver.refresh(p.errorSink); });
}

void ZkpGrid::FillGrid() {
    run([](Parts& p) { p.driver.FillGrid(); });
}

bool ZkpGrid::isLoading() const {
    return parts_->driver.isLoading();
}

LoadOutcome ZkpGrid::lastLoad() const {
    return parts_->driver.lastLoad();
}

Listening ZkpGrid::listenToLoads(LoadListener listener) {
    return parts_->driver.listeners().add(std::move(listener));
}

void ZkpGrid::PrepareEmptyGrid() {
    run([](Parts& p) { p.emptyReport.prepare(); });
}

void ZkpGrid::Clear() {
    run([](Parts& p) { p.surface.Clear(); });
}

QVariant ZkpGrid::ClearGrid() {
    const auto parts = parts_;
    GridSurface& surface = parts->surface;
    // Each step stands by itself: an error in one is passed over.
    const auto pass = [](auto step) {
        try {
            step();
        } catch (...) {
        }
    };
    pass([&] { surface.setRows(surface.FixedRows()); });
    parts->state.PreBackColor = surface.BackColor();
    parts->state.PreForeColor = surface.ForeColor();
    pass([&] { surface.setRows(toInt32(parts->state.MinRows)); });
    pass([&] { surface.setRow(1); });
    return {};
}

/// The mark comes off first, so that it does not travel with the insertion.
void ZkpGrid::AddItem(const QString& mitem, const QVariant& mindex) {
    const int place = mindex.isValid() ? toInt32(mindex) : -1;
    if (mindex.isValid() && place < 0)
        throw Error(kErrInvalidRow, QStringLiteral("Invalid Row value"), QStringLiteral("AddItem"));
    run([&](Parts& p) {
        LoadHooks::run(p.hooks.RedrawRow, p.state.PreRow);
        p.surface.AddItem(mitem, place);
    });
}

/// The mark is left as it is, unlike in AddItem; wanted.
void ZkpGrid::RemoveItem(int mindex) {
    run([&](Parts& p) { p.surface.RemoveItem(mindex); });
}

void ZkpGrid::CancelLoad() {
    parts_->state.CancelRequested = true;
}
void ZkpGrid::StopSearch() {
    parts_->state.SearchStopRequested = true;
}

QString ZkpGrid::RecordsourceSTR() const {
    return parts_->source.text();
}
bool ZkpGrid::HasTotals() const {
    return parts_->groupFactors.HasTotals(parts_->surface.Cols());
}
short ZkpGrid::FindGroupNum() const {
    return parts_->groupFactors.FindGroupNum(parts_->surface.Cols());
}

void ZkpGrid::CheckGroupBy() {
    run([](Parts& p) { p.groupFactors.CheckGroupBy(p.surface.Cols()); });
}

void ZkpGrid::InsertColumn(int whereisit) {
    run([&](Parts& p) { p.groupColumns.InsertColumn(whereisit); });
}

void ZkpGrid::MakeFixedForGroup() {
    run([](Parts& p) { p.groupColumns.MakeFixedForGroup(); });
}

bool ZkpGrid::FindAccountColumns() {
    return parts_->accountColumns.FindAccountColumns();
}

void ZkpGrid::RecalcBalanceColumn() {
    run([](Parts& p) { p.accountColumns.RecalcBalanceColumn(); });
}

void ZkpGrid::UserControl_Resize() {
    run([](Parts& p) { p.lifecycle.resize(); });
}

void ZkpGrid::UserControl_EnterFocus() {
    run([](Parts& p) { p.lifecycle.enterFocus(); });
}

void ZkpGrid::UserControl_ExitFocus() {
    run([](Parts& p) { p.lifecycle.exitFocus(); });
}

int ZkpGrid::UserControl_KeyDown(int KeyCode, int Shift) {
    return run([&](Parts& p) { return p.lifecycle.keyDown(KeyCode, Shift); });
}

int ZkpGrid::UserControl_KeyPress(int KeyAscii) {
    return run([&](Parts& p) { return p.lifecycle.keyPress(KeyAscii); });
}

void ZkpGrid::UserControl_Terminate() {
    parts_->state.SqlOnRunTime = false;
    parts_->dictionary.release();
}

} // namespace zkp
