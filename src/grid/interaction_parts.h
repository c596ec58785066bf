#pragma once

#include "grid/load_parts.h"
#include "interaction/field_tools.h"
#include "interaction/lifecycle.h"
#include "interaction/menu_commands.h"
#include "interaction/surface_events.h"

namespace zkp {

/// What paints the report, and what the user does with it.
struct InteractionParts {
    /// `refresh` is the control's own, which tells the host of failed checks.
    InteractionParts(CoreParts& core, StatementParts& statements, LoadParts& load,
                     const std::function<void()>& refresh);

    InterfaceDrawing drawing;
    Lifecycle lifecycle;
    MenuState menuState;
    ColumnCommands columnCommands;
    HeadingDrag headingDrag;
    FieldTools fieldTools;
    SectionStyles sectionStyles;
    MenuCommands menuCommands;
    SelectionEvents selectionEvents;
    SurfaceEvents surfaceEvents;
};

} // namespace zkp
