#pragma once

#include "core/child_controls.h"
#include "core/column_properties.h"
#include "core/events.h"
#include "core/state/data_settings.h"
#include "core/state/face_state.h"
#include "core/state/print_settings.h"

namespace zkp {

/// The control's setters that do more than store a value, for the front door and for the parts that act as
/// a host would.
class ControlSetters {
public:
    ControlSetters(DataSettings& data, PrintSettings& print, FaceState& face, ChildControls& children,
                   ColumnProperties& columns, Events& events)
        : data_(data)
        , print_(print)
        , face_(face)
        , children_(children)
        , columns_(columns)
        , events_(events) {}

    /// A count that is not above 0 is ignored.
    void setCols(int count);
    /// A row beyond the last first makes that many rows; the row one past them is then dropped without a
    /// word, and the row count has still grown, as wanted.
    void setRow(int row);
    /// A report whose data has not been read is not printed.
    void setRefreshOnChange(bool on);
    void setPrintCaption(const QString& title);
    /// Without a word to the host's bindings.
    void keepPrintCaption(const QString& title) { print_.PrintCaption = title; }
    /// The control's own pointer, and not the screen's.
    void setMousePointer(int pointer) { face_.MousePointer = pointer; }

private:
    DataSettings& data_;
    PrintSettings& print_;
    FaceState& face_;
    ChildControls& children_;
    ColumnProperties& columns_;
    Events& events_;
};

} // namespace zkp
