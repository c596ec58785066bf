#include "base/report_locale.h"

namespace zkp {

namespace {

QString shortDateWithFullYear(const QLocale& locale) {
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"))
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return format;
}

} // namespace

ReportLocale::ReportLocale(const QLocale& locale)
    : locale_(locale)
    , decimalSign_(locale.decimalPoint())
    , groupSign_(locale.groupSeparator())
    , dateFormat_(shortDateWithFullYear(locale)) {}

QString ReportLocale::dateText(const QDateTime& moment) const {
    QString text = locale_.toString(moment.date(), dateFormat_);
    if (moment.time() != QTime(0, 0))
        text += u' ' + moment.time().toString(QStringLiteral("H:mm:ss"));
    return text;
}

QString ReportLocale::doubleText(double value) const {
    QString text = QString::number(value, 'g', 15);
    if (const auto point = text.indexOf(u'.'); point >= 0)
        text.replace(point, 1, decimalSign_);
    return text.replace(u'e', u'E');
}

} // namespace zkp
