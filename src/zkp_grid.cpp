#include "zkp_grid.h"

#include "base/error.h"
#include "base/number.h"
#include "platform/scripted_host.h"
#include "ui/menu_bands.h"
#include "zkp_grid_parts.h"

#include <algorithm>

namespace zkp {

namespace {

/// Twips that a text takes in the report's usual font, for parts that must work without a screen.
double roughTextWidth(const QString& text) { return 90.0 * static_cast<double>(text.size()); }

} // namespace

ZkpGrid::Parts::Parts(std::shared_ptr<Host> givenHost)
    : host(givenHost ? std::move(givenHost) : std::make_shared<ScriptedHost>())
    , surface(children.MSFlexGrid1)
    , columnProperties(columns, surface, events)
    , groupFactors(state, columns, events)
    , accountColumns(state, columns, surface, roughTextWidth)
    , groupColumns(state, columns, columnProperties, groupFactors, surface, *host, [this](int count) { setCols(count); })
    , source(state)
    , dictionary(state)
    , settings(state.Cn)
    , inputs(state, columns, surface, events)
    , hierarchy(inputs)
    , fields(inputs, *host)
    , masterTable(inputs, *host)
    , joins(inputs, *host)
    , translation(inputs, *host)
    , runTime(inputs, fields, joins, translation, hierarchy, *host)
    , normal(inputs, hierarchy, *host)
    , grouped(inputs, dictionary, hierarchy)
    , statistics(inputs, dictionary, fields, joins, translation, hierarchy, *host)
    , percentages(inputs, masterTable, fields, joins, hierarchy, *host)
    , dispatch(inputs, groupColumns, settings, normal, runTime, grouped, statistics)
    , reader(state, columnProperties, columns, surface, events, *host, hooks)
    , driver(state, surface, children.Picture1, dictionary, reader, *host, hooks)
    , emptyReport(state, columnProperties, surface, children.Picture1, dictionary, *host, hooks)
    , lifecycle(state, children, events, [this] { LoadHooks::run(hooks.DrawInterface); })
    , surfaceEvents(state, columnProperties, surface, events, *host) {
    buildMenuBands(children.Picture1);
    columnProperties.resize(surface.Cols());
    connectHooks();
    lifecycle.initProperties();
}

/// What a load asks of the other parts.
void ZkpGrid::Parts::connectHooks() {
    hooks.LoadIerarxia = [this] { hierarchy.LoadIerarxia(); };
    hooks.FindMaster = [this] { masterTable.FindMaster(); };
    hooks.DetailStatement = [this] { return dispatch.DetailStatement(); };
    hooks.OpenTotalRecordset = [this] { dispatch.OpenTotalRecordset(); };
    hooks.RunTimeSQLCounter = [this] { runTime.RunTimeSQLCounter(); };
    hooks.CommandFilter = [this] { return hierarchy.recordsetFilter(); };
    hooks.MakeFixedForGroup = [this] { groupColumns.MakeFixedForGroup(); };
}

/// A count that is not above 0 is ignored.
void ZkpGrid::Parts::setCols(int count) {
    if (count <= 0)
        return;
    surface.setCols(count);
    columnProperties.resize(count);
    events.notify(QStringLiteral("Cols"));
}

ZkpGrid::ZkpGrid(std::shared_ptr<Host> host, QObject* parent)
    : QObject(parent), parts_(std::make_shared<Parts>(std::move(host))) {
    parts_->surfaceEvents.connect(parts_);
}

ZkpGrid::~ZkpGrid() {
    UserControl_Terminate();
    parts_->state.destroyed = true;
    parts_->events.blockSignals(true);
}

ColumnList& ZkpGrid::Columns() { return parts_->columns; }
Events& ZkpGrid::events() { return parts_->events; }
Host& ZkpGrid::host() { return *parts_->host; }
GridSurface& ZkpGrid::MSFlexGrid1() { return parts_->children.MSFlexGrid1; }
GridSurface& ZkpGrid::MSFlexGrid2() { return parts_->children.MSFlexGrid2; }
GridSurface& ZkpGrid::MSFlexGrid3() { return parts_->children.MSFlexGrid3; }
MenuBar& ZkpGrid::Picture1() { return parts_->children.Picture1; }
Button& ZkpGrid::cmdHide() { return parts_->children.cmdHide; }
Label& ZkpGrid::lbltemplate() { return parts_->children.lbltemplate; }
Label& ZkpGrid::lblfilter() { return parts_->children.lblfilter; }

void ZkpGrid::setErrorSink(std::function<void(const Error&)> sink) { parts_->errorSink = std::move(sink); }

void ZkpGrid::Fill(const ado::ConnectionPtr& P_CN, const QVariant& P_RecordSource, int P_SourceType,
                   const QString& P_ProductID, int P_Remote) {
    setCn(P_CN);
    setSourceType(P_SourceType);
    setRecordSource(P_RecordSource);
    setProductID(P_ProductID);
    setRemote(toInt16(P_Remote));
    if (P_ProductID != QStringLiteral("-1") && !P_ProductID.isEmpty())
        LoadHooks::run(parts_->hooks.LoadIerarxia);
}

// A handler may have destroyed the control when one of these comes back; nothing of `this` is used
// behind the call.

void ZkpGrid::refresh() {
    const auto parts = parts_;
    try {
        parts->driver.refresh(parts->errorSink);
    } catch (const ControlDestroyed&) {
    }
}

void ZkpGrid::FillGrid() {
    const auto parts = parts_;
    try {
        parts->driver.FillGrid();
    } catch (const ControlDestroyed&) {
    }
}

void ZkpGrid::PrepareEmptyGrid() {
    const auto parts = parts_;
    try {
        parts->emptyReport.prepare();
    } catch (const ControlDestroyed&) {
    }
}

void ZkpGrid::Clear() { parts_->surface.Clear(); }

QVariant ZkpGrid::ClearGrid() {
    const auto parts = parts_;
    GridSurface& surface = parts->surface;
    // Each step stands by itself: an error in one is passed over.
    const auto pass = [](auto step) {
        try {
            step();
        } catch (const Error&) {
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
    const auto parts = parts_;
    LoadHooks::run(parts->hooks.RedrawRow, parts->state.PreRow);
    parts->surface.AddItem(mitem, mindex.isValid() ? toInt32(mindex) : -1);
}

/// The mark is left as it is, unlike in AddItem; wanted.
void ZkpGrid::RemoveItem(int mindex) { parts_->surface.RemoveItem(mindex); }
void ZkpGrid::CancelLoad() { parts_->state.CancelRequested = true; }
void ZkpGrid::StopSearch() { parts_->state.SearchStopRequested = true; }

QString ZkpGrid::RecordsourceSTR() const { return parts_->source.text(); }
bool ZkpGrid::HasTotals() const { return parts_->groupFactors.HasTotals(); }
short ZkpGrid::FindGroupNum() const { return parts_->groupFactors.FindGroupNum(); }
void ZkpGrid::CheckGroupBy() { parts_->groupFactors.CheckGroupBy(parts_->surface.Cols()); }
void ZkpGrid::InsertColumn(int whereisit) { parts_->groupColumns.InsertColumn(whereisit); }
void ZkpGrid::MakeFixedForGroup() { parts_->groupColumns.MakeFixedForGroup(); }
bool ZkpGrid::FindAccountColumns() { return parts_->accountColumns.FindAccountColumns(); }
void ZkpGrid::RecalcBalanceColumn() { parts_->accountColumns.RecalcBalanceColumn(); }

void ZkpGrid::UserControl_Resize() { parts_->lifecycle.resize(); }
void ZkpGrid::UserControl_EnterFocus() { parts_->lifecycle.enterFocus(); }
void ZkpGrid::UserControl_ExitFocus() { parts_->lifecycle.exitFocus(); }

int ZkpGrid::UserControl_KeyDown(int KeyCode, int Shift) {
    const auto parts = parts_;
    return parts->lifecycle.keyDown(KeyCode, Shift);
}

int ZkpGrid::UserControl_KeyPress(int KeyAscii) {
    const auto parts = parts_;
    return parts->lifecycle.keyPress(KeyAscii);
}

void ZkpGrid::UserControl_Terminate() {
    parts_->state.SqlOnRunTime = false;
    parts_->dictionary.release();
}

} // namespace zkp
