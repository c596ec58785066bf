#pragma once

#include "base/error.h"
#include "base/listeners.h"
#include "core/control_setters.h"
#include "core/events.h"
#include "core/load_notes.h"
#include "core/painted_place.h"
#include "core/record_source.h"
#include "core/reporting.h"
#include "core/row_marking.h"
#include "core/state/data_settings.h"
#include "core/state/lifetime.h"
#include "core/state/load_state.h"
#include "host/message_boxes.h"
#include "host/pending_events.h"
#include "host/pointer.h"
#include "load/load_hooks.h"
#include "load/load_outcome.h"
#include "load/row_reader.h"
#include "menu/menu_bar.h"
#include "sql/statement_parts.h"
#include "surface/grid_surface.h"

#include <QElapsedTimer>

#include <functional>

namespace zkp {

/// The road from the host's call to the last painted row: checks the source, loads the dictionary,
/// opens the records, sizes the surface and hands over to the row reader. One call loads everything. How
/// it went is kept, and told to whoever listens.
class LoadDriver {
public:
    using ErrorSink = std::function<void(const Error&)>;

    LoadDriver(const DataSettings& data, LoadState& load, const Lifetime& lifetime, PaintedPlace& painted,
               RecordSource& source, ControlSetters& setters, GridSurface& surface, MenuBar& menu,
               StatementParts& statements, GroupColumns& groups, RowMarking& marking, RowReader& reader,
               LoadNotes& notes, MessageBoxes& boxes, Pointer& pointer, PendingEvents& pendingEvents,
               const Reporting& reporting, const LoadHooks& hooks)
        : data_(data)
        , load_(load)
        , lifetime_(lifetime)
        , painted_(painted)
        , source_(source)
        , setters_(setters)
        , surface_(surface)
        , menu_(menu)
        , statements_(statements)
        , groups_(groups)
        , marking_(marking)
        , reader_(reader)
        , notes_(notes)
        , boxes_(boxes)
        , pointer_(pointer)
        , pendingEvents_(pendingEvents)
        , reporting_(reporting)
        , hooks_(hooks) {}

    /// The checked entry. Every failed check goes to the sink in order; then the first is thrown.
    void refresh(ErrorSink sink);
    /// The load itself. A failure ends it with the error box. Called again while it runs (by a handler
    /// or a pending event), it shows one box and does nothing else.
    void FillGrid();
    bool isLoading() const { return loading_; }
    /// Of the last load that has ended or was refused.
    const LoadOutcome& lastLoad() const { return last_; }
    Listeners<LoadListener>& listeners() { return listeners_; }

    /// Opens the report's dictionary rows, or goes back to the first of them. Nothing without `clmns`.
    void LoadDictionary();
    /// Opens the records of the report's mode; False when there is no recordset then.
    bool MakeRecordset();
    void OpenDetailRecordset();

private:
    void refuse(const Error& error);
    void load();
    void loadRecords();
    double elapsedMs() const;
    LoadOutcome outcome() const;
    void tell(const LoadOutcome& outcome);
    void openBySourceType();
    ado::RecordsetPtr openText(const QString& statement, int cursorType);
    void openCommand();
    std::int64_t recordCount() const;
    void sizeSurface(int records);
    void readRows();
    void selectFirstRow();

    const DataSettings& data_;
    LoadState& load_;
    const Lifetime& lifetime_;
    PaintedPlace& painted_;
    RecordSource& source_;
    ControlSetters& setters_;
    GridSurface& surface_;
    MenuBar& menu_;
    StatementParts& statements_;
    GroupColumns& groups_;
    RowMarking& marking_;
    RowReader& reader_;
    LoadNotes& notes_;
    MessageBoxes& boxes_;
    Pointer& pointer_;
    PendingEvents& pendingEvents_;
    Reporting reporting_;
    const LoadHooks& hooks_;
    Listeners<LoadListener> listeners_;
    LoadOutcome last_;
    LoadOutcome underWay_;
    QElapsedTimer clock_;
    bool loading_ = false;
    bool toldOnce_ = false; ///< a load asked for meanwhile has been refused with a box
};

} // namespace zkp
