#include "grid/core_parts.h"

#include "host/scripted_host.h"

namespace zkp {

namespace {

/// Twips that a text takes in the report's usual font, for parts that must work without a screen.
double roughTextWidth(const QString& text) {
    return 90.0 * static_cast<double>(text.size());
}

} // namespace

CoreParts::CoreParts(std::shared_ptr<Host> givenHost)
    : host(givenHost ? std::move(givenHost) : std::make_shared<ScriptedHost>())
    , boxes(host->boxes())
    , pointer(host->screenPointer())
    , reporting(state.lifetime, {boxes, pointer}, &notes)
    , surface(children.MSFlexGrid1)
    , columnProperties(columns, surface, events)
    , setters(state.data, state.print, state.face, children, columnProperties, events)
    , groupFactors(state.grouping, columns, events)
    , accountColumns(state.sections, state.account, columns, surface, roughTextWidth)
    , groupColumns(state.grouping, state.lifetime, columns, columnProperties, groupFactors, surface, pointer,
                   reporting, setters)
    , keyColumn(state.key, columns, surface)
    , fonts(state.grouping, state.sections, state.notices, state.lifetime, surface, events)
    , marking(state.grouping, state.marking, state.notices, state.lifetime, keyColumn, surface, events)
    , rows(surface, state.source, state.grouping, state.sections, marking)
    , source(state.source) {}

StatementParts::From CoreParts::forStatements() {
    return {state.data,   state.master, state.identity, state.sorting, source, groupFactors,
            groupColumns, columns,      surface,        events,        notes,  boxes};
}

} // namespace zkp
