#include "window/totals_columns.h"

#include "base/format.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "window/texts.h"

#include <algorithm>

namespace zkp::app {

namespace {

constexpr int kMostAmounts = 3;
constexpr int kRight = 7;
constexpr double kCountWidth = 900;
constexpr double kShareWidth = 750;
constexpr double kLeastAmountWidth = 1350;
constexpr double kHeadingLetter = 100;
constexpr double kHeadingEnds = 150;
constexpr QStringView kCount = u"Cnt";

/// Collects aggregate columns, in the order in which a report shows them. They are spelled as the list of
/// fields spells them, which knows its own by the exact letters.
class TotalsColumns {
public:
    void addCount() {
        add(kCount.toString(), texts::countHeading(), kCountWidth, true);
        addShare(u"CNT");
    }
    void addSum(const DictionaryField& field) {
        add(QStringLiteral("SUM_") + field.key, field.caption, widthOf(field), true);
        addShare(field.key);
    }
    void addOthers(const DictionaryField& field) {
        if (field.hasAverage)
            add(QStringLiteral("Avg_") + field.key, texts::averageHeading(), widthOf(field), false);
        if (field.hasMinimum)
            add(QStringLiteral("Min_") + field.key, texts::minimumHeading(), widthOf(field), false);
        if (field.hasMaximum)
            add(QStringLiteral("Max_") + field.key, texts::maximumHeading(), widthOf(field), false);
    }
    void addRatio(const DictionaryField& field, bool isDifference) {
        add(field.key, field.caption, widthOf(field), isDifference);
    }

    std::vector<ReportColumn> columns;

private:
    void addShare(QStringView of) {
        add(QStringLiteral("POS_") + of.toString(), texts::shareHeading(), kShareWidth, false);
    }
    void add(const QString& field, const QString& caption, double width, bool isSummed) {
        columns.push_back({field, caption, width, kRight, false, isSummed});
    }
    /// At least wide enough for a sum, and for the heading.
    static double widthOf(const DictionaryField& field) {
        const double heading = kHeadingEnds + kHeadingLetter * static_cast<double>(field.caption.size());
        return std::max({field.width, kLeastAmountWidth, heading});
    }
};

bool isDifference(const QString& field) {
    return nameKey(field) == u"LR2";
}

bool isRatio(const QString& field) {
    const QString key = nameKey(field);
    return key == u"LR" || key == u"LR1" || key == u"LR3";
}

bool isOfLossRatio(const DictionaryField& field) {
    return isRatio(field.key) || isDifference(field.key);
}

void formatColumn(GridSurface& surface, int column, NumberFormat format) {
    for (int row = surface.FixedRows(); row < surface.Rows(); ++row)
        if (const auto number = surface.shownNumber(row, column))
            surface.setTextMatrix(row, column, formatNumber(*number, format, surface.locale()));
}

} // namespace

bool hasLossRatio(const std::vector<DictionaryField>& fields) {
    return findField(fields, QStringLiteral("POSON")) && findField(fields, QStringLiteral("POSONLR"));
}

std::vector<ReportColumn> totalsColumns(const std::vector<DictionaryField>& fields) {
    const bool withRatios = hasLossRatio(fields);
    TotalsColumns totals;
    totals.addCount();
    int amounts = 0;
    for (const DictionaryField& field : fields) {
        if (!field.isAmount() || amounts == kMostAmounts || (withRatios && isOfLossRatio(field)))
            continue;
        totals.addSum(field);
        if (++amounts == 1 && !withRatios)
            totals.addOthers(field);
    }
    for (const DictionaryField& field : fields)
        if (withRatios && isOfLossRatio(field))
            totals.addRatio(field, isDifference(field.key));
    return totals.columns;
}

void formatFigures(ZkpGrid& grid) {
    GridSurface& surface = grid.MSFlexGrid1();
    const bool redraw = surface.Redraw();
    const ScopeGuard restore([&] { surface.setRedraw(redraw); });
    surface.setRedraw(false);
    for (int c = 0; c < surface.Cols(); ++c) {
        const QString field = grid.ColDataField(c);
        if (sameName(field, kCount))
            formatColumn(surface, c, NumberFormat::Grouped0);
        else if (isRatio(field))
            formatColumn(surface, c, NumberFormat::Grouped2);
    }
}

} // namespace zkp::app
