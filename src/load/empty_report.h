#pragma once

#include "core/column_properties.h"
#include "core/record_source.h"
#include "core/state/data_settings.h"
#include "core/state/face_state.h"
#include "core/state/lifetime.h"
#include "host/pointer.h"
#include "load/load_hooks.h"
#include "menu/menu_bar.h"
#include "sql/statement_parts.h"

namespace zkp {

/// Shows the report's shape without rows: headings, blank rows, dictionary and menus.
class EmptyReport {
public:
    EmptyReport(const DataSettings& data, const FaceState& face, const Lifetime& lifetime,
                RecordSource& source, ColumnProperties& properties, GridSurface& surface, MenuBar& menu,
                StatementParts& statements, GroupColumns& groups, Pointer& pointer, const LoadHooks& hooks)
        : data_(data)
        , face_(face)
        , lifetime_(lifetime)
        , source_(source)
        , properties_(properties)
        , surface_(surface)
        , menu_(menu)
        , statements_(statements)
        , groups_(groups)
        , pointer_(pointer)
        , hooks_(hooks) {}

    /// `PrepareEmptyGrid`. Does nothing without a dictionary or a connection.
    void prepare();

private:
    void takeSpecialSource();

    const DataSettings& data_;
    const FaceState& face_;
    const Lifetime& lifetime_;
    RecordSource& source_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    MenuBar& menu_;
    StatementParts& statements_;
    GroupColumns& groups_;
    Pointer& pointer_;
    const LoadHooks& hooks_;
};

} // namespace zkp
