#pragma once

#include "base/error_in_flight.h"
#include "core/column_list.h"
#include "core/events.h"
#include "core/group_factors.h"
#include "core/load_notes.h"
#include "core/record_source.h"
#include "core/state/data_settings.h"
#include "core/state/identity_state.h"
#include "core/state/master_table_state.h"
#include "core/state/sorting_state.h"
#include "host/message_boxes.h"
#include "sql/typed_filter.h"
#include "surface/grid_surface.h"

namespace zkp {

/// What every statement builder reads of the report, and the properties that it writes back.
class BuilderInputs {
public:
    BuilderInputs(DataSettings& data, const RecordSource& source, const MasterTableState& master,
                  const IdentityState& identity, const SortingState& sorting, GroupFactorFlags& flags,
                  const ColumnList& columns, const GridSurface& surface, Events& events, LoadNotes& notes,
                  MessageBoxes& boxes)
        : data(data)
        , source(source.state())
        , master(master)
        , identity(identity)
        , grouping(flags.state())
        , sorting(sorting)
        , columns(columns)
        , notes(notes)
        , data_(data)
        , source_(source)
        , flags_(flags)
        , surface_(surface)
        , events_(events)
        , boxes_(boxes) {}

    const DataSettings& data;
    const SourceState& source;
    const MasterTableState& master;
    const IdentityState& identity;
    const GroupingState& grouping;
    const SortingState& sorting;
    const ColumnList& columns;
    LoadNotes& notes;

    /// The grid's column count.
    int cols() const { return surface_.Cols(); }
    QString dataField(int column) const { return columns.ofGridColumn(column).Datafield; }
    bool isTotalled(int column) const { return columns.ofGridColumn(column).Totals; }
    /// `RecordsourceSTR`.
    QString sourceText() const { return source_.text(); }

    /// How many group factors have a name to walk: `GroupFactorCount`, bounded by the names.
    int factorCount() const {
        return std::min<int>(grouping.GroupFactorCount, static_cast<int>(grouping.GroupFactors.size()));
    }
    const QString& factor(int i) const { return grouping.GroupFactors[i]; }

    /// Within a catch: a step of a statement has failed. A box shows the sentence, and whoever asked for the
    /// statement goes on with what there is.
    void tellFailure(const QString& sentence) {
        notes.failed(errorInFlight());
        boxes_.msgBox(sentence, kMsgBoxCritical);
    }

    void setFilter(const QString& text) {
        if (isFilterTyped())
            typed_.overwrite(text);
        write(data_.Filter, text, QStringLiteral("Filter"));
    }
    void setTypedFilter(const QString& condition) {
        typed_.take(condition);
        write(data_.Filter, condition, QStringLiteral("Filter"));
    }
    bool isFilterTyped() const { return typed_.isIn(data.Filter); }
    const TypedFilter& typedFilter() const { return typed_; }
    /// Puts a filter that a person typed back as it was before the builders wrote over it.
    void beginFilter() {
        if (!isFilterTyped())
            return;
        if (const QString typed = typed_.begin(data.Filter); typed != data.Filter)
            setFilter(typed);
        else
            typed_.overwrite(typed);
    }
    void setGroupby(const QString& text) { flags_.setGroupby(text); }
    void setOrderBy(const QString& text) { write(data_.OrderBy, text, QStringLiteral("OrderBy")); }
    /// `SQLRun`.
    void keepStatement(const QString& text) { data_.SQLRun = text; }
    /// `HasPercentColumns`.
    void wantPercentColumns(bool wanted) { data_.HasPercentColumns = wanted; }

private:
    void write(QString& member, const QString& text, const QString& key) {
        member = text;
        events_.notify(key);
    }

    DataSettings& data_;
    const RecordSource& source_;
    GroupFactorFlags& flags_;
    const GridSurface& surface_;
    TypedFilter typed_;
    Events& events_;
    MessageBoxes& boxes_;
};

} // namespace zkp
