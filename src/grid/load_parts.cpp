#include "grid/load_parts.h"

namespace zkp {

LoadParts::LoadParts(CoreParts& core, StatementParts& statements)
    : percentages(core.state.source, core.state.grouping, core.columns, core.surface, core.boxes, core.notes)
    , groupRows(core.state.data, core.state.grouping, core.state.load, core.columns, core.surface,
                percentages)
    , totalsRows(core.state.data, core.state.load, core.state.notices, core.state.sections, core.columns,
                 core.surface, groupRows.sums(), hooks)
    , summaryColumns(core.state.data, core.state.grouping, core.columns, core.surface)
    , reader(core.state.data, core.state.source, core.state.load, core.state.lifetime, core.state.notices,
             core.columnProperties, core.columns, core.surface, core.events, core.boxes, core.pointer,
             core.reporting, groupRows, totalsRows, percentages)
    , driver(core.state.data, core.state.load, core.state.lifetime, core.state.painted, core.source,
             core.setters, core.surface, core.children.Picture1, statements, core.groupColumns, core.marking,
             reader, core.notes, core.boxes, core.pointer, core.host->pendingEvents(), core.reporting, hooks)
    , emptyReport(core.state.data, core.state.face, core.state.lifetime, core.source, core.columnProperties,
                  core.surface, core.children.Picture1, statements, core.groupColumns, core.pointer, hooks)
    , sorting(core.state.data, core.state.source, core.state.grouping, core.state.sorting,
              core.state.lifetime, core.state.notices, statements, driver, core.marking, core.setters,
              core.columnProperties, core.surface, core.events, core.pointer, core.reporting) {}

} // namespace zkp
