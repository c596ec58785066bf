#include "zkp_grid.h"

#include "base/error.h"
#include "base/number.h"
#include "grid/parts.h"
#include "host/application_folder.h"
#include "interaction/menu_bands.h"

namespace zkp {

ZkpGrid::Parts::Parts(std::shared_ptr<Host> givenHost)
    : core(std::move(givenHost))
    , statements(core.forStatements())
    , load(core, statements)
    , interaction(core, statements, load, [this] { load.driver.refresh(errorSink); })
    , savedProperties(
          core.state, core.columns, core.columnProperties, core.children, core.reporting,
          {[this] { interaction.lifecycle.resize(); }, [this] { interaction.drawing.DrawInterface(); }})
    , templates(core.state.templates, core.source, savedProperties, core.boxes, applicationFolder) {
    buildMenuBands(core.children.Picture1);
    core.columnProperties.placeInitial(core.surface.Cols());
    interaction.lifecycle.initProperties();
}

ZkpGrid::ZkpGrid(std::shared_ptr<Host> host, QObject* parent)
    : QObject(parent)
    , parts_(std::make_shared<Parts>(std::move(host))) {
    parts_->interaction.surfaceEvents.connect(parts_);
    parts_->interaction.fieldTools.connect(parts_);
    parts_->load.sorting.connect(parts_);
    parts_->interaction.menuCommands.connect(parts_->core.children.Picture1, parts_);
    parts_->interaction.sectionStyles.connect(
        {[this](const QString& name) { return getMember(name); },
         [this](const QString& name, const QVariant& value) { setMember(name, value); }});
}

ZkpGrid::~ZkpGrid() {
    UserControl_Terminate();
    parts_->core.state.lifetime.destroyed = true;
    parts_->core.events.blockSignals(true);
}

ColumnList& ZkpGrid::Columns() {
    return parts_->core.columns;
}
Events& ZkpGrid::events() {
    return parts_->core.events;
}
Host& ZkpGrid::host() {
    return *parts_->core.host;
}
GridSurface& ZkpGrid::MSFlexGrid1() {
    return parts_->core.children.MSFlexGrid1;
}
/// Written when somebody looks, since a load keeps its sums as numbers.
GridSurface& ZkpGrid::MSFlexGrid2() {
    parts_->load.groupRows.showAccumulator(parts_->core.children.MSFlexGrid2);
    return parts_->core.children.MSFlexGrid2;
}
GridSurface& ZkpGrid::MSFlexGrid3() {
    return parts_->core.children.MSFlexGrid3;
}
const ReportRows& ZkpGrid::shownRows() const {
    return parts_->core.rows;
}
MenuBar& ZkpGrid::Picture1() {
    return parts_->core.children.Picture1;
}
Button& ZkpGrid::cmdHide() {
    return parts_->core.children.cmdHide;
}
Label& ZkpGrid::lbltemplate() {
    return parts_->core.children.lbltemplate;
}
Label& ZkpGrid::lblfilter() {
    return parts_->core.children.lblfilter;
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
    run([](Parts& p) { p.load.driver.refresh(p.errorSink); });
}

void ZkpGrid::FillGrid() {
    run([](Parts& p) { p.load.driver.FillGrid(); });
}

bool ZkpGrid::isLoading() const {
    return parts_->load.driver.isLoading();
}

LoadOutcome ZkpGrid::lastLoad() const {
    return parts_->load.driver.lastLoad();
}

Listening ZkpGrid::listenToLoads(LoadListener listener) {
    return parts_->load.driver.listeners().add(std::move(listener));
}

void ZkpGrid::PrepareEmptyGrid() {
    run([](Parts& p) { p.load.emptyReport.prepare(); });
}

void ZkpGrid::Clear() {
    run([](Parts& p) { p.core.surface.Clear(); });
}

QVariant ZkpGrid::ClearGrid() {
    const auto parts = parts_;
    GridSurface& surface = parts->core.surface;
    // Each step stands by itself: an error in one is passed over.
    const auto pass = [](auto step) {
        try {
            step();
        } catch (...) {
        }
    };
    pass([&] { surface.setRows(surface.FixedRows()); });
    parts->core.marking.coverSurface();
    pass([&] { surface.setRows(toInt32(parts->core.state.face.MinRows)); });
    pass([&] { surface.setRow(1); });
    return {};
}

/// The mark comes off first, so that it does not travel with the insertion.
void ZkpGrid::AddItem(const QString& mitem, const QVariant& mindex) {
    const int place = mindex.isValid() ? toInt32(mindex) : -1;
    if (mindex.isValid() && place < 0)
        throw Error(kErrInvalidRow, QStringLiteral("Invalid Row value"), QStringLiteral("AddItem"));
    run([&](Parts& p) {
        p.core.marking.redrawMarkedRow();
        p.core.surface.AddItem(mitem, place);
    });
}

/// The mark is left as it is, unlike in AddItem; wanted.
void ZkpGrid::RemoveItem(int mindex) {
    run([&](Parts& p) { p.core.surface.RemoveItem(mindex); });
}

void ZkpGrid::CancelLoad() {
    parts_->core.state.host.CancelRequested = true;
}
void ZkpGrid::StopSearch() {
    parts_->core.state.host.SearchStopRequested = true;
}

QString ZkpGrid::RecordsourceSTR() const {
    return parts_->core.source.text();
}
bool ZkpGrid::HasTotals() const {
    return parts_->core.groupFactors.HasTotals(parts_->core.surface.Cols());
}
short ZkpGrid::FindGroupNum() const {
    return parts_->core.groupFactors.FindGroupNum(parts_->core.surface.Cols());
}

void ZkpGrid::CheckGroupBy() {
    run([](Parts& p) { p.core.groupFactors.CheckGroupBy(p.core.surface.Cols()); });
}

void ZkpGrid::InsertColumn(int whereisit) {
    run([&](Parts& p) { p.core.groupColumns.InsertColumn(whereisit); });
}

void ZkpGrid::MakeFixedForGroup() {
    run([](Parts& p) { p.core.groupColumns.MakeFixedForGroup(); });
}

bool ZkpGrid::FindAccountColumns() {
    return parts_->core.accountColumns.FindAccountColumns();
}

void ZkpGrid::RecalcBalanceColumn() {
    run([](Parts& p) { p.core.accountColumns.RecalcBalanceColumn(); });
}

void ZkpGrid::UserControl_Resize() {
    run([](Parts& p) { p.interaction.lifecycle.resize(); });
}

void ZkpGrid::UserControl_EnterFocus() {
    run([](Parts& p) { p.interaction.lifecycle.enterFocus(); });
}

void ZkpGrid::UserControl_ExitFocus() {
    run([](Parts& p) { p.interaction.lifecycle.exitFocus(); });
}

int ZkpGrid::UserControl_KeyDown(int KeyCode, int Shift) {
    return run([&](Parts& p) { return p.interaction.lifecycle.keyDown(KeyCode, Shift); });
}

int ZkpGrid::UserControl_KeyPress(int KeyAscii) {
    return run([&](Parts& p) { return p.interaction.lifecycle.keyPress(KeyAscii); });
}

void ZkpGrid::UserControl_Terminate() {
    parts_->core.state.data.SqlOnRunTime = false;
    parts_->statements.dictionary.release();
}

} // namespace zkp
