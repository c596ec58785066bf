#pragma once

namespace zkp {

/// What a row of the report is; kept in the row's `RowData`.
enum ZKPRowKind { ZKPSingleRow = 1, ZKPSubTotals = 9, ZKPTotals = 10 };

enum ZKPScrollingDirection { ZKPScrollup = 0, ZKPScrollDown = 1, ZKPScrollHorizontaly = 2 };

/// The report's sections that have colours and fonts of their own.
enum ZKPSections {
    ZKPSectionFixed = 0,
    ZKPSectionGroup = 1,
    ZKPSectionDetail = 2,
    ZKPSectionSubTotals = 3,
    ZKPSectionTotals = 4,
};

/// What a record source is.
enum RecordSourceType { ZKP_SQLStatement = 0, ZKP_Table_QUERY = 1, ZKP_RecordSet = 2, ZKP_Command = 3 };

/// How a load ended.
enum ZKPLoadResult {
    ZKPLoadNone = 0, ///< there was none yet
    ZKPLoaded = 1,
    ZKPLoadFailed = 2,  ///< something failed on the way, whether the load went on after its box or not
    ZKPLoadRefused = 3, ///< the checks of `refresh` failed, or a load was running already
    ZKPLoadKeptRows = 4 ///< the rows stayed: `RefreshOnChange` is False, or a command gave no records
};

/// Every enumeration name with its value, for scripts.
#define ZKP_ENUM_VALUES(X)                                                                                   \
    X(ZKPSingleRow)                                                                                          \
    X(ZKPSubTotals)                                                                                          \
    X(ZKPTotals)                                                                                             \
    X(ZKPScrollup)                                                                                           \
    X(ZKPScrollDown)                                                                                         \
    X(ZKPScrollHorizontaly)                                                                                  \
    X(ZKPSectionFixed)                                                                                       \
    X(ZKPSectionGroup)                                                                                       \
    X(ZKPSectionDetail)                                                                                      \
    X(ZKPSectionSubTotals)                                                                                   \
    X(ZKPSectionTotals)                                                                                      \
    X(ZKP_SQLStatement)                                                                                      \
    X(ZKP_Table_QUERY)                                                                                       \
    X(ZKP_RecordSet)                                                                                         \
    X(ZKP_Command)                                                                                           \
    X(ZKPLoadNone)                                                                                           \
    X(ZKPLoaded)                                                                                             \
    X(ZKPLoadFailed)                                                                                         \
    X(ZKPLoadRefused)                                                                                        \
    X(ZKPLoadKeptRows)

} // namespace zkp
