#pragma once

#include "core/column_list.h"
#include "core/events.h"
#include "core/load_notes.h"
#include "core/record_source.h"
#include "core/report_state.h"
#include "surface/grid_surface.h"

namespace zkp {

/// What every statement builder reads of the report, and the properties that it writes back.
class BuilderInputs {
public:
    BuilderInputs(ReportState& state, const ColumnList& columns, const GridSurface& surface, Events& events,
                  LoadNotes& notes)
        : state(state)
        , columns(columns)
        , notes(notes)
        , surface_(surface)
        , source_(state)
        , events_(events) {}

    ReportState& state;
    const ColumnList& columns;
    /// Takes what fails here behind a box.
    LoadNotes& notes;

    /// The grid's column count.
    int cols() const { return surface_.Cols(); }
    QString dataField(int column) const { return columns.ofGridColumn(column).Datafield; }
    bool isTotalled(int column) const { return columns.ofGridColumn(column).Totals; }
    /// `RecordsourceSTR`.
    QString sourceText() const { return source_.text(); }

    /// How many group factors have a name to walk: `GroupFactorCount`, bounded by the names.
    int factorCount() const {
        return std::min<int>(state.GroupFactorCount, static_cast<int>(state.GroupFactors.size()));
    }
    const QString& factor(int i) const { return state.GroupFactors[i]; }

    void setFilter(const QString& text) {
        if (isFilterTyped())
            typedInForce_ = text;
        write(state.Filter, text, QStringLiteral("Filter"));
    }
    /// Gives `Filter` a condition that a person typed.
    void setTypedFilter(const QString& condition) {
        typed_ = condition;
        typedInForce_ = condition;
        write(state.Filter, condition, QStringLiteral("Filter"));
    }
    /// Whether `Filter` is what a person typed, or what the builders have made of it.
    bool isFilterTyped() const { return !typed_.isEmpty() && state.Filter == typedInForce_; }
    /// Puts a typed filter back as it was before the builders wrote over it.
    void beginFilter() {
        if (isFilterTyped() && state.Filter != typed_)
            setFilter(typed_);
    }
    void setGroupby(const QString& text) { write(state.Groupby, text, QStringLiteral("Groupby")); }
    void setOrderBy(const QString& text) { write(state.OrderBy, text, QStringLiteral("OrderBy")); }

private:
    void write(QString& member, const QString& text, const QString& key) {
        member = text;
        events_.notify(key);
    }

    const GridSurface& surface_;
    RecordSource source_;
    QString typed_;        ///< the last condition that a person typed
    QString typedInForce_; ///< `Filter` as it was last written for that condition
    Events& events_;
};

} // namespace zkp
