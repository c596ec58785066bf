#pragma once

#include "core/column_list.h"
#include "core/state/account_state.h"
#include "core/state/section_settings.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// The running account over debit, credit and balance columns. No part of a load runs it, as wanted;
/// a load gives a balance column its two decimals only.
class AccountColumns {
public:
    /// How wide a text shows, in twips.
    using MeasureText = std::function<double(const QString&)>;

    AccountColumns(const SectionSettings& sections, AccountState& account, ColumnList& columns,
                   GridSurface& surface, MeasureText measure)
        : sections_(sections)
        , account_(account)
        , columns_(columns)
        , surface_(surface)
        , measure_(std::move(measure)) {}

    /// Sets `DebitColumn`, `CreditColumn` and `BalanceColumn` to the last column of each kind, -1 when
    /// there is none; True when any was found.
    bool FindAccountColumns();

    /// Writes the running figure into the balance columns, sums the `Totals` columns into the last
    /// row, and lets `BestWidth` grow to the widest text.
    void RecalcBalanceColumn();

private:
    double amountAt(int row, int column) const;
    void writeLastRow(const std::vector<double>& sums);

    const SectionSettings& sections_;
    AccountState& account_;
    ColumnList& columns_;
    GridSurface& surface_;
    MeasureText measure_;
};

} // namespace zkp
