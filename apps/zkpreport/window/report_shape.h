#pragma once

#include <QStringList>

namespace zkp::app {

/// The column that the user has sorted a report by.
struct ColumnSort {
    QString field; ///< empty: the order that the report starts with
    bool isDescending = false;

    bool operator==(const ColumnSort&) const = default;
};

/// What the user has made of a report: its group factors, its form and its order.
struct ReportShape {
    QStringList factors = {}; ///< dictionary keys, the outermost first
    bool isTotals = false;    ///< a row for each group instead of each record; needs a factor
    ColumnSort sort = {};
};

} // namespace zkp::app
