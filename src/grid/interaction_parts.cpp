#include "grid/interaction_parts.h"

namespace zkp {

InteractionParts::InteractionParts(CoreParts& core, StatementParts& statements, LoadParts& load,
                                   const std::function<void()>& refresh)
    : drawing(core.state.data, core.state.source, core.state.grouping, core.state.sections,
              core.state.lifetime, core.state.notices, core.state.painted, core.surface, core.events,
              core.fonts, core.marking, core.children.Picture1, core.pointer, core.reporting)
    , lifecycle(core.state.sections, core.state.face, core.children, core.events, core.marking, drawing)
    , menuState(core.state.data, core.state.grouping, core.state.face, core.state.tools, core.columns,
                core.columnProperties, core.surface, core.children.Picture1, statements.dictionary)
    , columnCommands(core.state.data, core.state.grouping, core.state.sections, core.state.lifetime,
                     core.state.clicked, core.setters, load.driver, core.columns, core.columnProperties,
                     core.groupFactors, core.groupColumns, core.surface, core.fonts, core.events, core.boxes,
                     core.pointer, core.reporting)
    , headingDrag(core.state.data, core.state.grouping, core.state.face, core.state.lifetime,
                  core.state.notices, core.state.clicked, core.setters, menuState, core.state.exporting,
                  core.state.tools, core.columns, core.columnProperties, core.groupFactors, core.surface,
                  core.boxes, core.pointer, core.reporting, refresh)
    , fieldTools(core.state.data, core.state.lifetime, core.state.notices, core.state.clicked, load.driver,
                 core.state.tools, core.columns, core.columnProperties, core.groupColumns, core.surface,
                 core.children.Picture1)
    , sectionStyles(core.state.lifetime, drawing, core.host->styleDialogs())
    , menuCommands(core.state.print, core.state.face, core.state.lifetime, core.setters, core.columns,
                   core.columnProperties, core.surface, core.events, load.sorting, columnCommands,
                   sectionStyles, menuState, core.boxes, refresh)
    , selectionEvents(core.state.source, core.state.grouping, core.state.face, core.state.lifetime,
                      core.state.notices, core.state.painted, core.state.clicked, core.state.exporting,
                      core.keyColumn, core.surface, core.events, core.marking, drawing, menuState,
                      core.pointer, {})
    , surfaceEvents(core.state.grouping, core.state.face, core.state.lifetime, core.state.clicked,
                    core.setters, core.state.tools, core.columnProperties, core.surface,
                    core.children.Picture1, core.events, statements.dictionary, load.emptyReport, menuState,
                    headingDrag, selectionEvents, core.boxes, core.reporting, {}) {
    load.hooks.FieldListChanged = [this] { menuState.fillBandField(); };
    load.hooks.MenuRefresh = [this] { menuState.MenuRefresh(); };
    load.hooks.DrawInterface = [this] { drawing.DrawInterface(); };
}

} // namespace zkp
