#include "core/account_columns.h"

#include "base/number.h"
#include "core/section_style.h"

#include <algorithm>

namespace zkp {

bool AccountColumns::FindAccountColumns() {
    account_.DebitColumn = account_.CreditColumn = account_.BalanceColumn = -1;
    const int cols = std::min(surface_.Cols(), columns_.Count());
    for (int number = 1; number <= cols; ++number) {
        const Column& column = columns_.Item(number);
        const auto position = toInt16(number - 1);
        if (column.Debit)
            account_.DebitColumn = position;
        if (column.Credit)
            account_.CreditColumn = position;
        if (column.Balance)
            account_.BalanceColumn = position;
    }
    return account_.DebitColumn >= 0 || account_.CreditColumn >= 0 || account_.BalanceColumn >= 0;
}

/// Val reads a point only, whatever the locale: "1.234,50" counts as 1,234. Wanted.
double AccountColumns::amountAt(int row, int column) const {
    return column < 0 ? 0.0 : val(surface_.TextMatrix(row, column));
}

void AccountColumns::RecalcBalanceColumn() {
    FindAccountColumns();
    const int cols = std::min(surface_.Cols(), columns_.Count());
    std::vector<double> sums(static_cast<std::size_t>(cols), 0.0);
    double running = 0.0;
    for (int r = surface_.FixedRows(); r <= surface_.Rows() - 2; ++r) {
        running += amountAt(r, account_.DebitColumn) - amountAt(r, account_.CreditColumn);
        for (int c = 0; c < cols; ++c) {
            Column& column = columns_.ofGridColumn(c);
            if (column.Balance)
                surface_.setTextMatrix(r, c, surface_.locale().doubleText(running));
            const QString text = surface_.TextMatrix(r, c);
            if (column.Totals)
                sums[static_cast<std::size_t>(c)] += val(text);
            if (const auto width = Currency::fromDouble(measure_(text)); width && *width > column.BestWidth)
                column.BestWidth = *width;
        }
    }
    if (surface_.Rows() > surface_.FixedRows())
        writeLastRow(sums);
}

void AccountColumns::writeLastRow(const std::vector<double>& sums) {
    const int last = surface_.Rows() - 1;
    const auto cols = static_cast<int>(sums.size());
    for (int c = 0; c < cols; ++c) {
        const bool summed = columns_.ofGridColumn(c).Totals;
        const double sum = sums[static_cast<std::size_t>(c)];
        surface_.setTextMatrix(last, c, summed ? surface_.locale().doubleText(sum) : QStringLiteral(" "));
    }
    if (cols > 0) {
        surface_.setTextMatrix(last, 0, QStringLiteral("###"));
        const StylePatch totals = coloursOf(styleOf(Section::Totals, sections_, surface_));
        surface_.applyStyle({last, 0, last, surface_.Cols() - 1}, totals, StyleOrigin::Section);
    }
    if (account_.BalanceColumn > -1) {
        const double balance = amountAt(last, account_.DebitColumn) - amountAt(last, account_.CreditColumn);
        surface_.setTextMatrix(last, account_.BalanceColumn, surface_.locale().doubleText(balance));
    }
}

} // namespace zkp
