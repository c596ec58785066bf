#pragma once

#include "window/dictionary_fields.h"
#include "window/report_shape.h"
#include "zkp_grid.h"

#include <vector>

namespace zkp::app {

/// A column as a report starts with it.
struct ReportColumn {
    QString field; ///< dictionary key, or the alias of an aggregate
    QString caption;
    double width = 0; ///< twips
    int alignment = 0;
    bool isFactor = false;
    bool isSummed = false;
};

/// The columns of a report in its shape, the group factors in front. Factors that the fields lack are
/// left out.
///
/// A detail report goes on with ten fields at most, in the order of the dictionary: what tells a row from
/// the others, one name of each thing that it belongs to, and amounts; with factors they are fewer. A totals
/// report goes on with the count and, for three amounts at most, the sum and its share; the first has its
/// other aggregates too, and a loss-ratio report the ratios.
std::vector<ReportColumn> reportColumns(const std::vector<DictionaryField>& fields, const ReportShape& shape);

/// Whether a report has the two fields that loss ratios are made of.
bool hasLossRatio(const std::vector<DictionaryField>& fields);

/// Makes the columns of a control, in place of those it has.
void layColumns(ZkpGrid& grid, const std::vector<ReportColumn>& columns);
/// Whether a control has these columns; widths apart, which users set as they like.
bool isLaidAs(ZkpGrid& grid, const std::vector<ReportColumn>& columns);
/// The columns of a detail report that has been reshaped, behind other group factors.
std::vector<ReportColumn> regroupedColumns(ZkpGrid& grid, const std::vector<DictionaryField>& fields,
                                           const QStringList& factors);
/// The keys of a control's group factors, in their order.
QStringList factorsOf(ZkpGrid& grid);

} // namespace zkp::app
