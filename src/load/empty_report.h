#pragma once

#include "core/column_properties.h"
#include "core/record_source.h"
#include "host/pointer.h"
#include "load/load_hooks.h"
#include "menu/menu_bar.h"
#include "sql/dictionary.h"

namespace zkp {

/// Shows the report's shape without rows: headings, blank rows, dictionary and menus.
class EmptyReport {
public:
    EmptyReport(ReportState& state, ColumnProperties& properties, GridSurface& surface, MenuBar& menu,
                Dictionary& dictionary, Pointer& pointer, const LoadHooks& hooks)
        : state_(state)
        , properties_(properties)
        , surface_(surface)
        , menu_(menu)
        , dictionary_(dictionary)
        , pointer_(pointer)
        , hooks_(hooks) {}

    /// `PrepareEmptyGrid`. Does nothing without a dictionary or a connection.
    void prepare();

private:
    void takeSpecialSource();

    ReportState& state_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    MenuBar& menu_;
    Dictionary& dictionary_;
    Pointer& pointer_;
    const LoadHooks& hooks_;
};

} // namespace zkp
