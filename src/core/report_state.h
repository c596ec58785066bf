#pragma once

#include "core/state/data_settings.h"
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

#include <vector>

namespace zkp {

/// The stored members of one control, by subject.
struct ReportState : Lifetime,
                     DataSettings,
                     SourceState,
                     MasterTableState,
                     IdentityState,
                     GroupingState,
                     SortingState,
                     LoadState,
                     KeyState,
                     MarkingState,
                     SectionSettings,
                     PrintSettings,
                     TemplateState,
                     FaceState,
                     HostMembers {
    short DebitColumn = -1;
    short CreditColumn = -1;
    short BalanceColumn = -1;

    int SavedTopRow = 0;
    int SavedLeftCol = 0;
    bool PaintReady = true;
    bool ContentSeen = true;

    inline static int LastClickedCol = 0; ///< one number for all controls of the process, as wanted
    bool MenusLocked = false;             ///< tools stay as they are, and no heading is dragged
    bool ExportRunning = false;    ///< selection handlers and drops wait while a spreadsheet is written
    std::vector<short> FieldIndex; ///< position in the list of `mnuField` to index in the dictionary
};

} // namespace zkp
