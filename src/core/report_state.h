#pragma once

#include "core/clicked_column.h"
#include "core/painted_place.h"
#include "core/selection_notices.h"
#include "core/state/account_state.h"
#include "core/state/data_settings.h"
#include "core/state/export_state.h"
#include "core/state/face_state.h"
#include "core/state/grouping_state.h"
#include "core/state/host_members.h"
#include "core/state/identity_state.h"
#include "core/state/key_state.h"
#include "core/state/lifetime.h"
#include "core/state/load_state.h"
#include "core/state/marking_state.h"
#include "core/state/master_table_state.h"
#include "core/state/print_settings.h"
#include "core/state/section_settings.h"
#include "core/state/sorting_state.h"
#include "core/state/source_state.h"
#include "core/state/template_state.h"
#include "core/state/tool_state.h"

namespace zkp {

/// The stored members of one control, by subject. A part is given the subjects that it names, const but for
/// the one that writes them.
struct ReportState {
    DataSettings data;
    SourceState source;
    MasterTableState master;
    IdentityState identity;
    GroupingState grouping;
    SortingState sorting;
    LoadState load;
    KeyState key;
    MarkingState marking;
    SectionSettings sections;
    PrintSettings print;
    TemplateState templates;
    FaceState face;
    HostMembers host;
    Lifetime lifetime;
    ExportState exporting;
    AccountState account;
    ToolState tools;

    SelectionNotices notices;
    PaintedPlace painted;
    ClickedColumn clicked;
};

} // namespace zkp
