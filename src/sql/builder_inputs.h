#pragma once

#include "core/column_list.h"
#include "core/events.h"
#include "core/record_source.h"
#include "core/report_state.h"
#include "sql/typed_filter.h"
#include "surface/grid_surface.h"

namespace zkp {

/// What every statement builder reads of the report, and the properties that it writes back.
class BuilderInputs {
public:
    BuilderInputs(ReportState& state, const ColumnList& columns, const GridSurface& surface, Events& events)
        : state(state)
        , columns(columns)
        , surface_(surface)
        , source_(state)
        , events_(events) {}

    ReportState& state;
    const ColumnList& columns;

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
            typed_.overwrite(text);
        write(state.Filter, text, QStringLiteral("Filter"));
    }
    void setTypedFilter(const QString& condition) {
        typed_.take(condition);
        write(state.Filter, condition, QStringLiteral("Filter"));
    }
    bool isFilterTyped() const { return typed_.isIn(state.Filter); }
    const TypedFilter& typedFilter() const { return typed_; }
    /// Puts a filter that a person typed back as it was before the builders wrote over it.
    void beginFilter() {
        if (!isFilterTyped())
            return;
        if (const QString typed = typed_.begin(state.Filter); typed != state.Filter)
            setFilter(typed);
        else
            typed_.overwrite(typed);
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
    TypedFilter typed_;
    Events& events_;
};

} // namespace zkp
