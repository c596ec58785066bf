#pragma once

#include "sql/percentage_statement.h"
#include "sql/settings_store.h"
#include "sql/statement_dispatch.h"
#include "sql/user_filter.h"

namespace zkp {

/// The statement builders and their steps, each made from the ones before it.
struct StatementParts {
    /// What they are made from.
    struct From {
        DataSettings& data;
        MasterTableState& master;
        IdentityState& identity;
        const SortingState& sorting;
        RecordSource& source;
        GroupFactorFlags& flags;
        GroupColumns& groups;
        const ColumnList& columns;
        const GridSurface& surface;
        Events& events;
        LoadNotes& notes;
        MessageBoxes& boxes;
    };
    explicit StatementParts(const From& from)
        : dictionary(from.data, from.source.state(), from.identity)
        , settings(from.source.state().Cn)
        , inputs(from.data, from.source, from.master, from.identity, from.sorting, from.flags, from.columns,
                 from.surface, from.events, from.notes, from.boxes)
        , hierarchy(inputs, from.identity)
        , fields(inputs)
        , masterTable(inputs, from.master)
        , joins(inputs)
        , translation(inputs)
        , userFilter(inputs)
        , runTime(inputs, fields, joins, translation, hierarchy)
        , normal(inputs, hierarchy)
        , grouped(inputs, dictionary, hierarchy)
        , statistics(inputs, dictionary, fields, joins, translation, hierarchy)
        , percentageStatement(inputs, masterTable, fields, joins, hierarchy)
        , dispatch(inputs, from.source, from.groups, settings, normal, runTime, grouped, statistics) {}

    Dictionary dictionary;
    SettingsStore settings;
    BuilderInputs inputs;
    Hierarchy hierarchy;
    FieldExpressions fields;
    MasterTableLookup masterTable;
    Joins joins;
    FilterTranslation translation;
    UserFilter userFilter;
    RunTimeStatement runTime;
    NormalStatement normal;
    GroupedStatement grouped;
    StatisticsStatement statistics;
    PercentageStatement percentageStatement;
    StatementDispatch dispatch;
};

} // namespace zkp
