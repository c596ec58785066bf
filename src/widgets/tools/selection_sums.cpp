#include "widgets/tools/selection_sums.h"

#include "base/format.h"
#include "base/texts/tools.h"
#include "core/enums.h"
#include "widgets/grid/surface_selection.h"

#include <QLocale>

namespace zkp {

namespace {

constexpr int kFewestDecimals = 2;

/// How many decimals a number in units of 10^-10 has.
int decimalsOf(Decimal::Int units) {
    int decimals = Decimal::kDecimals;
    for (; decimals > 0 && units % 10 == 0; --decimals)
        units /= 10;
    return decimals;
}

Decimal::Int powerOfTen(int exponent) {
    Decimal::Int power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

/// A number in units of 10^-decimals, grouped.
QString fixedText(Decimal::Int scaled, int decimals, const ReportLocale& locale) {
    const bool negative = scaled < 0;
    const std::string digits = digitsOf(negative ? -scaled : scaled, static_cast<std::size_t>(decimals) + 1);
    const auto whole = static_cast<qsizetype>(digits.size()) - decimals;
    QString text = QString::fromLatin1(digits.data(), whole);
    for (qsizetype place = whole - 3; place > 0; place -= 3)
        text.insert(place, locale.groupSign());
    if (decimals > 0)
        text += locale.decimalSign().toString() + QString::fromLatin1(digits.data() + whole, decimals);
    return negative ? u'-' + text : text;
}

} // namespace

QString exactText(const Decimal& number, const ReportLocale& locale) {
    const auto units = number.units();
    if (!units)
        return formatNumber(number, NumberFormat::Grouped2, locale);
    const int needed = decimalsOf(*units);
    const int decimals = needed == 0 ? 0 : std::max(needed, kFewestDecimals);
    return fixedText(*units / powerOfTen(Decimal::kDecimals - decimals), decimals, locale);
}

QString averageText(const Decimal& sum, std::int64_t count, const ReportLocale& locale) {
    const auto units = sum.units();
    if (!units)
        return formatNumber(sum.toDouble() / static_cast<double>(count), NumberFormat::Grouped2, locale);
    const int decimals = std::max(decimalsOf(*units), kFewestDecimals);
    const Decimal::Int divisor = powerOfTen(Decimal::kDecimals - decimals) * count;
    const Decimal::Int half = *units < 0 ? -(divisor / 2) : divisor / 2;
    return fixedText((*units + half) / divisor, decimals, locale);
}

void SelectionSums::start(const CellRange& block) {
    block_ = block;
    cols_ = isEmpty(block) ? std::vector<int>() : shownColumns(surface_, block.left, block.right);
    total_ = left_ =
        static_cast<std::int64_t>(cols_.size()) * (isEmpty(block) ? 0 : block.bottom - block.top + 1);
    details_ = {};
    summaries_ = {};
}

bool SelectionSums::walk(int cells) {
    const auto width = static_cast<std::int64_t>(cols_.size());
    for (; cells > 0 && left_ > 0; --cells) {
        const std::int64_t place = total_ - left_--;
        const int row = block_.top + static_cast<int>(place / width);
        const int col = cols_[static_cast<std::size_t>(place % width)];
        if (row >= surface_.Rows() || col >= surface_.Cols()) {
            left_ = 0;
            break;
        }
        add(row, col);
    }
    return isDone();
}

void SelectionSums::add(int row, int col) {
    const int kind = surface_.RowData(row);
    Part& part = kind == ZKPSubTotals || kind == ZKPTotals ? summaries_ : details_;
    ++part.cells;
    if (const std::optional<Decimal> number = surface_.shownNumber(row, col)) {
        part.sum += *number;
        ++part.numbers;
    }
}

int SelectionSums::percent() const {
    return total_ == 0 ? 100 : static_cast<int>((total_ - left_) * 100 / total_);
}

QString SelectionSums::text() const {
    const Part& part = counted();
    if (part.numbers == 0)
        return {};
    const ReportLocale& locale = surface_.locale();
    const QString numbers = fixedText(part.numbers, 0, locale);
    const QString count =
        part.numbers == part.cells ? numbers : texts::countOfCells(numbers, fixedText(part.cells, 0, locale));
    const QString text =
        texts::sums(exactText(part.sum, locale), count, averageText(part.sum, part.numbers, locale));
    const bool leavesOut = details_.cells > 0 && summaries_.numbers > 0;
    return leavesOut ? texts::withoutSummaries(text) : text;
}

} // namespace zkp
