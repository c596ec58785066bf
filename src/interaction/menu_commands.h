#pragma once

#include "base/listeners.h"
#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/events.h"
#include "core/state/face_state.h"
#include "core/state/lifetime.h"
#include "core/state/print_settings.h"
#include "host/message_boxes.h"
#include "interaction/column_commands.h"
#include "interaction/menu_state.h"
#include "interaction/section_styles.h"
#include "load/sorting.h"
#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <functional>
#include <memory>

namespace zkp {

/// Runs the command of a tool that the user has clicked, and brings the menus up to date behind it. What
/// fails in a command is thrown to whoever clicked.
class MenuCommands {
public:
    /// `refresh` is the control's own, which tells the host of failed checks.
    MenuCommands(const PrintSettings& print, const FaceState& face, const Lifetime& lifetime,
                 ControlSetters& setters, const ColumnList& columns, ColumnProperties& properties,
                 GridSurface& surface, Events& events, RowSorting& sorting, ColumnCommands& columnCommands,
                 SectionStyles& styles, MenuState& menus, MessageBoxes& boxes, std::function<void()> refresh)
        : print_(print)
        , face_(face)
        , lifetime_(lifetime)
        , setters_(setters)
        , columns_(columns)
        , properties_(properties)
        , surface_(surface)
        , events_(events)
        , sorting_(sorting)
        , columnCommands_(columnCommands)
        , styles_(styles)
        , menus_(menus)
        , boxes_(boxes)
        , refresh_(std::move(refresh)) {}

    /// Listens to the bar's clicks. `owner` keeps everything here alive while a command runs, since a handler
    /// may destroy the control.
    void connect(MenuBar& menu, const std::weak_ptr<void>& owner);

private:
    struct Table;

    void clicked(const Tool& tool);
    void run(const Tool& tool);

    void refresh();
    void sort(bool descending);
    void align(int alignment);
    void askForTitle();
    void sayMissing(const Tool& tool);
    void raise(void (Events::*event)()) { Q_EMIT(events_.*event)(); }
    void changeColumns(void (ColumnCommands::*command)()) { (columnCommands_.*command)(); }
    void style(int section, int what) { styles_.ChooseSectionStyle(section, what); }
    void font(int section) { styles_.ChooseSectionFont(section); }

    const PrintSettings& print_;
    const FaceState& face_;
    const Lifetime& lifetime_;
    ControlSetters& setters_;
    const ColumnList& columns_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    Events& events_;
    RowSorting& sorting_;
    ColumnCommands& columnCommands_;
    SectionStyles& styles_;
    MenuState& menus_;
    MessageBoxes& boxes_;
    std::function<void()> refresh_;
    Listening clicks_;
};

} // namespace zkp
