#include "interaction/tag_check.h"

#include "base/date_text.h"
#include "base/number.h"
#include "base/text.h"
#include "load/record_statistics.h"

namespace zkp {

bool CheckByTag(TextBoxModel& box, const ReportLocale& locale, Bell& bell) {
    const QString tag = nameKey(box.Tag);
    const bool blank = isBlank(box.Text);
    if (tag.contains(QLatin1String("[PADL]"))) {
        box.Text = PadLeft(box.Text, box.MaxLength, QStringLiteral(" "));
        return true;
    }
    if (tag.contains(QLatin1String("[DATE]")) && !blank) {
        const auto date = toDate(box.Text, locale);
        if (date)
            box.Text = shortDate(*date, locale);
        else
            bell.beep();
        return date.has_value();
    }
    if (!tag.contains(QLatin1String("[NUM]")))
        return true;
    if (blank) {
        box.Text = QStringLiteral("0");
        return true;
    }
    const bool numeric = toNumber(box.Text, locale).has_value();
    if (!numeric)
        bell.beep();
    return numeric;
}

} // namespace zkp
